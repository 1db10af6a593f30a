#include "geometry/PointOnNetShape.h"

#include "app/TranslationOptions.h"
#include "geometry/PointInShape.h"
#include "geometry/ShapeTable.h"
#include "ndd/LayoutModel.h"

namespace {

bool CopperCounts(const ShapeRec& shape, int32_t net) {
    return shape.net == net || (net == kNoNet && g_options.g_nIncludeNoNetEtches == 0);
}

}  // namespace

bool PointOnNetShape(double x, double y, int32_t net, int32_t layer) {
    const ShapeRun run = FindLayerShapeRun(layer);
    for (int32_t i = run.first; i < run.end; ++i) {
        const ShapeRec& shape = g_model.g_aShapes[static_cast<size_t>(i)];
        const bool copper = shape.polarity == kPolarityCopper;
        if (copper && !CopperCounts(shape, net)) continue;
        if (PointInShape(i, x, y, true)) return copper;
    }
    return false;
}
