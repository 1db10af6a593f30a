#include "qfx/NodeWriter.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/NumberText.h"
#include "qfx/OutputScale.h"

namespace {

// A via padstack with no drill of its own takes the radius that its via's drill index
// selects, so that the library prints a hole for it.
void FixUpPadStackDrills() {
    std::unordered_map<uint32_t, double> radiusOfIndex;
    for (const DrillRadius& drill : g_model.g_aDrillRadii)
        radiusOfIndex[drill.index] = drill.radius;
    for (const ViaOutRec& via : g_model.g_aViaOut) {
        if (!via.padStack || via.padStack->drill > 0) continue;
        auto found = radiusOfIndex.find(via.drillIndex);
        if (found != radiusOfIndex.end()) via.padStack->drill = found->second;
    }
}

const char* LayerWord(const LayerRec* layer) {
    if (layer && layer->kind == kLayerSignal) return "Signal";
    if (layer && layer->kind == kLayerPlane) return "Plane";
    return "Medium";
}

const LayerRec* LayerAt(int32_t index) {
    if (!g_model.g_aLayers || index < 0 || index >= g_model.g_nLayerCount) return nullptr;
    return &g_model.g_aLayers[index];
}

bool PrintsForNet(int32_t net) {
    return (net != kNoNet && net != kNoNetAlt) || g_options.g_nIncludeNoNetEtches != 0;
}

// "%s X = %.10emm Y = %.10emm Layer = %s$%s%s Contact = %d", then the padstack's
// " PadStack = %s%s AbsoluteRotation = %.6f\n" or "\n"; texts end at a NUL as %s ends them.
void WriteNodeLine(FILE* out, const NodeRec& node, const std::string& name, int32_t bottom,
                   std::string& line) {
    const LayerRec* layer = LayerAt(node.layer);
    const char* affix = Affix().c_str();
    line.assign(name.c_str());
    line += " X = ";
    AppendExp(line, node.x * kOutputScale, 10);
    line += "mm Y = ";
    AppendExp(line, node.y * kOutputScale, 10);
    line += "mm Layer = ";
    line += LayerWord(layer);
    line += '$';
    line += affix;
    if (layer) line += LayerName(*layer).c_str();
    line += " Contact = ";
    AppendInt(line, node.contact);
    if (PadStackRec* padStack = node.pad.padStack()) {
        line += " PadStack = ";
        line += affix;
        line += padStack->name.c_str();
        if (node.layer == bottom && node.mirrored != 0) line += "_Mirrd";
        line += " AbsoluteRotation = ";
        AppendFixed(line, node.pad.rotation(), 6);
    }
    line += '\n';
    PutText(out, line);
}

// Array entries whose node number appears more than once. A node's name is its number
// followed by a suffix that starts with a non-digit, so only entries of one number can share a
// name; the names of those few are remembered, the rest print without a look-up.
std::vector<bool> RepeatedNumbers(const std::vector<NodeRec>& nodes, size_t count) {
    std::vector<bool> seen, repeated;
    for (size_t i = 0; i < count; ++i) {
        size_t id = nodes[i].id;
        if (id >= seen.size()) {
            seen.resize(std::max(id + 1, seen.size() * 2));
            repeated.resize(seen.size());
        }
        if (seen[id]) repeated[id] = true;
        seen[id] = true;
    }
    return repeated;
}

}  // namespace

void PrepareNodeWriting() {
    FixUpPadStackDrills();
    RebuildNodeIndex();
}

void WriteNodes(FILE* out) {
    PrepareNodeWriting();
    const std::vector<NodeRec>& nodes = g_model.g_aNodes;
    const size_t count = std::min(nodes.size(), g_model.g_setNodes.size());
    const std::vector<bool> repeated = RepeatedNumbers(nodes, count);
    std::unordered_set<std::string> printed;
    const int32_t bottom = LastConductorLayer();
    std::string line, name;
    for (size_t i = 0; i < count; ++i) {
        const NodeRec& node = nodes[i];
        if (node.viaRefs == 0 && node.traceRefs == 0) continue;
        if (!PrintsForNet(node.net)) continue;
        name.clear();
        AppendNodeName(name, static_cast<int32_t>(node.id), node.label, node.net);
        if (repeated[node.id] && !printed.insert(name).second) continue;
        WriteNodeLine(out, node, name, bottom, line);
    }
}
