#include "geometry/ShapeArea.h"

#include <cmath>

#include "model/LayoutModel.h"

double SignedFanSum(const ShapePoint* points, int32_t count) {
    double sum = 0.0;
    const ShapePoint& p0 = points[0];
    for (int32_t k = 1; k + 1 < count; ++k) {
        const ShapePoint& a = points[k];
        const ShapePoint& b = points[k + 1];
        sum += (a.x - p0.x) * (b.y - p0.y) - (a.y - p0.y) * (b.x - p0.x);
    }
    return sum;
}

double ShapeArea(int32_t i) {
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
    if (s.pointCount <= 0) return 0.0;
    const ShapePoint* pts = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    if (s.geometry == kGeometryCircle) {
        if (s.pointCount < 2) return 0.0;
        double r = pts[1].x;
        return kPi * r * r;
    }
    return std::fabs(SignedFanSum(pts, s.pointCount)) * 0.5;
}
