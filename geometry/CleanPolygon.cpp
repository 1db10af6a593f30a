#include "geometry/CleanPolygon.h"

#include <cmath>
#include <memory>
#include <vector>

#include "geometry/CollinearPoints.h"
#include "geometry/EdgesOverlap.h"
#include "geometry/PointInShape.h"
#include "geometry/SlitCandidates.h"
#include "model/LayoutModel.h"

namespace {

ShapePoint* PointsOf(int32_t i) {
    return &g_model.g_aShapePoints[static_cast<size_t>(g_model.g_aShapes[i].firstPoint)];
}

bool SamePlace(const ShapePoint& p, const ShapePoint& q) {
    return std::fabs(p.x - q.x) < kSlitJoinTolerance && std::fabs(p.y - q.y) < kSlitJoinTolerance;
}

// Below this many points every edge is simply tried.
constexpr int32_t kIndexedRing = 32;

// One shape being cleaned; the pieces it splits off are cleaned before it goes on.
struct Frame {
    int32_t shape;
    int32_t a;
    std::unique_ptr<SlitCandidates> index;  // made on demand, kept up to date through each cut
};

// The first edge b above a that runs on a's line over a shared stretch, or -1.
int32_t FindSlitPartner(Frame& f, std::vector<int32_t>& near) {
    const int32_t count = g_model.g_aShapes[static_cast<size_t>(f.shape)].pointCount;
    const ShapePoint* p = PointsOf(f.shape);
    if (count >= kIndexedRing) {
        if (!f.index) {
            f.index = std::make_unique<SlitCandidates>();
            f.index->Build(p, count);
        }
        if (f.index->Near(p, f.a, near)) {
            // The closing edge ends at the first point, which a cut at a = 0 may have moved.
            if (count - 1 > f.a && (near.empty() || near.back() != count - 1))
                near.push_back(count - 1);
            for (int32_t b : near)
                if (EdgesOverlap(p, f.a, b, count) == 0) return b;
            return -1;
        }
    }
    for (int32_t b = f.a + 1; b < count; ++b)
        if (EdgesOverlap(p, f.a, b, count) == 0) return b;
    return -1;
}

// Cuts the ring of shape i between edges a and b: the points a+1 .. b (less a joined end) leave
// the parent and become a new shape placed directly behind the parent's shortened points.
// Returns the new shape's index; u tells whether the point at a went too.
int32_t SplitSlit(int32_t i, int32_t a, int32_t b, int32_t& u) {
    ShapePoint* p = PointsOf(i);
    const int32_t count = g_model.g_aShapes[static_cast<size_t>(i)].pointCount;
    int32_t t = SamePlace(p[a + 1], p[b]) ? 1 : 0;
    int32_t pieceCount = b - t - a;
    std::vector<ShapePoint> piece(p + a + 1, p + a + 1 + pieceCount);
    int32_t after = b + 1 == count ? 0 : b + 1;
    u = SamePlace(p[a], p[after]) ? 1 : 0;
    int32_t parentCount = count + a - u - b;
    if (after != 0)
        for (int32_t k = b + 1; k < count; ++k) p[a + 1 - u + (k - b - 1)] = p[k];
    for (int32_t k = 0; k < pieceCount; ++k) p[parentCount + k] = piece[static_cast<size_t>(k)];

    ShapeRec& parent = g_model.g_aShapes[static_cast<size_t>(i)];
    parent.pointCount = parentCount;
    ShapeRec rec;
    rec.geometry = kGeometryPolygon;
    rec.layer = parent.layer;
    rec.net = parent.net;
    rec.undiscardable = 0;
    rec.discarded = 0;
    rec.firstPoint = parent.firstPoint + parentCount;
    rec.pointCount = pieceCount;
    const ShapePoint& probe = piece[pieceCount > 1 ? 1 : 0];
    int32_t parentPolarity = parent.polarity;
    if (PointInShape(i, probe.x, probe.y, false))
        rec.polarity = parentPolarity == kPolarityCopper ? kPolarityVoid : kPolarityCopper;
    else
        rec.polarity = parentPolarity;
    g_model.g_aShapes.push_back(rec);
    return static_cast<int32_t>(g_model.g_aShapes.size()) - 1;
}

// Removes the collinear points of shape i; false when too few points are left to go on.
bool StartFrame(int32_t i) {
    ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
    if (s.geometry == kGeometryCircle || s.pointCount < 3) return false;
    s.pointCount = RemoveCollinearPoints(PointsOf(i), s.pointCount);
    return s.pointCount > 2;
}

}  // namespace

void CleanPolygon(int32_t i) {
    if (i < 0 || static_cast<size_t>(i) >= g_model.g_aShapes.size()) return;
    if (!StartFrame(i)) return;
    // The pieces split off are cleaned at once, as a recursion would, with a stack of our own
    // so that deeply nested slits cannot exhaust the call stack.
    std::vector<Frame> stack;
    stack.push_back({i, 0, nullptr});
    std::vector<int32_t> near;
    while (!stack.empty()) {
        Frame& f = stack.back();
        int32_t b = -1;
        while (f.a < g_model.g_aShapes[static_cast<size_t>(f.shape)].pointCount - 1) {
            b = FindSlitPartner(f, near);
            if (b >= 0) break;
            ++f.a;
        }
        if (b < 0) {
            stack.pop_back();
            continue;
        }
        int32_t u = 0;
        int32_t piece = SplitSlit(f.shape, f.a, b, u);
        if (f.index) f.index->OnCut(f.a, b, u);
        if (StartFrame(piece)) stack.push_back({piece, 0, nullptr});
    }
}
