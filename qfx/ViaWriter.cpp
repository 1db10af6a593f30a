#include "qfx/ViaWriter.h"

#include <string>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/NumberText.h"

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

// "Via%s%d%s UpperNode = Node%s%d%s%s LowerNode = Node%s%d%s%s Color = %s", then
// " PadStack = %s%s AbsoluteRotation = %.6f\n" or "\n"; built in place, as a board has many.
void WriteVias(FILE* out) {
    const char* affix = Affix().c_str();
    std::string line;
    for (const ViaOutRec& v : g_model.g_aViaOut) {
        if (!g_options.g_nIncludeNoNetEtches && v.net == kNoNet) continue;
        line.assign("Via");
        line += affix;
        AppendInt(line, static_cast<int>(v.number));
        line += NetSuffix(v.net).c_str();
        line += " UpperNode = ";
        AppendNodeName(line, static_cast<int>(v.upperNode), LabelOfNode(v.upperNode), v.upperNet);
        line += " LowerNode = ";
        AppendNodeName(line, static_cast<int>(v.lowerNode), LabelOfNode(v.lowerNode), v.lowerNet);
        line += " Color = ";
        line += ViaColor(v.net);
        if (v.padStack) {
            line += " PadStack = ";
            line += affix;
            line += v.padStack->name.c_str();
            line += " AbsoluteRotation = ";
            AppendFixed(line, v.rotation, 6);
        }
        line += '\n';
        PutText(out, line);
    }
}
