#include "geometry/CollinearPoints.h"

#include <cmath>

namespace {

bool OnChord(const ShapePoint& pt, const ShapePoint& p, const ShapePoint& n) {
    double cx = n.x - p.x, cy = n.y - p.y;
    double d = ((pt.x - p.x) * cy - (pt.y - p.y) * cx) / std::sqrt(cx * cx + cy * cy);
    return d > -kCollinearDistance && d < kCollinearDistance;
}

}  // namespace

int32_t RemoveCollinearPoints(ShapePoint* pts, int32_t count) {
    if (count <= 0) return count;
    // Points [0, kept) are settled; [read, count) are not looked at yet. The ring is the two
    // stretches one after the other.
    const ShapePoint last = pts[count - 1];
    int32_t kept = 0;
    for (int32_t read = 0; read < count; ++read) {
        const ShapePoint cur = pts[read];
        const ShapePoint& prev = kept > 0 ? pts[kept - 1] : (read < count - 1 ? last : cur);
        const ShapePoint& next = read + 1 < count ? pts[read + 1] : (kept > 0 ? pts[0] : cur);
        if (OnChord(cur, prev, next)) continue;
        pts[kept++] = cur;
    }
    return kept;
}
