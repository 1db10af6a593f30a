#include "ndd/NetColors.h"

#include <strings.h>

#include <algorithm>
#include <cstring>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

namespace {

// The net of exactly this name when the table holds names that differ only in case ("VCC"
// and "Vcc" keep their own colours); otherwise the look-up without case.
int32_t LogNetIndex(const std::string& name) {
    const int32_t found = NetIndexByName(name);
    if (found < 0 || found >= g_model.g_nNetCount) return found;
    auto sameIgnoringCase = [&](int32_t i) {
        return strcasecmp(name.c_str(), g_model.g_strNetNames[static_cast<size_t>(i)].name) == 0;
    };
    int32_t first = found, last = found;
    while (first > 0 && sameIgnoringCase(first - 1)) --first;
    while (last + 1 < g_model.g_nNetCount && sameIgnoringCase(last + 1)) ++last;
    for (int32_t i = first; i <= last; ++i)
        if (std::strcmp(name.c_str(), g_model.g_strNetNames[static_cast<size_t>(i)].name) == 0)
            return i;
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
