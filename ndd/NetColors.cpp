#include "ndd/NetColors.h"

#include <algorithm>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

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
        int32_t net = NetIndexByName(o.g_lstLogNets[k]);
        if (net >= 0 && net < g_model.g_nNetCount)
            o.g_pNetColors[static_cast<size_t>(net)] = NetColorIndexByName(o.g_lstLogColors[k]);
    }
}

void TakeLogNetSelection() {
    TranslationOptions& o = g_options;
    o.g_nSelectedNetCount = static_cast<int32_t>(o.g_lstLogNets.size());
    o.g_pSelectedNets.clear();
    for (const std::string& name : o.g_lstLogNets)
        o.g_pSelectedNets.push_back(NetIndexByName(name));
}
