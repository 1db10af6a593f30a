#pragma once
// First step of the shape clean-up round: collinear points out, slits split off.
#include <cstdint>

// Points of two slit edges closer than this in both axes count as one.
constexpr double kSlitJoinTolerance = 1e-4;

// Cleans polygon i (3 points or more; circles are left alone): removes collinear points, then
// splits each slit (two edges of the ring on one line, EdgesOverlap) into a shape of its own,
// which is cleaned the same way. A piece that lies inside the rest of the polygon takes the
// opposite polarity (3 for copper, otherwise 2); one outside keeps the parent's.
void CleanPolygon(int32_t i);
