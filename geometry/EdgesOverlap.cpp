#include "geometry/EdgesOverlap.h"

#include <algorithm>
#include <cmath>

int EdgesOverlap(const ShapePoint* p, int32_t a, int32_t b, int32_t count) {
    int32_t lo = std::min(a, b), hi = std::max(a, b);
    if (lo < 0 || hi >= count || lo == hi) return -1;
    if (lo + 1 == hi || (lo == 0 && hi == count - 1)) return -1;
    const ShapePoint& A = p[lo];
    const ShapePoint& B = p[lo + 1];
    const ShapePoint& Q = p[(hi + 1) % count];
    const ShapePoint& R = p[hi];
    double dx = B.x - A.x, dy = B.y - A.y;
    double crossQ = (Q.x - A.x) * dy - (Q.y - A.y) * dx;
    double crossR = (R.x - A.x) * dy - (R.y - A.y) * dx;
    if (!(std::fabs(crossQ) < kEdgeOverlapCross) || !(std::fabs(crossR) < kEdgeOverlapCross))
        return -1;
    if (!(std::fabs(crossR) / std::sqrt(dx * dx + dy * dy) < kEdgeOverlapDistance)) return -1;
    double tR, tQ;
    if (std::fabs(dx) > std::fabs(dy)) {
        tR = (R.x - A.x) / dx;
        tQ = (Q.x - A.x) / dx;
    } else {
        tR = (R.y - A.y) / dy;
        tQ = (Q.y - A.y) / dy;
    }
    if (tR > 0 && tR < 1) return 0;
    if (tR >= 1 && tQ >= 1) return -1;
    if (tQ > 0) return 0;
    if (tR <= 0) return -1;
    return 0;
}
