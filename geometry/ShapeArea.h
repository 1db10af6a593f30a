#pragma once
// Areas of the shapes of the shared table, in mm².
#include <cstdint>

#include "model/ShapeRec.h"

constexpr double kPi = 3.141592653589793;

// Area of shape i: 0 with no points, pi r² for a circle, the fan sum from the first point made
// positive for a polygon (a repeated closing point adds nothing).
double ShapeArea(int32_t i);

// Signed fan sum, twice the area: positive for a counter-clockwise ring.
double SignedFanSum(const ShapePoint* points, int32_t count);
