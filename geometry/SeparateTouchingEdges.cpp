#include "geometry/SeparateTouchingEdges.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "geometry/RasterizeEdge.h"
#include "geometry/ShapeArea.h"
#include "model/LayoutModel.h"

namespace {

constexpr int kCellCount = kGridCells * kGridCells;

struct EdgeRef {
    int32_t shape;
    int32_t edge;
};

struct CellGrid {
    std::vector<uint32_t> start;  // kCellCount + 1 offsets into refs
    std::vector<EdgeRef> refs;    // by cell, in the order the edges were entered
};

bool LayerHasGrid(int32_t layer) {
    if (layer < 0 || layer >= g_model.g_nLayerCount || !g_model.g_aLayers) return false;
    const LayerRec& L = g_model.g_aLayers[layer];
    return L.gridX != 0 && L.gridY != 0;
}

bool TakesPart(const ShapeRec& s) {
    return s.geometry != kGeometryCircle && s.pointCount >= 3 && LayerHasGrid(s.layer);
}

const ShapePoint& Point(const ShapeRec& s, int32_t k) {
    return g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint + k % s.pointCount)];
}

// Calls f(cell, ref) for every cell that every taking-part edge crosses, shapes and edges in
// order.
template <class F>
void ForEachEdgeCell(F&& f) {
    std::vector<int32_t> cells;
    const auto& shapes = g_model.g_aShapes;
    for (int32_t i = 0; i < static_cast<int32_t>(shapes.size()); ++i) {
        const ShapeRec& s = shapes[static_cast<size_t>(i)];
        if (!TakesPart(s)) continue;
        for (int32_t k = 0; k < s.pointCount; ++k) {
            const ShapePoint& a = Point(s, k);
            const ShapePoint& b = Point(s, k + 1);
            RasterizeEdge(a.x, a.y, b.x, b.y, s.layer, cells);
            for (int32_t c : cells) f(c, EdgeRef{i, k});
        }
    }
}

// Two walks over the edges, one to count each cell's entries and one to place them: a list of
// all placements before the grid would take more room than the grid itself, and this pass
// runs again when the board's other tables are at their largest.
CellGrid BuildGrid() {
    CellGrid grid;
    grid.start.assign(kCellCount + 1, 0);
    ForEachEdgeCell([&](int32_t cell, EdgeRef) { ++grid.start[static_cast<size_t>(cell) + 1]; });
    for (int c = 0; c < kCellCount; ++c) grid.start[c + 1] += grid.start[c];
    grid.refs.resize(grid.start[kCellCount]);
    std::vector<uint32_t> fill(grid.start.begin(), grid.start.end() - 1);
    ForEachEdgeCell(
        [&](int32_t cell, EdgeRef ref) { grid.refs[fill[static_cast<size_t>(cell)]++] = ref; });
    return grid;
}

double Cross(double ax, double ay, double bx, double by) {
    return ax * by - ay * bx;
}

// Do edge e (A->B) and edge f (C->D) lie on one line and share a stretch?
bool EdgesTouch(const ShapePoint& A, const ShapePoint& B, const ShapePoint& C,
                const ShapePoint& D) {
    double dx = B.x - A.x, dy = B.y - A.y;
    double c1 = Cross(D.x - A.x, D.y - A.y, dx, dy);
    double c2 = Cross(C.x - A.x, C.y - A.y, dx, dy);
    if (!(c1 > -kTouchingEdgeCross && c1 < kTouchingEdgeCross)) return false;
    if (!(c2 > -kTouchingEdgeCross && c2 < kTouchingEdgeCross)) return false;
    double s, t;
    if (std::fabs(dx) > std::fabs(dy)) {
        s = (C.x - A.x) / dx;
        t = (D.x - A.x) / dx;
    } else {
        s = (C.y - A.y) / dy;
        t = (D.y - A.y) / dy;
    }
    if (s > 0 && s < 1) return true;
    if ((s >= 1 && t >= 1) || (s <= 0 && t <= 0)) return false;
    return true;
}

void MarkPair(const EdgeRef& e, const EdgeRef& f, std::vector<uint8_t>& marks) {
    if (e.shape == f.shape) return;
    const ShapeRec& se = g_model.g_aShapes[static_cast<size_t>(e.shape)];
    const ShapeRec& sf = g_model.g_aShapes[static_cast<size_t>(f.shape)];
    if (se.polarity == kPolarityVoid && sf.polarity == kPolarityVoid) return;
    if (se.net == sf.net && se.polarity == sf.polarity) return;
    if (se.layer != sf.layer) return;
    uint8_t& me = marks[static_cast<size_t>(se.firstPoint + e.edge)];
    uint8_t& mf = marks[static_cast<size_t>(sf.firstPoint + f.edge)];
    if (me && mf) return;
    if (EdgesTouch(Point(se, e.edge), Point(se, e.edge + 1), Point(sf, f.edge),
                   Point(sf, f.edge + 1)))
        me = mf = 1;
}

void MarkTouchingEdges(const CellGrid& grid, std::vector<uint8_t>& marks) {
    for (int c = 0; c < kCellCount; ++c) {
        uint32_t lo = grid.start[c], hi = grid.start[c + 1];
        for (uint32_t e = lo; e + 1 < hi; ++e)
            for (uint32_t f = e + 1; f < hi; ++f) MarkPair(grid.refs[e], grid.refs[f], marks);
    }
}

