#pragma once
#include <cstdint>

#include "model/NetIndex.h"

// polarity values of ShapeRec
constexpr int32_t kPolaritySplit = 0;  // a piece split off a polygon
constexpr int32_t kPolarityCopper = 2;
constexpr int32_t kPolarityVoid = 3;

// geometry values of ShapeRec
constexpr int32_t kGeometryCircle = 1;
constexpr int32_t kGeometryPolygon = 2;

struct ShapeRec {
    int32_t layer = -1;
    int32_t geometry = kGeometryPolygon;
    int32_t polarity = kPolarityCopper;
    int32_t firstPoint = 0;
    int32_t pointCount = 0;
    int32_t discarded = 0;
    int32_t undiscardable = 0;
    int32_t net = kNoNet;
    double area = 0.0;
};

struct ShapePoint {
    double x = 0.0, y = 0.0;
};

struct BoundingBox {
    double minX = 0, minY = 0, maxX = 0, maxY = 0;
};
