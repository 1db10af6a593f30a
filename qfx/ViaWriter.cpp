#include "qfx/ViaWriter.h"

#include <string>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"

namespace {

// The pin label of a node id, through the id-to-index map.
const std::string& LabelOfNode(uint32_t id) {
    static const std::string none;
    const auto& index = g_model.g_aNodeIndex;
    if (id >= index.size() || index[id] >= g_model.g_aNodes.size()) return none;
    return g_model.g_aNodes[index[id]].label;
}

const char* ViaColor(int32_t net) {
    if (net == kNoNet || net == kNoNetAlt) return "red";
    const char* name = NetColorName(NetColorOf(net));
    return name ? name : "red";
}

}  // namespace

void WriteVias(FILE* out) {
    const char* affix = Affix().c_str();
    for (const ViaOutRec& v : g_model.g_aViaOut) {
        if (!g_options.g_nIncludeNoNetEtches && v.net == kNoNet) continue;
        std::fprintf(out, "Via%s%d%s UpperNode = Node%s%d%s%s LowerNode = Node%s%d%s%s Color = %s",
                     affix, static_cast<int>(v.number), NetSuffix(v.net).c_str(), affix,
                     static_cast<int>(v.upperNode),
                     PinLabelSuffix(LabelOfNode(v.upperNode)).c_str(),
                     NetSuffix(v.upperNet).c_str(), affix, static_cast<int>(v.lowerNode),
                     PinLabelSuffix(LabelOfNode(v.lowerNode)).c_str(),
                     NetSuffix(v.lowerNet).c_str(), ViaColor(v.net));
        if (v.padStack)
            std::fprintf(out, " PadStack = %s%s AbsoluteRotation = %.6f\n", affix,
                         v.padStack->name.c_str(), v.rotation);
        else
            std::fprintf(out, "\n");
    }
}
