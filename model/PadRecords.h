#pragma once
// Pads and padstacks, read three times for three uses: the library that the padstack
// section prints, the pad boundaries with their equivalent radii, and the per-padstack
// sizes that give vias their drill radius.
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using PointList = std::vector<std::pair<double, double>>;

struct PadLibRec {
    int32_t kind = 0;  // 1 rectangle, 2 circle, 3 polygon, 4 oval along X, 5 oval along Y
    std::string name;
    double width = 0.0;
    double height = 0.0;
    PointList points;
};

struct PadDefRec {
    PointList points;
    int32_t nValid = 1;
    int32_t layer = -1;
    std::string layerName;
    std::string shapeName;  // "CIRCLE", "RECTANGLE", "OVAL_X", "OVAL_Y", "POLYGON"
    double width = 0.0, height = 0.0;
    double rotation = -1.0;
    double offsetX = 0.0, offsetY = 0.0;
    double dbExtra = 0.0;
};

struct PadEntry {
    // Entries made from a default entry share its pads.
    std::shared_ptr<PadDefRec> regular;
    std::shared_ptr<PadDefRec> anti;
    std::shared_ptr<PadDefRec> thermal;
    std::string layerName;
    std::string strAntiPadName, strPadName;
    std::string strReserved;
    std::string strLibLayer;
};

struct PadStackRec {
    int32_t nUseCount = 0;
    int32_t nFirstLayerHint = -1;
    int32_t defaultLayerFlag = 0;
    double dbReserved = 0.0;
    double drill = -1.0;
    std::string name;
    std::vector<PadEntry> entries;
    double dbMinRadius = 1e6;
    int32_t nTypeHint = -1;
    int32_t nReserved = 0;
    int32_t nFlag = 1;
    int32_t layer = -1;
    int32_t nType = 0;  // 0 unknown, 1 surface, 2 through hole, 3 buried
};

struct PadBoundaryRec {
    int32_t polarity = 1;  // 1 after "%outline", 0 after "%cutout"
    int32_t nShape = 0;    // 1 circle, 2 rectangle, 3 polygon
    double x = 0.0, y = 0.0;
    double dbRadius = 0.0;
    double dbEquivalentRadius = 0.0;
    PointList points;
};

struct PadNameRec {
    std::string name;
    std::shared_ptr<PadBoundaryRec> boundary;
};

constexpr int kPadStackSlots = 25;

struct PadStackSizeRec {
    int32_t nHasType = 0;
    std::vector<std::string> lstLibLayers;
    std::vector<std::string> lstRoundCorners;
    std::string name;
    int32_t nViaRule = 1;
    int32_t nType = 1;
    double aSlots[kPadStackSlots][8];
    double dbMinRadius = 1e6;
    PadStackSizeRec() {
        for (auto& slot : aSlots)
            for (double& v : slot) v = -0.9999;
    }
};
