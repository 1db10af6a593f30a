#include "geometry/GapStrokes.h"

#include <vector>

#include "geometry/SegmentRectangle.h"
#include "model/LayoutModel.h"

namespace {

struct Outline {
    std::vector<ShapePoint> points;
    int32_t net;
    int32_t layer;
};

bool OnPlaneLayer(const ShapeRec& s) {
    if (s.layer < 0 || s.layer >= g_model.g_nLayerCount || !g_model.g_aLayers) return false;
    const std::string* kind = g_model.g_mapLayerKind.Find(LayerName(g_model.g_aLayers[s.layer]));
    return kind && *kind == "P";
}

}  // namespace

void AddGapStrokesOnPlaneLayers(double width) {
    std::vector<Outline> outlines;
    for (const ShapeRec& s : g_model.g_aShapes) {
        // A circle's second entry is its size, not an outline point.
        if (s.geometry == kGeometryCircle || !OnPlaneLayer(s)) continue;
        auto first = g_model.g_aShapePoints.begin() + s.firstPoint;
        outlines.push_back({std::vector<ShapePoint>(first, first + s.pointCount), s.net, s.layer});
    }
    for (const Outline& o : outlines)
        for (size_t k = 0; k + 1 < o.points.size(); ++k)
            AddGapStroke(o.points[k].x, o.points[k].y, o.points[k + 1].x, o.points[k + 1].y, width,
                         o.layer, o.net);
}
