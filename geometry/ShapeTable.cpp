#include "geometry/ShapeTable.h"

#include <algorithm>

#include "model/LayoutModel.h"

int32_t AppendShape(ShapeRec shape, const std::vector<ShapePoint>& points) {
    auto& table = g_model.g_aShapePoints;
    shape.firstPoint = static_cast<int32_t>(table.size());
    shape.pointCount = static_cast<int32_t>(points.size());
    table.insert(table.end(), points.begin(), points.end());
    g_model.g_aShapes.push_back(shape);
    return static_cast<int32_t>(g_model.g_aShapes.size()) - 1;
}

ShapeRun FindLayerShapeRun(int32_t layer) {
    const auto& shapes = g_model.g_aShapes;
    auto lo = std::lower_bound(shapes.begin(), shapes.end(), layer,
                               [](const ShapeRec& s, int32_t l) { return s.layer < l; });
    auto hi = std::upper_bound(lo, shapes.end(), layer,
                               [](int32_t l, const ShapeRec& s) { return l < s.layer; });
    return ShapeRun{static_cast<int32_t>(lo - shapes.begin()),
                    static_cast<int32_t>(hi - shapes.begin())};
}
