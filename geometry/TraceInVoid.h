#pragma once
// Does a trace run through a void? A void that a trace crosses must stay, or dropping it would
// short the trace to the fill around it. Only a part of the centre line strictly inside the
// void counts: a trace that touches the outline, or runs along it, does not.
#include <cstdint>
#include <vector>

#include "model/ShapeRec.h"

// Tolerance of the crossing parameters and of the point test.
constexpr double kTraceParamTolerance = 3e-14;

// The test for one void against many traces: the bounding box is read once, and the outline
// copy is made when the first trace passes the box test.
class VoidTraceTest {
  public:
    explicit VoidTraceTest(int32_t shape);

    // Whether the segment a-b (a trace's centre line) has a part strictly inside the void.
    bool Hit(const ShapePoint& a, const ShapePoint& b);

    const BoundingBox& Box() const { return box_; }

  private:
    bool CircleHit(const ShapePoint& a, const ShapePoint& b) const;
    bool PolygonHit(const ShapePoint& a, const ShapePoint& b);
    void MakeOutline();

    int32_t shape_;
    BoundingBox box_;
    bool outlineMade_ = false;
    std::vector<ShapePoint> outline_;
    std::vector<double> params_;
};

// The same test for trace t of the trace table, its ends taken from its nodes through the
// node index. A trace whose nodes cannot be found does not cross anything.
bool TraceInVoid(int32_t trace, int32_t shape);
