#pragma once
// What drawing needs before it starts: the layer stack with its colours, the extent of the
// board, the package colours and the padstack library (which stands behind the nodes and
// vias that use it). Filled statement by statement on the same pass as the checks.
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "deck/Statement.h"

namespace qfxview {

struct DeckLayer {
    std::string name;  // as the deck names it: "Signal$TOP", "PlanePseudo12"
    Kind kind = Kind::Other;
    std::string color;
    double thickness = 0.0;  // mm
    bool IsConductor() const { return kind == Kind::SignalLayer || kind == Kind::PlaneLayer; }
};

struct PadShape {
    enum Form { None, Box, Square, Circle, RoundedX, RoundedY, Polygon };
    Form form = None;
    double width = 0.0, height = 0.0;  // a circle's width is its radius
    double offsetX = 0.0, offsetY = 0.0;
    std::vector<std::pair<double, double>> points;
};

struct PadLayer {
    PadShape regular, anti;
};

struct PadStack {
    double drillRadius = 0.0;
    std::map<std::string, PadLayer> layers;  // by the layer's name in the deck
};

struct Extent {
    double minX = 0.0, minY = 0.0, maxX = 0.0, maxY = 0.0;
    bool empty = true;
    void Add(double x, double y);
};

struct DeckScan {
    std::vector<DeckLayer> layers;
    std::unordered_map<std::string, PadStack> padStacks;
    Extent extent;
    std::string traceColor = "blue", viaColor = "red", holeColor = "yellow";
    bool opened = false;  // the deck could be read

    void Take(const Statement& statement);
    // Index of a layer by its name in the deck; -1 if none.
    int LayerIndex(const std::string& name) const;

  private:
    void TakePad(const Statement& s, bool regular);
    PadStack* padStack_ = nullptr;
    PadLayer* padLayer_ = nullptr;
};

// The numbers of a shape element or node line, in order: x and y pairs of a polygon
// (continuation lines included), centre and radius of a circle, corner and size of a box.
std::vector<double> Lengths(const Statement& statement);

// A polygon pad's points from its continuation lines, and its offsets if it has them.
PadShape ReadPadShape(const Statement& statement);

}  // namespace qfxview
