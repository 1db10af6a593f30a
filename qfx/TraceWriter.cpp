#include "qfx/TraceWriter.h"

#include <string>

#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/OutputScale.h"

namespace {

bool IsSignalLayer(int32_t layer) {
    return g_model.g_aLayers && layer >= 0 && layer < g_model.g_nLayerCount &&
           g_model.g_aLayers[layer].kind == kLayerSignal;
}

bool ReachesFile(const TraceRec& trace, int32_t net) {
    if (!(trace.width > kDeletedTraceWidth)) return false;
    if (!IsSignalLayer(trace.layer)) return false;
    return (net != kNoNet && net != kNoNetAlt) || g_options.g_nIncludeNoNetEtches != 0;
}

// A node reference is spelt as the node's own line spells its name, with the node's net,
// which may differ from the trace's.
std::string NodeReference(int32_t id) {
    const NodeRec* node = NodeById(id);
    std::string ref = "Node" + Affix() + std::to_string(id);
    if (node) ref += PinLabelSuffix(node->label) + NetSuffix(node->net);
    return ref;
}

}  // namespace

void WriteTraces(FILE* out) {
    const std::vector<TraceRec>& traces = g_model.g_aTraces;
    const std::vector<int32_t>& nets = g_model.g_aTraceNets;
    for (size_t t = 0; t < traces.size(); ++t) {
        const TraceRec& trace = traces[t];
        const int32_t net = t < nets.size() ? nets[t] : kNoNet;
        if (!ReachesFile(trace, net)) continue;
        std::fprintf(out, "Trace%s%d%s StartingNode = %s EndingNode = %s Width = %emm",
                     Affix().c_str(), static_cast<int>(t), NetSuffix(net).c_str(),
                     NodeReference(trace.startNode).c_str(), NodeReference(trace.endNode).c_str(),
                     trace.width * kOutputScale);
        const char* color = trace.color != 0 ? NetColorName(trace.color) : nullptr;
        if (color) std::fprintf(out, " Color = %s", color);
        std::fprintf(out, "\n");
    }
}
