#pragma once
// Appending to the shared shape and point tables, and finding a layer's shapes in the sorted
// table.
#include <cstdint>
#include <vector>

#include "model/ShapeRec.h"

// Appends shape with the given points behind all others; firstPoint and pointCount are set
// here. Returns the new shape's index.
int32_t AppendShape(ShapeRec shape, const std::vector<ShapePoint>& points);

// The shapes of one layer: table indices [first, end). Empty (first == end) when the layer has
// none.
struct ShapeRun {
    int32_t first = 0;
    int32_t end = 0;
};

// Binary search on the layer field of the shape table, which must be sorted (SortShapes).
ShapeRun FindLayerShapeRun(int32_t layer);
