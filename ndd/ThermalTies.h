#pragma once
// The Board Station "traces" file: thermal ties of plane connections become extra traces.
// Runs after all traces and shapes are read and the shape table is sorted, since a tie is
// made only where its end lies on copper of its own net.

// Reads g_strTraceFile. An empty path, or a file that cannot be opened, is passed over
// without a word. Returns 0 when memory or a node failed (the pass then ends), otherwise 1.
int ParseThermalTies();
