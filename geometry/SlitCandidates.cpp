#include "geometry/SlitCandidates.h"

#include <algorithm>
#include <cmath>

#include "geometry/EdgesOverlap.h"

namespace {

// An edge whose box covers more cells than this is kept aside and tried for every search.
constexpr int kMaxCellsPerEdge = 16;

int CellOf(double v, double min, double cell, int limit) {
    double f = std::floor((v - min) / cell);
    if (!(f > 0)) return 0;
    if (f >= limit - 1) return limit - 1;
    return static_cast<int>(f);
}

}  // namespace

SlitCandidates::Span SlitCandidates::SpanOf(double x0, double y0, double x1, double y1) const {
    return Span{CellOf(std::min(x0, x1), minX_, cell_, cols_),
                CellOf(std::max(x0, x1), minX_, cell_, cols_),
                CellOf(std::min(y0, y1), minY_, cell_, rows_),
                CellOf(std::max(y0, y1), minY_, cell_, rows_)};
}

void SlitCandidates::Build(const ShapePoint* points, int32_t count) {
    n_ = count;
    usable_ = false;
    items_.clear();
    wide_.clear();
    // Points that are no finite number end no edge that can overlap another; they stay out of
    // the box.
    double minX = HUGE_VAL, maxX = -HUGE_VAL, minY = HUGE_VAL, maxY = -HUGE_VAL;
    for (int32_t k = 0; k < count; ++k) {
        if (!std::isfinite(points[k].x) || !std::isfinite(points[k].y)) continue;
        minX = std::min(minX, points[k].x);
        maxX = std::max(maxX, points[k].x);
        minY = std::min(minY, points[k].y);
        maxY = std::max(maxY, points[k].y);
    }
    const double side = std::floor(std::sqrt(static_cast<double>(count))) + 1;
    cell_ = std::max(maxX - minX, maxY - minY) / side;
    if (!(cell_ > 0) || !std::isfinite(cell_) || !std::isfinite(minX) || !std::isfinite(minY))
        return;
    minX_ = minX;
    minY_ = minY;
    cols_ = static_cast<int>(std::floor((maxX - minX) / cell_)) + 1;
    rows_ = static_cast<int>(std::floor((maxY - minY) / cell_)) + 1;
    std::vector<Span> spans(static_cast<size_t>(count));
    start_.assign(static_cast<size_t>(cols_) * rows_ + 1, 0);
    for (int32_t k = 0; k < count; ++k) {
        const ShapePoint& a = points[k];
        const ShapePoint& b = points[(k + 1) % count];
        Span s = SpanOf(a.x, a.y, b.x, b.y);
        spans[static_cast<size_t>(k)] = s;
        if ((s.c1 - s.c0 + 1) * (s.r1 - s.r0 + 1) > kMaxCellsPerEdge) continue;
        for (int r = s.r0; r <= s.r1; ++r)
            for (int c = s.c0; c <= s.c1; ++c) ++start_[static_cast<size_t>(r) * cols_ + c + 1];
    }
    for (size_t c = 1; c < start_.size(); ++c) start_[c] += start_[c - 1];
    items_.resize(start_.back());
    std::vector<uint32_t> fill(start_.begin(), start_.end() - 1);
    for (int32_t k = 0; k < count; ++k) {
        const Span& s = spans[static_cast<size_t>(k)];
        if ((s.c1 - s.c0 + 1) * (s.r1 - s.r0 + 1) > kMaxCellsPerEdge) {
            wide_.push_back(k);
            continue;
        }
        for (int r = s.r0; r <= s.r1; ++r)
            for (int c = s.c0; c <= s.c1; ++c)
                items_[fill[static_cast<size_t>(r) * cols_ + c]++] = k;
    }
    now_.resize(static_cast<size_t>(count));
    builtAt_.resize(static_cast<size_t>(count));
    for (int32_t k = 0; k < count; ++k)
        now_[static_cast<size_t>(k)] = builtAt_[static_cast<size_t>(k)] = k;
    usable_ = true;
}

void SlitCandidates::OnCut(int32_t a, int32_t b, int32_t u) {
    if (!usable_) return;
    for (int32_t k = a + 1 - u; k <= b; ++k)
        now_[static_cast<size_t>(builtAt_[static_cast<size_t>(k)])] = -1;
    const int32_t shift = b - a + u;
    for (int32_t k = b + 1; k < n_; ++k) {
        int32_t id = builtAt_[static_cast<size_t>(k)];
        builtAt_[static_cast<size_t>(k - shift)] = id;
        now_[static_cast<size_t>(id)] = k - shift;
    }
    n_ -= shift;
}

void SlitCandidates::Add(int32_t entry, int32_t a, std::vector<int32_t>& out) const {
    int32_t k = now_[static_cast<size_t>(entry)];
    if (k > a) out.push_back(k);
}

bool SlitCandidates::Near(const ShapePoint* p, int32_t a, std::vector<int32_t>& out) const {
    out.clear();
    const ShapePoint& A = p[a];
    const ShapePoint& B = p[(a + 1) % n_];
    double len = std::sqrt((B.x - A.x) * (B.x - A.x) + (B.y - A.y) * (B.y - A.y));
    // An edge of length 0, or one with an end that is no finite number, overlaps nothing.
    if (len == 0 || !std::isfinite(len)) return true;
    // A partner lies within kEdgeOverlapCross / len of edge a's line, across it, over edge a's
    // own stretch; twice that with some slack for rounding bounds the search.
    double reach = 2 * kEdgeOverlapCross / len + 1e-9 +
                   1e-12 * (std::fabs(A.x) + std::fabs(A.y) + std::fabs(B.x) + std::fabs(B.y));
    if (!usable_ || !(reach < 4 * cell_)) return false;
    Span s = SpanOf(std::min(A.x, B.x) - reach, std::min(A.y, B.y) - reach,
                    std::max(A.x, B.x) + reach, std::max(A.y, B.y) + reach);
    for (int r = s.r0; r <= s.r1; ++r)
        for (int c = s.c0; c <= s.c1; ++c) {
            size_t cell = static_cast<size_t>(r) * cols_ + c;
            for (uint32_t k = start_[cell]; k < start_[cell + 1]; ++k) Add(items_[k], a, out);
        }
    for (int32_t k : wide_) Add(k, a, out);
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    return true;
}