// Where the line through o along u meets the line through p along w: the parameter along w.
// False when the two are parallel.
bool MeetAlong(const ShapePoint& o, double ux, double uy, const ShapePoint& p, double wx, double wy,
               double& param) {
    double den = wx * uy - wy * ux;
    if (den > -kParallelDenominator && den < kParallelDenominator) return false;
    param = ((o.x - p.x) * uy - (o.y - p.y) * ux) / den;
    return true;
}

// One polygon's walk over its marked edges. Points and marks move together when an edge that
// has turned over takes a point away.
class EdgeMover {
  public:
    EdgeMover(ShapeRec& shape, std::vector<uint8_t>& marks)
        : s_(shape),
          p_(&g_model.g_aShapePoints[static_cast<size_t>(shape.firstPoint)]),
          m_(&marks[static_cast<size_t>(shape.firstPoint)]),
          n_(shape.pointCount) {}

    void Run() {
        double area = SignedFanSum(p_, n_);
        double off = area > 0 ? kTouchingEdgeMove : -kTouchingEdgeMove;
        for (int32_t k = 0; k < n_ && n_ >= 3; ++k)
            if (m_[k]) k = MoveEdge(k, off);
        s_.pointCount = n_;
    }

  private:
    // Moves edge k; returns the index the walk goes on from.
    int32_t MoveEdge(int32_t k, double off) {
        int32_t kb = (k + 1) % n_, kp = (k + n_ - 1) % n_, kn = (k + 2) % n_;
        const ShapePoint A = p_[k], B = p_[kb], prev = p_[kp], nn = p_[kn];
        double ux = B.x - A.x, uy = B.y - A.y;
        double len = std::sqrt(ux * ux + uy * uy);
        if (!(len >= kShortestMovedEdge)) return k;
        ux /= len;
        uy /= len;
        double wx = A.x - prev.x, wy = A.y - prev.y;  // prev -> A
        double vx = nn.x - B.x, vy = nn.y - B.y;      // B -> nn
        ShapePoint O{A.x - off * uy, A.y + off * ux};
        double s, r;
        if (!MeetAlong(O, ux, uy, prev, wx, wy, s)) return k;
        if (s <= 0) {
            off = Reach(A, ux, uy, {(prev.x + A.x) / 2, (prev.y + A.y) / 2});
            O = {A.x - off * uy, A.y + off * ux};
            MeetAlong(O, ux, uy, prev, wx, wy, s);
        }
        if (!MeetAlong(O, ux, uy, B, vx, vy, r)) return k;
        if (r >= 1) {
            off = Reach(A, ux, uy, {(B.x + nn.x) / 2, (B.y + nn.y) / 2});
            O = {A.x - off * uy, A.y + off * ux};
            MeetAlong(O, ux, uy, prev, wx, wy, s);
            MeetAlong(O, ux, uy, B, vx, vy, r);
        }
        ShapePoint a2{prev.x + s * wx, prev.y + s * wy};
        ShapePoint b2{B.x + r * vx, B.y + r * vy};
        double t1 = (a2.x - O.x) * ux + (a2.y - O.y) * uy;
        double t2 = (b2.x - O.x) * ux + (b2.y - O.y) * uy;
        if (t1 <= t2) {
            p_[k] = a2;
            p_[kb] = b2;
            return k;
        }
        return TurnOver(k, kb, prev, wx, wy, B, vx, vy);
    }

    // The moved edge has turned over: its end becomes the meeting point of the neighbouring
    // edges' lines and its start goes.
    int32_t TurnOver(int32_t k, int32_t kb, const ShapePoint& prev, double wx, double wy,
                     const ShapePoint& B, double vx, double vy) {
        double q;
        double vlen = std::sqrt(vx * vx + vy * vy);
        if (!(vlen > 0) || !MeetAlong(B, vx / vlen, vy / vlen, prev, wx, wy, q)) return k;
        p_[kb] = {prev.x + q * wx, prev.y + q * wy};
        for (int32_t j = k; j + 1 < n_; ++j) {
            p_[j] = p_[j + 1];
            m_[j] = m_[j + 1];
        }
        m_[n_ - 1] = 0;
        --n_;
        return k - 1;
    }

    // Signed distance of point m from the line through a along u, on the left normal.
    static double Reach(const ShapePoint& a, double ux, double uy, const ShapePoint& m) {
        return (m.x - a.x) * -uy + (m.y - a.y) * ux;
    }

    ShapeRec& s_;
    ShapePoint* p_;
    uint8_t* m_;
    int32_t n_;
};

}  // namespace

void SeparateTouchingEdges() {
    CellGrid grid = BuildGrid();
    std::vector<uint8_t> marks(g_model.g_aShapePoints.size(), 0);
    MarkTouchingEdges(grid, marks);
    grid = CellGrid{};
    for (ShapeRec& s : g_model.g_aShapes)
        if (TakesPart(s) && s.polarity != kPolarityVoid) EdgeMover(s, marks).Run();
}
