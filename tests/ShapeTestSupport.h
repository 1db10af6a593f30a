#pragma once
// Shapes and traces placed by hand, for the void check and the via tests.
#include <vector>

#include "model/NodeSet.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"

namespace testing_support {

// A polygon from its points as given (closed or not) on layer, with polarity and net.
inline int32_t AddPolygon(int32_t layer, int32_t polarity, int32_t net,
                          const std::vector<ShapePoint>& points) {
    ShapeRec s;
    s.layer = layer;
    s.geometry = kGeometryPolygon;
    s.polarity = polarity;
    s.net = net;
    return AppendShape(s, points);
}

// An axis-aligned square, closed: five points.
inline int32_t AddSquare(int32_t layer, int32_t polarity, int32_t net, double x0, double y0,
                         double side) {
    return AddPolygon(
        layer, polarity, net,
        {{x0, y0}, {x0, y0 + side}, {x0 + side, y0 + side}, {x0 + side, y0}, {x0, y0}});
}

// A circle as the reader stores it: centre, then the radius twice.
inline int32_t AddCircle(int32_t layer, int32_t polarity, int32_t net, double x, double y,
                         double r) {
    ShapeRec s;
    s.layer = layer;
    s.geometry = kGeometryCircle;
    s.polarity = polarity;
    s.net = net;
    return AppendShape(s, {{x, y}, {r, r}});
}

// A trace between two nodes, made as the trace reader makes them.
inline int32_t AddTraceLine(int32_t layer, double x1, double y1, double x2, double y2, int32_t net,
                            double width = 0.1) {
    TraceRec t;
    t.width = width;
    t.layer = layer;
    t.startNode = AddNode(nullptr, x1, y1, layer, net, 1, nullptr, 0.0);
    t.endNode = AddNode(nullptr, x2, y2, layer, net, 1, nullptr, 0.0);
    g_model.g_aTraces.push_back(t);
    g_model.g_aTraceNets.push_back(net);
    g_model.g_aTraceFlags.push_back(0);
    return g_model.TraceCount() - 1;
}

}  // namespace testing_support
