#pragma once
// Small helpers shared by the trace clean-up passes.
#include <cstdint>

#include "model/NodeRec.h"
#include "model/TraceRec.h"

// Lowers a node's trace references by count, not below 0.
inline void LowerTraceRefs(NodeRec& node, int count) {
    node.traceRefs = node.traceRefs > count ? static_cast<uint16_t>(node.traceRefs - count) : 0;
}

inline bool IsDeletedTrace(const TraceRec& trace) {
    return trace.width == kDeletedTraceWidth;
}
