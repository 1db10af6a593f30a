#pragma once
// Finds the shapes of a layer whose bounding box holds a point, in table order, without
// walking the whole layer: vias and the void check ask this once for every via, layer and
// island, and a layer may hold tens of thousands of shapes.
//
// The answer is exactly the set of shapes whose box (ShapeBox) holds the point, borders
// included, which is the box test that PointInShape makes first; the cells only narrow the
// search. Build it after SortShapes and do not add shapes while it is in use.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include "geometry/ShapeTable.h"

class LayerShapeLocator {
  public:
    explicit LayerShapeLocator(ShapeRun run);

    // Calls visit(i) for every shape i of the run whose box holds (x, y), in rising table
    // order, starting above the index after (all when after is below the run). Stops when
    // visit returns true, and then answers true.
    template <class Visit>
    bool Each(double x, double y, int32_t after, Visit&& visit) const;

  private:
    int32_t Column(double x) const;
    int32_t Row(double y) const;

    ShapeRun run_;
    int32_t columns_ = 1, rows_ = 1;
    double minX_ = 0.0, minY_ = 0.0, cellW_ = 0.0, cellH_ = 0.0;
    std::vector<uint32_t> cellStart_;  // rows_ * columns_ + 1 offsets into entries_
    std::vector<int32_t> entries_;     // shape indices, rising within each cell
    std::vector<BoundingBox> boxes_;   // by index - run_.first
};

// One locator for each layer, made when a layer is first asked for.
class ShapeLocator {
  public:
    const LayerShapeLocator& Layer(int32_t layer);

  private:
    std::vector<std::unique_ptr<LayerShapeLocator>> layers_;
    std::unique_ptr<LayerShapeLocator> other_;  // for a layer index out of the usual range
};

template <class Visit>
bool LayerShapeLocator::Each(double x, double y, int32_t after, Visit&& visit) const {
    if (run_.first == run_.end) return false;
    const size_t cell = static_cast<size_t>(Row(y) * columns_ + Column(x));
    auto end = entries_.begin() + cellStart_[cell + 1];
    auto it = std::upper_bound(entries_.begin() + cellStart_[cell], end, after);
    for (; it != end; ++it) {
        const BoundingBox& b = boxes_[static_cast<size_t>(*it - run_.first)];
        // The same comparisons as the box test of PointInShape, so a box with a NaN side
        // lets the point through there too.
        if (x < b.minX || x > b.maxX || y < b.minY || y > b.maxY) continue;
        if (visit(*it)) return true;
    }
    return false;
}
