#pragma once
// Materials and the layer stack, top layer first.
#include <cstdint>
#include <string>

struct MaterialRec {
    int32_t kind = 0;  // 1 dielectric, 2 conductor
    std::string name;
    double conductivity = 0.0;
    double permittivity = 0.0;
};

constexpr int kMaxLayers = 256;
constexpr int kLayerNameBytes = 32;

// kind values of LayerRec
constexpr uint8_t kLayerSignal = 1;
constexpr uint8_t kLayerDielectric = 2;
constexpr uint8_t kLayerPlane = 3;

struct LayerRec {
    // Zero filled and copied with a limit of 32 characters: a name of 32 or more characters
    // has no terminator inside the field, so read it through LayerName().
    char name[kLayerNameBytes] = {};
    double thickness = 0.0;
    double permittivity = 4.0;
    int32_t conductivity = 0;
    uint8_t ordinal = 0;
    uint8_t kind = 0;
    uint16_t hasShapes = 0;
    double minX = 0, minY = 0, maxX = 0, maxY = 0;
    double gridX = 0, gridY = 0;
};

// The layer's name as a string, at most 32 characters.
std::string LayerName(const LayerRec& layer);
void SetLayerName(LayerRec& layer, const std::string& name);
