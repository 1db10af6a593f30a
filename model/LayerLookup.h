#pragma once
// Look-ups in the layer table that every reader uses.
#include <cstdint>
#include <string>

// Index of the first non-dielectric layer whose name equals name (with case), or -1.
int16_t LayerIndexByName(const std::string& name);
// Index of the first layer that is not dielectric; 0 when none is.
int FirstConductorLayer();
// Index of the last layer that is not dielectric; the last index when none is.
int LastConductorLayer();
