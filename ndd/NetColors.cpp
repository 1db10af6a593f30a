#include "ndd/NetColors.h"

#include <algorithm>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"

namespace {

// The net of a log's name: the one spelt exactly so, else one that differs only in case. The
// table is sorted without case, so names that differ only in case stand side by side.
int32_t LogNetIndex(const std::string& name) {
    int32_t found = NetIndexByName(name);
    if (found < 0 || found >= g_model.g_nNetCount) return found;
    auto spelt = [&name](int32_t i) {
        return name == g_model.g_strNetNames[static_cast<size_t>(i)].name;
    };
    auto sameNoCase = [&name](int32_t i) {
        return EqualsNoCase(g_model.g_strNetNames[static_cast<size_t>(i)].name, name);
    };
    for (int32_t i = found; i >= 0 && sameNoCase(i); --i)
        if (spelt(i)) return i;
    for (int32_t i = found + 1; i < g_model.g_nNetCount && sameNoCase(i); ++i)
        if (spelt(i)) return i;
    return found;
}

}  // namespace

void AssignNetColors() {
    std::vector<int32_t>& colors = g_options.g_pNetColors;
    colors.assign(static_cast<size_t>(g_model.g_nNetCount), 0);
    for (int32_t i = 0; i < g_model.g_nNetCount; ++i) colors[static_cast<size_t>(i)] = i % 11 + 1;
    ApplyLogNetColors();
}

void ApplyLogNetColors() {
    TranslationOptions& o = g_options;
    const size_t count = std::min(o.g_lstLogNets.size(), o.g_lstLogColors.size());
    if (o.g_pNetColors.size() < static_cast<size_t>(g_model.g_nNetCount))
        o.g_pNetColors.resize(static_cast<size_t>(g_model.g_nNetCount), 0);
    for (size_t k = 0; k < count; ++k) {
        int32_t net = LogNetIndex(o.g_lstLogNets[k]);
        if (net >= 0 && net < g_model.g_nNetCount)
            o.g_pNetColors[static_cast<size_t>(net)] = NetColorIndexByName(o.g_lstLogColors[k]);
    }
}

void TakeLogNetSelection() {
    TranslationOptions& o = g_options;
    o.g_nSelectedNetCount = static_cast<int32_t>(o.g_lstLogNets.size());
    o.g_pSelectedNets.clear();
    for (const std::string& name : o.g_lstLogNets) o.g_pSelectedNets.push_back(LogNetIndex(name));
}
