#pragma once
// Finds the shapes of a layer that may hold a point without walking the whole layer. Passes
// that ask "which is the first shape of this layer, in table order, that holds the point?"
// for every trace end or tie would otherwise cost traces times shapes.
//
// Each layer's run of the sorted shape table gets a grid over the shapes' bounding boxes; a
// shape is entered in every cell its box touches, in table order. A point's cell then lists,
// in table order, every shape whose box holds the point (on the box counts as in), so a walk
// over the cell with the box test gives the same first hit as a walk over the whole run.
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "geometry/PointInShape.h"

class ShapeLocator {
  public:
    // Works on the shape table and boxes as they stand: build it after SortShapes and use it
    // while the table does not change.
    ShapeLocator() = default;

    // Calls visit(i) in rising table order for the shapes of layer that may hold (x, y), until
    // visit returns true. Every shape whose box holds the point is among them.
    void Visit(int32_t layer, double x, double y, const std::function<bool(int32_t)>& visit);

    // PointInShape(i, x, y, true), with the edges of a polygon of many points indexed on first
    // use, so that many questions to one plane outline do not each walk all of it.
    int Holds(int32_t i, double x, double y);

  private:
    struct LayerGrid {
        int32_t first = 0, end = 0;  // the layer's run, or all of it when the grid is 1 x 1
        int columns = 1, rows = 1;
        double minX = 0, minY = 0, cellW = 0, cellH = 0;
        std::vector<uint32_t> offsets;  // cell -> start in shapes; one more entry at the end
        std::vector<int32_t> shapes;
    };

    const LayerGrid& GridOf(int32_t layer);
    std::unordered_map<int32_t, LayerGrid> grids_;
    std::unordered_map<int32_t, PolygonBands> bands_;
};
