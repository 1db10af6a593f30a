#pragma once
// Point-in-shape tests. Two forms with different rules on purpose: PointInShape compares
// coordinates exactly (bit for bit) and counts a point on the outline as inside;
// PointInPolygonStrict allows 3e-14 and tells a point on the outline apart.
#include <cstdint>
#include <vector>

#include "model/ShapeRec.h"

// 1 when (x, y) lies in shape i or on its outline, else 0. With useBox a point outside the
// shape's bounding box answers 0 at once (on the box counts as in).
int PointInShape(int32_t i, double x, double y, bool useBox);

// Tolerance of PointInPolygonStrict: coordinates and parameters within it count as equal.
constexpr double kStrictPointTolerance = 3e-14;

// -1 inside, 0 on the outline (within kStrictPointTolerance), 1 outside, for the outline copy
// points[0..count) of shape i. A point more than the tolerance outside shape i's box is outside.
int PointInPolygonStrict(double x, double y, int32_t i, const ShapePoint* points, int32_t count);

// The edges of one polygon by bands of y, for many questions to one big polygon: Holds(x, y)
// gives what PointInShape(shape, x, y, true) gives, looking only at the edges that reach y.
// Build it while the shape's points and box stand as they will be asked.
class PolygonBands {
  public:
    void Build(int32_t shape);
    int Holds(double x, double y) const;

  private:
    int32_t BandOf(double y) const;

    int32_t shape_ = 0;
    bool usable_ = false;  // false: every question goes to PointInShape
    int32_t bands_ = 1;
    double minY_ = 0, height_ = 0;
    std::vector<uint32_t> start_;  // band -> first entry in edges_; one more at the end
    std::vector<int32_t> edges_;
    std::vector<int32_t> tall_;  // edges over too many bands
};
