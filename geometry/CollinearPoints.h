#pragma once
// Removing points that lie on the line through their two ring neighbours.
#include <cstdint>

#include "model/ShapeRec.h"

// Distance from the line through the neighbours below which a point is dropped.
constexpr double kCollinearDistance = 1e-4;

// Walks the ring points[0..count) from the first point: a point whose distance
// cross(point - p, n - p) / |n - p| from the line through its cyclic neighbours p and n lies
// strictly within kCollinearDistance is removed, the following points move up, and the same
// position is looked at again. A chord of length 0 gives no number and keeps the point.
// Returns the new count. One pass, the same result as removing the points one at a time.
int32_t RemoveCollinearPoints(ShapePoint* points, int32_t count);
