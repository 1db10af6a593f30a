#include "qfx/Naming.h"

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/NumberText.h"

const std::string& Affix() {
    return g_options.g_strNameAffix;
}

std::string NetSuffix(int32_t net) {
    if (!g_options.g_bAppendNetName || net == kNoNet || net == kNoNetAlt) return std::string();
    const std::string& name = DisplayNetName(net);
    return name.empty() ? std::string() : "::" + name;
}

void AppendNodeName(std::string& out, int32_t id, const std::string& label, int32_t net) {
    out += "Node";
    out += Affix().c_str();
    AppendInt(out, id);
    if (!label.empty()) out.append("!!").append(label.c_str());
    out += NetSuffix(net).c_str();
}

std::string TitleVersion(const std::string& productVersion) {
    std::string out;
    for (char c : productVersion) {
        if (c == ' ') continue;
        out += c == ',' ? '.' : c;
    }
    return out;
}
