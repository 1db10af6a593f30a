#pragma once
// The benchmark trace: one time-stamped line per step of a translation, in debug_bm.log of
// the temporary folder (or the first free debug_bmN.log), so that every run starts a new file.
// Set KEEP_BENCHMARK to "No" or "0" to switch it off.
#include <string>

// append false truncates the file. A null format prints "...".
void TraceStep(bool append, const char* format, ...) __attribute__((format(printf, 2, 3)));

// Forgets the chosen file and the switch, so the next call starts a new run's trace.
void ResetTraceStep();
// The file the trace writes to, or "" while it is off or not yet chosen.
std::string TraceStepPath();
