#pragma once
// Small helpers shared by the trace clean-up passes.
#include <cstdint>

#include "model/NodeRec.h"
#include "model/TraceRec.h"

// Lowers a node's trace references by count, not below 0.
inline void LowerTraceRefs(NodeRec& node, int count) {
    if (count < 0) {
        node.traceRefs += static_cast<uint32_t>(-static_cast<int64_t>(count));
        return;
    }
    const uint32_t n = static_cast<uint32_t>(count);
    node.traceRefs = node.traceRefs > n ? node.traceRefs - n : 0;
}

inline bool IsDeletedTrace(const TraceRec& trace) {
    return trace.width == kDeletedTraceWidth;
}
