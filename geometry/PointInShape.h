#pragma once
// Point-in-shape tests. Two forms with different rules on purpose: PointInShape compares
// coordinates exactly (bit for bit) and counts a point on the outline as inside;
// PointInPolygonStrict allows 3e-14 and tells a point on the outline apart.
#include <cstdint>

#include "model/ShapeRec.h"

// 1 when (x, y) lies in shape i or on its outline, else 0. With useBox a point outside the
// shape's bounding box answers 0 at once (on the box counts as in).
int PointInShape(int32_t i, double x, double y, bool useBox);

// Tolerance of PointInPolygonStrict: coordinates and parameters within it count as equal.
constexpr double kStrictPointTolerance = 3e-14;

// -1 inside, 0 on the outline (within kStrictPointTolerance), 1 outside, for the outline copy
// points[0..count) of shape i. A point more than the tolerance outside shape i's box is outside.
int PointInPolygonStrict(double x, double y, int32_t i, const ShapePoint* points, int32_t count);
