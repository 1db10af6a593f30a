#pragma once
// The cells of a layer's 256 x 256 grid that an edge touches.
#include <cstdint>
#include <vector>

constexpr int kGridCells = 256;
// An edge shorter than this (squared length) touches no cell.
constexpr double kNullEdgeSquared = 1e-21;
// An edge this close to a grid line of the crossing axis also enters the cell beyond it, so two
// edges on one line never miss each other by rounding.
constexpr double kGridLineTolerance = 3e-14;

// Fills cellsOut with cell numbers (row x 256 + column) over the layer's minX, minY, gridX and
// gridY, and returns how many. A layer without a grid, or an unknown layer, gives none.
int RasterizeEdge(double x1, double y1, double x2, double y2, int32_t layer,
                  std::vector<int32_t>& cellsOut);
