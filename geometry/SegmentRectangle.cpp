#include "geometry/SegmentRectangle.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "geometry/ShapeArea.h"
#include "geometry/ShapeTable.h"

namespace {

// Angle of a slope in [0, pi): atan for a rising slope, pi - atan(-m) for a falling one.
double SlopeAngle(double m) {
    return m >= 0 ? std::atan(m) : kPi - std::atan(-m);
}

std::vector<ShapePoint> SlantedCorners(double x1, double y1, double x2, double y2, double h,
                                       bool extendEnds) {
    double cx = (x1 + x2) / 2, cy = (y1 + y2) / 2;
    double theta = SlopeAngle((y2 - y1) / (x2 - x1));
    double len = std::sqrt((x2 - cx) * (x2 - cx) + (y2 - cy) * (y2 - cy));
    if (extendEnds) len += h;
    ShapePoint c1{cx + len * std::cos(theta), cy + len * std::sin(theta)};
    ShapePoint c2{2 * cx - c1.x, 2 * cy - c1.y};
    double phi = SlopeAngle(-(c2.x - c1.x) / (c2.y - c1.y));
    double nx = h * std::cos(phi), ny = h * std::sin(phi);
    return {{c1.x + nx, c1.y + ny},
            {c2.x + nx, c2.y + ny},
            {c2.x - nx, c2.y - ny},
            {c1.x - nx, c1.y - ny},
            {c1.x + nx, c1.y + ny}};
}

}  // namespace

void AddSegmentRectangle(double x1, double y1, double x2, double y2, double width, int32_t layer,
                         int32_t net, bool extendEnds) {
    double h = width / 2;
    double grow = extendEnds ? h : 0.0;
    std::vector<ShapePoint> pts;
    if (x1 == x2) {
        double lo = std::min(y1, y2) - grow, hi = std::max(y1, y2) + grow;
        pts = {{x1 - h, lo}, {x1 - h, hi}, {x1 + h, hi}, {x1 + h, lo}, {x1 - h, lo}};
    } else if (y1 == y2) {
        double lo = std::min(x1, x2) - grow, hi = std::max(x1, x2) + grow;
        pts = {{lo, y1 - h}, {lo, y1 + h}, {hi, y1 + h}, {hi, y1 - h}, {lo, y1 - h}};
    } else {
        pts = SlantedCorners(x1, y1, x2, y2, h, extendEnds);
    }
    ShapeRec rec;
    rec.layer = layer;
    rec.net = net;
    rec.geometry = kGeometryPolygon;
    rec.polarity = kPolarityVoid;
    rec.undiscardable = 1;
    rec.discarded = 0;
    AppendShape(rec, pts);
}

void AddGapStroke(double x1, double y1, double x2, double y2, double width, int32_t layer,
                  int32_t net) {
    ShapeRec circle;
    circle.layer = layer;
    circle.net = net;
    circle.geometry = kGeometryCircle;
    circle.polarity = kPolarityVoid;
    double r = width / 2;
    AppendShape(circle, {{x2, y2}, {r, r}});
    AddSegmentRectangle(x1, y1, x2, y2, width, layer, net, false);
}
