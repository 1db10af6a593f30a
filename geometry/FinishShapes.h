#pragma once
// The finishing step over the shape table once all shapes are read: areas, closing points,
// collinear points, the sort, each layer's extent with its 1/256 grid, and the boxes.

// First and last points of a polygon this close in both axes count as one.
constexpr double kClosingPointTolerance = 1e-4;
// One 256th: a layer's grid cell is its extent times this.
constexpr double kGridFraction = 0.00390625;

void FinishShapes();

// Each layer's extent over its shapes (a circle by its centre and radius), and its grid where
// the extent is not empty; an empty or flat axis gives a grid of 0.
void SetLayerExtents();
