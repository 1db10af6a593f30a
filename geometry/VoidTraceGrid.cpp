#include "geometry/VoidTraceGrid.h"

#include <algorithm>
#include <cmath>

namespace {

// A trace that crosses a cell border this close to a grid line of the other axis enters the
// cell on the far side of that line too, so that no search can miss it.
constexpr double kGridLineSlack = 1e-9;

// The truncated quotient (v - min) / size, held to [0, 15]; the far edge itself gives 16,
// which counts as 15.
int32_t Index(double v, double min, double size) {
    double q = std::floor((v - min) / size);
    if (!(q >= 0.0)) return 0;
    if (q >= VoidTraceGrid::kSide - 1) return VoidTraceGrid::kSide - 1;
    return static_cast<int32_t>(q);
}

}  // namespace

bool VoidTraceGrid::Build(const std::vector<TraceEnds>& traces,
                          const std::vector<uint32_t>& values) {
    for (auto& cell : cells_) cell.clear();
    bool any = false;
    for (const TraceEnds& t : traces) {
        if (!t.known) continue;
        for (const ShapePoint& p : {t.a, t.b}) {
            if (!any) box_ = BoundingBox{p.x, p.y, p.x, p.y};
            box_.minX = std::min(box_.minX, p.x);
            box_.minY = std::min(box_.minY, p.y);
            box_.maxX = std::max(box_.maxX, p.x);
            box_.maxY = std::max(box_.maxY, p.y);
            any = true;
        }
    }
    if (!any) return false;
    cellW_ = (box_.maxX - box_.minX) / kSide;
    cellH_ = (box_.maxY - box_.minY) / kSide;
    if (cellW_ == 0.0 || cellH_ == 0.0 || !std::isfinite(cellW_) || !std::isfinite(cellH_))
        return false;
    for (size_t k = 0; k < traces.size(); ++k)
        if (traces[k].known) Enter(values[k], traces[k]);
    return true;
}

bool VoidTraceGrid::Overlaps(const BoundingBox& b) const {
    return !(b.maxX < box_.minX || b.minX > box_.maxX || b.maxY < box_.minY || b.minY > box_.maxY);
}

void VoidTraceGrid::Enter(uint32_t value, const TraceEnds& t) {
    const double dx = t.b.x - t.a.x, dy = t.b.y - t.a.y;
    if (std::fabs(dy) * cellW_ < std::fabs(dx) * cellH_)
        Walk(value, t.a, t.b, true);
    else
        Walk(value, ShapePoint{t.a.y, t.a.x}, ShapePoint{t.b.y, t.b.x}, false);
}

// Walks from the end with the smaller walking coordinate (x of p and q), one column of the
// walking axis at a time; in each column the trace enters the cells between where it comes in
// and where it leaves. With alongX false, x and y of p and q are swapped.
void VoidTraceGrid::Walk(uint32_t value, ShapePoint p, ShapePoint q, bool alongX) {
    if (q.x < p.x) std::swap(p, q);
    const double minU = alongX ? box_.minX : box_.minY;
    const double minV = alongX ? box_.minY : box_.minX;
    const double cellU = alongX ? cellW_ : cellH_;
    const double cellV = alongX ? cellH_ : cellW_;
    const double slope = q.x > p.x ? (q.y - p.y) / (q.x - p.x) : 0.0;
    const int32_t first = Index(p.x, minU, cellU), last = Index(q.x, minU, cellU);
    for (int32_t i = first; i <= last; ++i) {
        const double us = i == first ? p.x : minU + i * cellU;
        const double ue = i == last ? q.x : minU + (i + 1) * cellU;
        const double vs = i == first ? p.y : p.y + (us - p.x) * slope;
        const double ve = i == last ? q.y : p.y + (ue - p.x) * slope;
        const double lo = std::min(vs, ve), hi = std::max(vs, ve);
        int32_t j0 = Index(lo, minV, cellV), j1 = Index(hi, minV, cellV);
        if (j0 > 0 && lo - (minV + j0 * cellV) < kGridLineSlack) --j0;
        if (j1 < kSide - 1 && minV + (j1 + 1) * cellV - hi < kGridLineSlack) ++j1;
        for (int32_t j = j0; j <= j1; ++j) {
            const int32_t row = alongX ? j : i, col = alongX ? i : j;
            cells_[static_cast<size_t>(row * kSide + col)].push_back(value);
        }
    }
}

VoidTraceGrid::CellRange VoidTraceGrid::Range(const BoundingBox& b) const {
    // From the cell of the low side to the cell of the high side; a high side on a grid line,
    // or just above it, only touches the cell above and leaves it out.
    auto range = [](double lo, double hi, double min, double size, int32_t& a, int32_t& z) {
        a = Index(lo, min, size);
        double q = std::floor((hi - min) / size);
        if (!(q >= 0.0)) q = 0.0;
        if (q <= kSide && hi - (min + q * size) < kGridLineSlack) q -= 1.0;
        z = q >= kSide - 1 ? kSide - 1 : static_cast<int32_t>(std::max(q, 0.0));
        if (z < a) z = a;
    };
    CellRange r;
    range(b.minY, b.maxY, box_.minY, cellH_, r.row0, r.row1);
    range(b.minX, b.maxX, box_.minX, cellW_, r.col0, r.col1);
    return r;
}
