#pragma once
// Do two edges of one polygon run on one line and share a stretch? Used to find slits.
#include <cstdint>

#include "model/ShapeRec.h"

// Cross product of the edges, (Q - A) x d and (R - A) x d, that still counts as "on one line".
constexpr double kEdgeOverlapCross = 1e-8;
// Distance of the second edge's start from the first edge's line that counts as "on one line".
constexpr double kEdgeOverlapDistance = 1e-4;

// Edges start at ring indices a and b of points[0..count). 0 when they lie on one line within
// the tolerances above and share a stretch, -1 otherwise; neighbouring edges answer -1.
int EdgesOverlap(const ShapePoint* points, int32_t a, int32_t b, int32_t count);
