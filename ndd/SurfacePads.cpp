#include "ndd/SurfacePads.h"

#include <vector>

#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

namespace {

bool IsSurfaceWord(const std::string& word) {
    return EqualsNoCase(word, "%toppad") || EqualsNoCase(word, "%bottompad");
}

}  // namespace

void SpreadSurfacePads() {
    base::StringMap<PadStackRec*> surface;
    for (const ViaRec& via : g_model.g_aVias) {
        PadStackRec* stack = via.padStack;
        if (!stack || stack->entries.size() != 1 || !IsSurfaceWord(stack->entries[0].strLibLayer))
            continue;
        surface.Set(stack->name, stack);
    }
    surface.ForEach([](const std::string&, PadStackRec* stack) {
        const PadEntry first = stack->entries[0];
        for (int i = 0; i < g_model.g_nLayerCount; ++i) {
            const LayerRec& layer = g_model.g_aLayers[i];
            if (layer.kind == kLayerDielectric) continue;
            PadEntry copy = first;
            copy.layerName = LayerName(layer);
            stack->entries.push_back(copy);
        }
    });
}
