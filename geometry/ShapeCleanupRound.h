#pragma once
// The shape clean-up round, run after all shapes and traces are read and again after the trace
// gaps have added shapes.

// CleanPolygon over each shape that exists when the round begins (pieces split off are cleaned
// as they are made), then, if any shape exists, the finishing step (areas, closing points,
// collinear points, sort, layer extents and grids, boxes), SeparateTouchingEdges and
// SortShapes.
void RunShapeCleanupRound();
