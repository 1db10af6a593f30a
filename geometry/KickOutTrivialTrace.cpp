#include "geometry/TraceCleanup.h"
#include "geometry/TraceCleanupSupport.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"

void KickOutTrivialTrace() {
    if (g_model.g_aTraces.empty() || g_model.g_aNodes.empty()) return;
    // Traces deleted before are taken again: a loop on one node always drops its two ends.
    for (TraceRec& trace : g_model.g_aTraces) {
        if (trace.startNode != trace.endNode) continue;
        if (NodeRec* node = NodeById(trace.startNode)) {
            LowerTraceRefs(*node, 1);
            LowerTraceRefs(*node, 1);
        }
        trace.width = kDeletedTraceWidth;
    }
}
