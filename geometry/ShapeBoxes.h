#pragma once
// Bounding boxes of the shapes, kept by table index next to the sorted shape table.
#include <cstdint>

#include "model/ShapeRec.h"

// A circle's box is its centre +- the radius; a polygon's covers all its points, and with fewer
// than 2 points it is its first point (all zero with none).
BoundingBox ComputeShapeBox(const ShapeRec& shape);

// Rebuilds g_aShapeBoxes, one box for each shape by table index.
void BuildShapeBoxes();

// The box of shape i: from the table when it covers i, computed afresh otherwise.
BoundingBox ShapeBox(int32_t i);
