#pragma once
// The Expedition layout.hkp file: its conductive areas become copper shapes that the void
// filter never drops.
#include <cstdint>
#include <vector>

#include "model/ShapeRec.h"

// Reads g_strHkpFile; an empty path does nothing. A file that cannot be opened is reported
// and the translation goes on.
void ParseHkpFile();

// Appends a copper polygon (geometry 2, polarity 2, undiscardable) with all the given points.
void AddPolygonPoints(int32_t net, int32_t layer, const std::vector<ShapePoint>& points);
