#pragma once
#include <cstdio>

// One via line per stretch of the via output table.
void WriteVias(FILE* out);
