#pragma once
// Boards built by hand for the unit tests: layer stacks, net tables, shapes and traces, made
// the way the readers make them.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/TextFile.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

namespace fixtures {

// Layers top first, each a name and a kind (kLayerSignal, kLayerDielectric, kLayerPlane).
inline void MakeLayerStack(const std::vector<std::pair<std::string, uint8_t>>& layers) {
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    for (size_t i = 0; i < layers.size(); ++i) {
        SetLayerName(g_model.g_aLayers[i], layers[i].first);
        g_model.g_aLayers[i].kind = layers[i].second;
    }
    g_model.g_nLayerCount = static_cast<int16_t>(layers.size());
}

// Signal layers of the given names, in stack order.
inline void MakeSignalLayers(const std::vector<std::string>& names) {
    std::vector<std::pair<std::string, uint8_t>> layers;
    for (const std::string& name : names) layers.emplace_back(name, kLayerSignal);
    MakeLayerStack(layers);
}

// A selection of the one net, in force as the settings put it.
inline void SelectOnlyNet(int32_t net) {
    g_options.g_bSelectedOnly = 1;
    g_options.g_bAllNets = 0;
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {net};
    g_options.g_aSortedSelectedNets = {net};
}

// TOP signal, D1 dielectric, BOTTOM signal.
inline void MakeThreeLayerStack() {
    MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"BOTTOM", kLayerSignal}});
}

// Net table read from "%port" lines, with display names and colours.
inline void MakeNets(const std::vector<std::string>& names) {
    std::string text;
    for (size_t i = 0; i < names.size(); ++i)
        text += "%port \"P" + std::to_string(i) + "\" \"" + names[i] + "\";\n";
    base::LineStream stream(std::make_shared<const std::string>(text));
    ParseNet(stream);
    AssignNetColors();
}

// Net names only, in the given order (no sorting, no colours).
inline void SetNetNames(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        NetRec rec;
        std::strncpy(rec.name, name.c_str(), kNetNameBytes - 1);
        g_model.g_strNetNames.push_back(rec);
    }
    g_model.g_nNetCount = static_cast<int32_t>(g_model.g_strNetNames.size());
}

// A polygon from its points as given (closed or not).
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

// The points of shape i, as stored.
inline std::vector<ShapePoint> PointsOf(int32_t i) {
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
    auto first = g_model.g_aShapePoints.begin() + s.firstPoint;
    return std::vector<ShapePoint>(first, first + s.pointCount);
}

// Every shape as one line: "L<layer> N<net> <C|P><+|-|s> x,y x,y ...", points printed with
// %g, polarity + copper, - void, s split off; circles give their centre and radius pair.
inline std::string ShapesAsText() {
    std::string text;
    for (int32_t i = 0; i < g_model.ShapeCount(); ++i) {
        const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
        char buf[64];
        std::snprintf(buf, sizeof buf, "L%d N%d %c%c", s.layer, s.net,
                      s.geometry == kGeometryCircle ? 'C' : 'P',
                      s.polarity == kPolarityCopper ? '+'
                      : s.polarity == kPolarityVoid ? '-'
                                                    : 's');
        text += buf;
        for (const ShapePoint& p : PointsOf(i)) {
            std::snprintf(buf, sizeof buf, " %g,%g", p.x, p.y);
            text += buf;
        }
        text += '\n';
    }
    return text;
}

// A trace between two new nodes, made as the trace reader makes them.
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

}  // namespace fixtures

inline bool operator==(const ShapePoint& a, const ShapePoint& b) {
    return a.x == b.x && a.y == b.y;
}
