#include "geometry/PointOnNetShape.h"

#include "geometry/PointInShape.h"
#include "geometry/ShapeLocator.h"
#include "geometry/ShapeTable.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

namespace {

bool CopperCounts(const ShapeRec& shape, int32_t net) {
    return shape.net == net || (net == kNoNet && g_options.g_nIncludeNoNetEtches == 0);
}

// Looks at shape i; returns true when the search ends there, with onCopper set.
bool Decide(int32_t i, double x, double y, int32_t net, bool& onCopper) {
    const ShapeRec& shape = g_model.g_aShapes[static_cast<size_t>(i)];
    const bool copper = shape.polarity == kPolarityCopper;
    if (copper && !CopperCounts(shape, net)) return false;
    if (!PointInShape(i, x, y, true)) return false;
    onCopper = copper;
    return true;
}

}  // namespace

bool PointOnNetShape(double x, double y, int32_t net, int32_t layer) {
    const ShapeRun run = FindLayerShapeRun(layer);
    bool onCopper = false;
    for (int32_t i = run.first; i < run.end; ++i)
        if (Decide(i, x, y, net, onCopper)) break;
    return onCopper;
}

bool PointOnNetShape(ShapeLocator& locator, double x, double y, int32_t net, int32_t layer) {
    bool onCopper = false;
    locator.Visit(layer, x, y, [&](int32_t i) { return Decide(i, x, y, net, onCopper); });
    return onCopper;
}
