#include "geometry/MakeNode.h"

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"

namespace {

bool IsSignalLayer(int32_t layer) {
    return g_model.g_aLayers && layer >= 0 && layer < g_model.g_nLayerCount &&
           g_model.g_aLayers[layer].kind == kLayerSignal;
}

bool HasNet(int32_t net) {
    return net != kNoNet && net != kNoNetAlt;
}

void ShareNet(NodeRec& start, NodeRec& end) {
    if (HasNet(start.net)) {
        if (!HasNet(end.net)) end.net = start.net;
    } else {
        start.net = end.net;
    }
}

void DropTraceRef(NodeRec& node) {
    if (node.traceRefs > 0) --node.traceRefs;
}

}  // namespace

void MakeNode() {
    const std::vector<TraceRec>& traces = g_model.g_aTraces;
    for (const TraceRec& trace : traces) {
        NodeRec* start = NodeById(trace.startNode);
        NodeRec* end = NodeById(trace.endNode);
        if (!start || !end) continue;
        ShareNet(*start, *end);
        if (trace.width == kDeletedTraceWidth) continue;
        if (!IsSignalLayer(trace.layer)) {
            DropTraceRef(*start);
            DropTraceRef(*end);
        }
    }
}

void FlipMirroredBottomNodes() {
    const int32_t bottom = LastConductorLayer();
    for (NodeRec& node : g_model.g_aNodes)
        if (node.pad.padStack() && node.layer == bottom && node.mirrored != 0)
            node.pad.SetRotation(node.pad.rotation() * -1.0);
}
