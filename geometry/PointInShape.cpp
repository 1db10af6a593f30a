#include "geometry/PointInShape.h"

#include <algorithm>
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

// One edge's part in PolygonHolds: true when (x, y) lies on it, else inside flips when the
// ray crosses it. Edges that do not reach y (from either side, or starting level with it) play
// no part, so the answer does not depend on the order in which edges are taken.
inline bool EdgeStep(const ShapePoint* p, size_t n, size_t k, double x, double y, int& inside) {
    const ShapePoint& cur = p[k];
    const ShapePoint& nxt = p[(k + 1) % n];
    if (cur.y == y || OneSide(cur.y, nxt.y, y)) return false;
    if (nxt.y == y) {
        const ShapePoint& nn = p[(k + 2) % n];
        if (nxt.x == x) return true;
        if (nn.y == y) {
            if ((nxt.x <= x && x <= nn.x) || (nn.x <= x && x <= nxt.x)) return true;
            if (OneSide(cur.y, p[(k + 3) % n].y, y)) return false;
        } else if (OneSide(cur.y, nn.y, y)) {
            return false;
        }
        if (x > nxt.x) inside ^= 1;
        return false;
    }
    double xi = (y - cur.y) / (nxt.y - cur.y) * (nxt.x - cur.x) + cur.x;
    if (x > xi)
        inside ^= 1;
    else if (x == xi)
        return true;
    return false;
}

// The ray goes toward smaller x; a point on the outline answers 1. Exact comparisons.
int PolygonHolds(const ShapePoint* p, size_t n, double x, double y) {
    int inside = 0;
    for (size_t k = 0; k < n; ++k)
        if (EdgeStep(p, n, k, x, y, inside)) return 1;
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

namespace {

// An edge over more bands than this is kept aside and taken for every question.
constexpr int32_t kMaxBandsPerEdge = 64;

}  // namespace

int32_t PolygonBands::BandOf(double y) const {
    const double b = std::floor((y - minY_) / height_);
    if (!(b > 0)) return 0;
    if (b >= bands_ - 1) return bands_ - 1;
    return static_cast<int32_t>(b);
}

void PolygonBands::Build(int32_t shape) {
    shape_ = shape;
    usable_ = false;
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape)];
    if (s.geometry == kGeometryCircle || s.pointCount < 3) return;
    const ShapePoint* p = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    const int32_t n = s.pointCount;
    double minY = HUGE_VAL, maxY = -HUGE_VAL;
    for (int32_t k = 0; k < n; ++k) {
        if (!std::isfinite(p[k].x) || !std::isfinite(p[k].y)) return;
        minY = std::min(minY, p[k].y);
        maxY = std::max(maxY, p[k].y);
    }
    bands_ = std::max<int32_t>(1, std::min<int32_t>(n / 2, 1 << 20));
    minY_ = minY;
    height_ = (maxY - minY) / bands_;
    if (!(height_ > 0) || !std::isfinite(height_)) return;
    start_.assign(static_cast<size_t>(bands_) + 1, 0);
    tall_.clear();
    auto span = [&](int32_t k, int32_t& b0, int32_t& b1) {
        const double a = p[k].y, b = p[(k + 1) % n].y;
        b0 = BandOf(std::min(a, b));
        b1 = BandOf(std::max(a, b));
        return b1 - b0 + 1 <= kMaxBandsPerEdge;
    };
    int32_t b0, b1;
    for (int32_t k = 0; k < n; ++k)
        if (span(k, b0, b1))
            for (int32_t b = b0; b <= b1; ++b) ++start_[static_cast<size_t>(b) + 1];
    for (size_t b = 1; b < start_.size(); ++b) start_[b] += start_[b - 1];
    edges_.resize(start_.back());
    std::vector<uint32_t> fill(start_.begin(), start_.end() - 1);
    for (int32_t k = 0; k < n; ++k) {
        if (!span(k, b0, b1)) {
            tall_.push_back(k);
            continue;
        }
        for (int32_t b = b0; b <= b1; ++b) edges_[fill[static_cast<size_t>(b)]++] = k;
    }
    usable_ = true;
}

int PolygonBands::Holds(double x, double y) const {
    if (!usable_ || !std::isfinite(y)) return PointInShape(shape_, x, y, true);
    BoundingBox box = ShapeBox(shape_);
    if (x < box.minX || x > box.maxX || y < box.minY || y > box.maxY) return 0;
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape_)];
    const ShapePoint* p = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    const size_t n = static_cast<size_t>(s.pointCount);
    const int32_t band = BandOf(y);
    const int32_t* first = edges_.data() + start_[static_cast<size_t>(band)];
    const int32_t* last = edges_.data() + start_[static_cast<size_t>(band) + 1];
    // A point level with y starts an edge that reaches y; the outline is then shrunk first,
    // which the full test does.
    for (const int32_t* e = first; e != last; ++e)
        if (p[*e].y == y) return PointInShape(shape_, x, y, true);
    for (int32_t k : tall_)
        if (p[k].y == y) return PointInShape(shape_, x, y, true);
    int inside = 0;
    for (const int32_t* e = first; e != last; ++e)
        if (EdgeStep(p, n, static_cast<size_t>(*e), x, y, inside)) return 1;
    for (int32_t k : tall_)
        if (EdgeStep(p, n, static_cast<size_t>(k), x, y, inside)) return 1;
    return inside;
}
