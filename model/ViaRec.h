#pragma once
#include <cstdint>

#include "model/NetIndex.h"

struct PadStackRec;

struct ViaRec {
    double x = 0.0, y = 0.0;
    uint16_t startLayer = 0;
    uint16_t endLayer = 0;
    int32_t net = kNoNet;
    uint16_t noContact = 0;
    uint32_t drillIndex = 0;
    PadStackRec* padStack = nullptr;
    double rotation = 0.0;
};

// One distinct drill radius, with its index in order of first use.
struct DrillRadius {
    double radius = 0.0;
    uint32_t index = 0;
};
