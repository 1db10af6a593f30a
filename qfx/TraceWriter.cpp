#include "qfx/TraceWriter.h"

#include <string>

#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/NumberText.h"
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
// which may differ from the trace's. A number with no node has no suffixes.
void AppendNodeReference(std::string& line, int32_t id) {
    const NodeRec* node = NodeById(id);
    if (node)
        AppendNodeName(line, id, node->label, node->net);
    else
        AppendNodeName(line, id, std::string(), kNoNet);
}

}  // namespace

void WriteTraces(FILE* out) {
    const std::vector<TraceRec>& traces = g_model.g_aTraces;
    const std::vector<int32_t>& nets = g_model.g_aTraceNets;
    std::string line;
    for (size_t t = 0; t < traces.size(); ++t) {
        const TraceRec& trace = traces[t];
        const int32_t net = t < nets.size() ? nets[t] : kNoNet;
        if (!ReachesFile(trace, net)) continue;
        // "Trace%s%d%s StartingNode = %s EndingNode = %s Width = %emm", " Color = %s", "\n".
        line.assign("Trace");
        line += Affix().c_str();
        AppendInt(line, static_cast<int>(t));
        line += NetSuffix(net).c_str();
        line += " StartingNode = ";
        AppendNodeReference(line, trace.startNode);
        line += " EndingNode = ";
        AppendNodeReference(line, trace.endNode);
        line += " Width = ";
        AppendExp(line, trace.width * kOutputScale, 6);
        line += "mm";
        const char* color = trace.color != 0 ? NetColorName(trace.color) : nullptr;
        if (color) {
            line += " Color = ";
            line += color;
        }
        line += '\n';
        PutText(out, line);
    }
}
