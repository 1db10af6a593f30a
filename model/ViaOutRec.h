#pragma once
#include <cstdint>

struct PadStackRec;

// One stretch of a via barrel between two layers that it really touches.
struct ViaOutRec {
    uint32_t number = 0;
    uint32_t upperNode = 0;
    uint32_t lowerNode = 0;
    uint16_t upperNet = 65535;
    uint16_t lowerNet = 65535;
    int32_t net = 65535;
    uint16_t drillIndex = 0;
    PadStackRec* padStack = nullptr;
    double rotation = 0.0;
};
