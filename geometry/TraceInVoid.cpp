#include "geometry/TraceInVoid.h"

#include <algorithm>
#include <cmath>

#include "geometry/PointInShape.h"
#include "geometry/ShapeBoxes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"

namespace {

// Outline points closer than this to the point kept before them are left out.
constexpr double kOutlinePointTolerance = 1e-9;
// Edges of the outline parallel to the trace.
constexpr double kParallel = 1e-21;

bool Near(double a, double b) {
    return std::fabs(a - b) < kOutlinePointTolerance;
}

}  // namespace

VoidTraceTest::VoidTraceTest(int32_t shape) : shape_(shape), box_(ShapeBox(shape)) {}

bool VoidTraceTest::Hit(const ShapePoint& a, const ShapePoint& b) {
    const BoundingBox& box = box_;
    if ((a.x < box.minX && b.x < box.minX) || (a.x > box.maxX && b.x > box.maxX) ||
        (a.y < box.minY && b.y < box.minY) || (a.y > box.maxY && b.y > box.maxY))
        return false;
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape_)];
    if (s.geometry == kGeometryCircle) return CircleHit(a, b);
    return PolygonHit(a, b);
}

bool VoidTraceTest::CircleHit(const ShapePoint& a, const ShapePoint& b) const {
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape_)];
    if (s.pointCount < 2) return false;
    const ShapePoint* p = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    const double r = p[1].x;
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double sx = a.x - p[0].x, sy = a.y - p[0].y;
    const double k = sy * dx - sx * dy;
    const double dd = dx * dx + dy * dy;
    const double disc = r * r * dd - k * k;
    if (!(disc > 0.0)) return false;
    const double pr = sx * dx + sy * dy;
    const double q = std::sqrt(disc);
    return -(pr + q) / dd < 1.0 && (q - pr) / dd > 0.0;
}

// A copy of the outline without points that repeat the one before, and with runs level in y
// shrunk to their two ends. The copy is closed: a ring stored without its repeated first
// point gets it back here, so that its closing edge is an edge like the others.
void VoidTraceTest::MakeOutline() {
    outlineMade_ = true;
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape_)];
    if (s.pointCount <= 0) return;
    const ShapePoint* p = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    outline_.reserve(static_cast<size_t>(s.pointCount) + 1);
    for (int32_t k = 0; k < s.pointCount; ++k) {
        const size_t n = outline_.size();
        if (n >= 1 && Near(p[k].x, outline_[n - 1].x) && Near(p[k].y, outline_[n - 1].y)) continue;
        if (n >= 2 && Near(outline_[n - 2].y, outline_[n - 1].y) &&
            Near(outline_[n - 1].y, p[k].y) && Near(outline_[n - 2].y, p[k].y))
            outline_[n - 1] = p[k];
        else
            outline_.push_back(p[k]);
    }
    const ShapePoint first = outline_.front();
    const ShapePoint last = outline_.back();
    if (outline_.size() > 1 && !(Near(first.x, last.x) && Near(first.y, last.y)))
        outline_.push_back(first);
}

bool VoidTraceTest::PolygonHit(const ShapePoint& a, const ShapePoint& b) {
    if (!outlineMade_) MakeOutline();
    const double e = kTraceParamTolerance;
    const double dx = b.x - a.x, dy = b.y - a.y;
    params_.clear();
    for (size_t k = 0; k + 1 < outline_.size(); ++k) {
        const ShapePoint& E = outline_[k];
        const ShapePoint& F = outline_[k + 1];
        const double ex = F.x - E.x, ey = F.y - E.y;
        const double den = ex * dy - ey * dx;
        if (std::fabs(den) < kParallel) continue;
        const double u = ((E.y - a.y) * ex - (E.x - a.x) * ey) / den;
        const double v = ((E.y - a.y) * dx - (E.x - a.x) * dy) / den;
        if (u > -e && u < 1.0 + e && v > -e && v < 1.0 + e) params_.push_back(u);
    }
    params_.push_back(0.0);
    params_.push_back(1.0);
    // Sorted exactly, then values within the tolerance of the one kept before them go.
    std::sort(params_.begin(), params_.end());
    size_t kept = 0;
    for (size_t k = 1; k < params_.size(); ++k)
        if (params_[k] - params_[kept] >= e) params_[++kept] = params_[k];
    params_.resize(kept + 1);
    const int32_t count = static_cast<int32_t>(outline_.size());
    for (size_t k = 0; k + 1 < params_.size(); ++k) {
        const double t = (params_[k] + params_[k + 1]) / 2.0;
        if (PointInPolygonStrict(a.x + dx * t, a.y + dy * t, shape_, outline_.data(), count) == -1)
            return true;
    }
    return false;
}

bool TraceInVoid(int32_t trace, int32_t shape) {
    if (trace < 0 || trace >= g_model.TraceCount()) return false;
    const TraceRec& t = g_model.g_aTraces[static_cast<size_t>(trace)];
    const NodeRec* start = NodeById(t.startNode);
    const NodeRec* end = NodeById(t.endNode);
    if (!start || !end) return false;
    VoidTraceTest test(shape);
    return test.Hit(ShapePoint{start->x, start->y}, ShapePoint{end->x, end->y});
}
