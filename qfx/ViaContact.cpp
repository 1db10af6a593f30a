#include "qfx/ViaContact.h"

#include <cmath>

#include "model/LayoutModel.h"
#include "model/PadRecords.h"
#include "ndd/NddTokens.h"

namespace {

constexpr double kDefaultPadRadius = 0.0001;

bool IsDielectricOrUnknown(int32_t layer) {
    return layer < 0 || layer >= g_model.g_nLayerCount ||
           g_model.g_aLayers[layer].kind == kLayerDielectric;
}

}  // namespace

int ViaContact(int32_t layer, const ViaRec& via, int32_t* shapeOut, ShapeLocator* locator) {
    *shapeOut = kNoShape;
    if (IsDielectricOrUnknown(layer)) return 0;
    const int32_t hit = FirstShapeHolding(layer, via.x, via.y, locator, [&](int32_t i) {
        return (locator ? locator->Holds(i, via.x, via.y) : PointInShape(i, via.x, via.y, true)) !=
               0;
    });
    if (hit == kNoShape) return 1;
    *shapeOut = hit;
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(hit)];
    if (s.polarity != kPolarityCopper || s.net == via.net) return 1;
    return via.net == kNoNet ? 1 : 0;
}

double ViaPadRadius(const ViaRec& via, int32_t layer) {
    if (!via.padStack || layer < 0 || layer >= g_model.g_nLayerCount) return kDefaultPadRadius;
    const std::string name = LayerName(g_model.g_aLayers[layer]);
    for (const PadEntry& entry : via.padStack->entries) {
        if (!EqualsNoCase(entry.layerName, name)) continue;
        const PadDefRec* pad = entry.regular.get();
        if (!pad) return 0.0;
        if (pad->shapeName == "POLYGON" || pad->shapeName == "POLY") {
            if (pad->points.empty()) return 0.0;
            double sum = 0.0;
            for (const auto& p : pad->points) sum += std::fabs(p.first);
            return sum / static_cast<double>(pad->points.size());
        }
        return pad->width * 0.5;
    }
    return kDefaultPadRadius;
}
