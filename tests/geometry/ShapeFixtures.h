#pragma once
// Layer tables and shapes built by hand for the geometry and shape tests.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "geometry/ShapeTable.h"
#include "model/LayoutModel.h"

namespace shape_fixtures {

// Conductor layers of the given names (kind signal), in stack order.
inline void SetUpLayers(const std::vector<std::string>& names) {
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    for (size_t i = 0; i < names.size(); ++i) {
        SetLayerName(g_model.g_aLayers[i], names[i]);
        g_model.g_aLayers[i].kind = kLayerSignal;
    }
    g_model.g_nLayerCount = static_cast<int16_t>(names.size());
}

inline int32_t AddPolygon(int32_t layer, int32_t net, int32_t polarity,
                          const std::vector<ShapePoint>& points) {
    ShapeRec rec;
    rec.layer = layer;
    rec.net = net;
    rec.polarity = polarity;
    rec.geometry = kGeometryPolygon;
    return AppendShape(rec, points);
}

inline int32_t AddCircle(int32_t layer, int32_t net, double x, double y, double r) {
    ShapeRec rec;
    rec.layer = layer;
    rec.net = net;
    rec.geometry = kGeometryCircle;
    return AppendShape(rec, {{x, y}, {r, r}});
}

// The points of shape i, as stored.
inline std::vector<ShapePoint> PointsOf(int32_t i) {
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
    auto first = g_model.g_aShapePoints.begin() + s.firstPoint;
    return std::vector<ShapePoint>(first, first + s.pointCount);
}

}  // namespace shape_fixtures

inline bool operator==(const ShapePoint& a, const ShapePoint& b) {
    return a.x == b.x && a.y == b.y;
}
