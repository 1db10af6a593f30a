#pragma once
#include <cstdint>

struct PadStackRec;

struct ViaRec {
    double x = 0.0, y = 0.0;
    uint16_t startLayer = 0;
    uint16_t endLayer = 0;
    int32_t net = 65535;
    uint16_t noContact = 0;
    uint16_t drillIndex = 0;
    PadStackRec* padStack = nullptr;
    double rotation = 0.0;
};

// One distinct drill radius, with its index in order of first use.
struct DrillRadius {
    double radius = 0.0;
    uint16_t index = 0;
};
