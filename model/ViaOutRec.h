#pragma once
#include <cstdint>

#include "model/NetIndex.h"

struct PadStackRec;

// One stretch of a via barrel between two layers that it really touches.
struct ViaOutRec {
    uint32_t number = 0;
    uint32_t upperNode = 0;
    uint32_t lowerNode = 0;
    int32_t upperNet = kNoNet;
    int32_t lowerNet = kNoNet;
    int32_t net = kNoNet;
    uint32_t drillIndex = 0;
    PadStackRec* padStack = nullptr;
    double rotation = 0.0;
};
