#include "geometry/ShapeLocator.h"

#include <algorithm>
#include <cmath>

#include "geometry/ShapeBoxes.h"
#include "geometry/ShapeTable.h"
#include "model/LayoutModel.h"

namespace {

constexpr int kMaxCells = 256;

// The cell of a coordinate. Monotonic in v, so a point inside a box falls in a cell between
// the cells of the box's edges; values outside the grid are held to its border cells.
int CellOf(double v, double min, double size, int count) {
    if (count <= 1 || !(size > 0)) return 0;
    const double c = std::floor((v - min) / size);
    if (!(c >= 0)) return 0;
    if (c >= count - 1) return count - 1;
    return static_cast<int>(c);
}

bool IsFiniteBox(const BoundingBox& b) {
    return std::isfinite(b.minX) && std::isfinite(b.minY) && std::isfinite(b.maxX) &&
           std::isfinite(b.maxY);
}

struct CellSpan {
    int x0, y0, x1, y1;
};

}  // namespace

const ShapeLocator::LayerGrid& ShapeLocator::GridOf(int32_t layer) {
    auto found = grids_.find(layer);
    if (found != grids_.end()) return found->second;
    LayerGrid& grid = grids_[layer];
    const ShapeRun run = FindLayerShapeRun(layer);
    grid.first = run.first;
    grid.end = run.end;
    const int32_t count = run.end - run.first;
    if (count < 16) return grid;

    std::vector<BoundingBox> boxes;
    boxes.reserve(static_cast<size_t>(count));
    double minX = HUGE_VAL, minY = HUGE_VAL, maxX = -HUGE_VAL, maxY = -HUGE_VAL;
    for (int32_t i = run.first; i < run.end; ++i) {
        boxes.push_back(ShapeBox(i));
        const BoundingBox& b = boxes.back();
        if (!IsFiniteBox(b)) continue;
        minX = std::min(minX, b.minX);
        minY = std::min(minY, b.minY);
        maxX = std::max(maxX, b.maxX);
        maxY = std::max(maxY, b.maxY);
    }
    if (!(minX <= maxX && minY <= maxY)) return grid;

    // A grid of about one shape per cell, made coarser while big boxes would fill too many
    // cells.
    int side = std::min(kMaxCells, static_cast<int>(std::sqrt(static_cast<double>(count))));
    std::vector<CellSpan> spans(boxes.size());
    for (; side > 1; side /= 2) {
        grid.columns = maxX > minX ? side : 1;
        grid.rows = maxY > minY ? side : 1;
        grid.minX = minX;
        grid.minY = minY;
        grid.cellW = (maxX - minX) / grid.columns;
        grid.cellH = (maxY - minY) / grid.rows;
        uint64_t entries = 0;
        for (size_t k = 0; k < boxes.size(); ++k) {
            const BoundingBox& b = boxes[k];
            // A box with a NaN edge passes every box test: it goes into every cell.
            const bool all = std::isnan(b.minX) || std::isnan(b.minY) || std::isnan(b.maxX) ||
                             std::isnan(b.maxY);
            spans[k] = all ? CellSpan{0, 0, grid.columns - 1, grid.rows - 1}
                           : CellSpan{CellOf(b.minX, minX, grid.cellW, grid.columns),
                                      CellOf(b.minY, minY, grid.cellH, grid.rows),
                                      CellOf(b.maxX, minX, grid.cellW, grid.columns),
                                      CellOf(b.maxY, minY, grid.cellH, grid.rows)};
            entries += static_cast<uint64_t>(spans[k].x1 - spans[k].x0 + 1) *
                       static_cast<uint64_t>(spans[k].y1 - spans[k].y0 + 1);
        }
        if (entries <= 16 * static_cast<uint64_t>(count) + 65536) break;
    }
    if (side <= 1) {
        grid.columns = grid.rows = 1;
        return grid;
    }

    const size_t cells = static_cast<size_t>(grid.columns) * static_cast<size_t>(grid.rows);
    grid.offsets.assign(cells + 1, 0);
    for (const CellSpan& s : spans)
        for (int y = s.y0; y <= s.y1; ++y)
            for (int x = s.x0; x <= s.x1; ++x)
                ++grid.offsets[static_cast<size_t>(y) * grid.columns + x + 1];
    for (size_t c = 1; c <= cells; ++c) grid.offsets[c] += grid.offsets[c - 1];
    grid.shapes.resize(grid.offsets.back());
    std::vector<uint32_t> fill(grid.offsets.begin(), grid.offsets.end() - 1);
    for (size_t k = 0; k < spans.size(); ++k) {
        const CellSpan& s = spans[k];
        for (int y = s.y0; y <= s.y1; ++y)
            for (int x = s.x0; x <= s.x1; ++x)
                grid.shapes[fill[static_cast<size_t>(y) * grid.columns + x]++] =
                    run.first + static_cast<int32_t>(k);
    }
    return grid;
}

void ShapeLocator::Visit(int32_t layer, double x, double y,
                         const std::function<bool(int32_t)>& visit) {
    const LayerGrid& grid = GridOf(layer);
    if (grid.offsets.empty() || std::isnan(x) || std::isnan(y)) {
        for (int32_t i = grid.first; i < grid.end; ++i)
            if (visit(i)) return;
        return;
    }
    const size_t cell =
        static_cast<size_t>(CellOf(y, grid.minY, grid.cellH, grid.rows)) * grid.columns +
        static_cast<size_t>(CellOf(x, grid.minX, grid.cellW, grid.columns));
    for (uint32_t k = grid.offsets[cell]; k < grid.offsets[cell + 1]; ++k)
        if (visit(grid.shapes[k])) return;
}

int ShapeLocator::Holds(int32_t i, double x, double y) {
    // Below this many points the plain walk is as quick as the index.
    constexpr int32_t kBandedPolygon = 64;
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
    if (s.geometry == kGeometryCircle || s.pointCount < kBandedPolygon)
        return PointInShape(i, x, y, true);
    auto found = bands_.find(i);
    if (found == bands_.end()) {
        found = bands_.emplace(i, PolygonBands()).first;
        found->second.Build(i);
    }
    return found->second.Holds(x, y);
}
