#pragma once
// Whether a point lies on copper of a net, for the thermal ties of the traces file.
#include <cstdint>

class ShapeLocator;

// Walks the shapes of layer in table order (sorted: small areas first) and stops at the first
// that holds (x, y); true when that shape is copper. Copper of another net is passed over,
// unless net is kNoNet while elements without a net are left out. So a void inside a fill wins
// over the fill. The shape table must be sorted.
bool PointOnNetShape(double x, double y, int32_t net, int32_t layer);

// The same answer, with the layer's candidates taken from a locator built over the table.
bool PointOnNetShape(ShapeLocator& locator, double x, double y, int32_t net, int32_t layer);
