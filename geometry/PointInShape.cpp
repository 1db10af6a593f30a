#include "geometry/PointInShape.h"

#include <cmath>
#include <vector>

#include "geometry/ShapeBoxes.h"
#include "model/LayoutModel.h"

namespace {

bool OneSide(double a, double b, double y) {
    return (a < y && b < y) || (a > y && b > y);
}

bool OneSideBeyond(double a, double b, double y, double e) {
    return (a - y < -e && b - y < -e) || (a - y > e && b - y > e);
}

// The outline with every run of points level with y shrunk to its two ends.
std::vector<ShapePoint> LevelRunsShrunk(const ShapePoint* pts, int32_t count, double y) {
    std::vector<ShapePoint> copy;
    copy.reserve(static_cast<size_t>(count));
    for (int32_t k = 0; k < count; ++k) {
        size_t n = copy.size();
        if (n >= 2 && pts[k].y == y && copy[n - 1].y == y && copy[n - 2].y == y)
            copy[n - 1] = pts[k];
        else
            copy.push_back(pts[k]);
    }
    return copy;
}

int CircleHolds(const ShapePoint* pts, int32_t count, double x, double y) {
    if (count < 2) return 0;
    double dx = x - pts[0].x, dy = y - pts[0].y;
    return std::sqrt(dx * dx + dy * dy) <= pts[1].x ? 1 : 0;
}

// The ray goes toward smaller x; a point on the outline answers 1. Exact comparisons.
int PolygonHolds(const ShapePoint* p, size_t n, double x, double y) {
    int inside = 0;
    for (size_t k = 0; k < n; ++k) {
        const ShapePoint& cur = p[k];
        const ShapePoint& nxt = p[(k + 1) % n];
        const ShapePoint& nn = p[(k + 2) % n];
        const ShapePoint& n3 = p[(k + 3) % n];
        if (cur.y == y || OneSide(cur.y, nxt.y, y)) continue;
        if (nxt.y == y) {
            if (nxt.x == x) return 1;
            if (nn.y == y) {
                if ((nxt.x <= x && x <= nn.x) || (nn.x <= x && x <= nxt.x)) return 1;
                if (OneSide(cur.y, n3.y, y)) continue;
            } else if (OneSide(cur.y, nn.y, y)) {
                continue;
            }
            if (x > nxt.x) inside ^= 1;
            continue;
        }
        double xi = (y - cur.y) / (nxt.y - cur.y) * (nxt.x - cur.x) + cur.x;
        if (x > xi)
            inside ^= 1;
        else if (x == xi)
            return 1;
    }
    return inside;
}

}  // namespace

int PointInShape(int32_t i, double x, double y, bool useBox) {
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
    if (useBox) {
        BoundingBox b = ShapeBox(i);
        if (x < b.minX || x > b.maxX || y < b.minY || y > b.maxY) return 0;
    }
    if (s.pointCount <= 0) return 0;
    const ShapePoint* pts = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    if (s.geometry == kGeometryCircle) return CircleHolds(pts, s.pointCount, x, y);
    if (s.pointCount < 3) return 0;
    // Only points level with the query can shrink the outline; without any, it stands as is.
    bool level = false;
    for (int32_t k = 0; k < s.pointCount && !level; ++k) level = pts[k].y == y;
    if (!level) return PolygonHolds(pts, static_cast<size_t>(s.pointCount), x, y);
    std::vector<ShapePoint> copy = LevelRunsShrunk(pts, s.pointCount, y);
    if (copy.size() < 3) return 0;
    return PolygonHolds(copy.data(), copy.size(), x, y);
}

int PointInPolygonStrict(double x, double y, int32_t i, const ShapePoint* p, int32_t count) {
    const double e = kStrictPointTolerance;
    if (count <= 0) return 1;
    BoundingBox b = ShapeBox(i);
    if (x < b.minX - e || x > b.maxX + e || y < b.minY - e || y > b.maxY + e) return 1;
    const size_t n = static_cast<size_t>(count);
    int inside = 0;
    for (size_t k = 0; k < n; ++k) {
        const ShapePoint& cur = p[k];
        const ShapePoint& nxt = p[(k + 1) % n];
        const ShapePoint& nn = p[(k + 2) % n];
        const ShapePoint& n3 = p[(k + 3) % n];
        double dy = cur.y - y;
        if (std::fabs(dy) < e) {
            if (std::fabs(cur.x - x) < e) return 0;
            continue;
        }
        if (OneSideBeyond(cur.y, nxt.y, y, e)) continue;
        if (std::fabs(nxt.y - y) < e) {
            if (std::fabs(x - nxt.x) < e) return 0;
            if (std::fabs(nn.y - y) < e) {
                double lo = std::fmin(nxt.x, nn.x), hi = std::fmax(nxt.x, nn.x);
                if (x >= lo - e && x <= hi + e) return 0;
                if (OneSideBeyond(cur.y, n3.y, y, e)) continue;
            } else if (OneSideBeyond(cur.y, nn.y, y, e)) {
                continue;
            }
            if (x - nxt.x > e) inside ^= 1;
            continue;
        }
        double xi = (y - cur.y) / (nxt.y - cur.y) * (nxt.x - cur.x) + cur.x;
        double d = xi - x;
        if (d < -e)
            inside ^= 1;
        else if (d <= e)
            return 0;
    }
    return inside ? -1 : 1;
}
