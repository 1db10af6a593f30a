#include "model/LayerLookup.h"

#include "model/LayoutModel.h"

int16_t LayerIndexByName(const std::string& name) {
    if (!g_model.g_aLayers) return -1;
    for (int i = 0; i < g_model.g_nLayerCount; ++i) {
        const LayerRec& layer = g_model.g_aLayers[i];
        if (layer.kind != kLayerDielectric && LayerName(layer) == name)
            return static_cast<int16_t>(i);
    }
    return -1;
}

int FirstConductorLayer() {
    for (int i = 0; g_model.g_aLayers && i < g_model.g_nLayerCount; ++i)
        if (g_model.g_aLayers[i].kind != kLayerDielectric) return i;
    return 0;
}

int LastConductorLayer() {
    for (int i = g_model.g_nLayerCount - 1; g_model.g_aLayers && i >= 0; --i)
        if (g_model.g_aLayers[i].kind != kLayerDielectric) return i;
    return g_model.g_nLayerCount - 1;
}
