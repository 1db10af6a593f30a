#include "geometry/RasterizeEdge.h"

#include <algorithm>
#include <cmath>

#include "model/LayoutModel.h"

namespace {

// Truncated cell index; negative or unusable values give 0, huge ones stay above 255.
int CellIndex(double v, double min, double grid) {
    double f = (v - min) / grid;
    if (!(f > 0)) return 0;
    if (f > 1e6) return 1000000;
    return static_cast<int>(f);
}

struct Axis {
    double min, grid;
};

class CellWalk {
  public:
    CellWalk(Axis cross, bool alongX, std::vector<int32_t>& out)
        : cross_(cross), alongX_(alongX), out_(out) {}

    // Adds the cell of column (or row) c at crossing coordinate q, and the cell beyond a grid
    // line that q stands on within the tolerance.
    void Add(int c, double q) {
        int r = CellIndex(q, cross_.min, cross_.grid);
        Put(c, r);
        if (std::fabs(q - (cross_.min + r * cross_.grid)) < kGridLineTolerance) Put(c, r - 1);
        if (std::fabs(q - (cross_.min + (r + 1) * cross_.grid)) < kGridLineTolerance) Put(c, r + 1);
    }
    void StartColumn() { columnStart_ = out_.size(); }

  private:
    void Put(int c, int r) {
        if (r < 0 || r > kGridCells - 1) {
            if (r < kGridCells) return;
            r = kGridCells - 1;
        }
        int32_t cell = alongX_ ? r * kGridCells + c : c * kGridCells + r;
        for (size_t k = columnStart_; k < out_.size(); ++k)
            if (out_[k] == cell) return;
        out_.push_back(cell);
    }
    Axis cross_;
    bool alongX_;
    std::vector<int32_t>& out_;
    size_t columnStart_ = 0;
};

}  // namespace

int RasterizeEdge(double x1, double y1, double x2, double y2, int32_t layer,
                  std::vector<int32_t>& cellsOut) {
    cellsOut.clear();
    if (layer < 0 || layer >= g_model.g_nLayerCount || !g_model.g_aLayers) return 0;
    const LayerRec& L = g_model.g_aLayers[layer];
    if (!(L.gridX > 0) || !(L.gridY > 0) || !std::isfinite(L.gridX) || !std::isfinite(L.gridY))
        return 0;
    double dx = x2 - x1, dy = y2 - y1;
    if (!(dx * dx + dy * dy >= kNullEdgeSquared)) return 0;
    bool alongX = std::fabs(dy) * L.gridX < std::fabs(dx) * L.gridY;
    // Walk coordinates: p along the walk, q across it.
    double p1 = alongX ? x1 : y1, q1 = alongX ? y1 : x1;
    double p2 = alongX ? x2 : y2, q2 = alongX ? y2 : x2;
    if (p2 < p1) {
        std::swap(p1, p2);
        std::swap(q1, q2);
    }
    Axis walk = alongX ? Axis{L.minX, L.gridX} : Axis{L.minY, L.gridY};
    Axis cross = alongX ? Axis{L.minY, L.gridY} : Axis{L.minX, L.gridX};
    int first = CellIndex(p1, walk.min, walk.grid);
    if (first > kGridCells - 1) return 0;
    int last = std::min(CellIndex(p2, walk.min, walk.grid), kGridCells - 1);
    double slope = (q2 - q1) / (p2 - p1);
    CellWalk cells(cross, alongX, cellsOut);
    for (int c = first; c <= last; ++c) {
        cells.StartColumn();
        double qIn = c == first ? q1 : q1 + (walk.min + c * walk.grid - p1) * slope;
        double qOut = c == last ? q2 : q1 + (walk.min + (c + 1) * walk.grid - p1) * slope;
        cells.Add(c, qIn);
        cells.Add(c, qOut);
    }
    return static_cast<int>(cellsOut.size());
}
