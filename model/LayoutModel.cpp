#include "model/LayoutModel.h"

#include <cstring>

LayoutModel g_model;

void ResetLayoutModel() {
    g_model = LayoutModel{};
}

std::string LayerName(const LayerRec& layer) {
    return std::string(layer.name, strnlen(layer.name, kLayerNameBytes));
}

void SetLayerName(LayerRec& layer, const std::string& name) {
    std::memset(layer.name, 0, sizeof layer.name);
    std::memcpy(layer.name, name.data(), std::min<size_t>(name.size(), kLayerNameBytes));
}

const std::string& DisplayNetName(int32_t net) {
    static const std::string empty;
    if (net < 0 || net >= static_cast<int32_t>(g_model.g_strDisplayNetNames.size())) return empty;
    return g_model.g_strDisplayNetNames[static_cast<size_t>(net)];
}

std::string PlainNetName(int32_t net) {
    if (net < 0 || net >= static_cast<int32_t>(g_model.g_strNetNames.size())) return std::string();
    return g_model.g_strNetNames[static_cast<size_t>(net)].name;
}
