#pragma once
// The trace lines of the package: one line per trace that reaches the file, numbered by its
// place in the trace table, with gaps where traces were deleted or left out.
#include <cstdio>

void WriteTraces(FILE* out);
