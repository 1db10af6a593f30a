#pragma once
#include <cstdint>

// Width of a deleted trace; the record stays in the table so counters keep their gaps.
constexpr double kDeletedTraceWidth = -1e38;

struct TraceRec {
    double width = 0.0;
    int32_t layer = -1;
    int32_t startNode = 0;
    int32_t color = 0;
    int32_t endNode = 0;
    int32_t gap = 0;
};
