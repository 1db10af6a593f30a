#pragma once
// A small board for the trace and node tests: a layer stack built by hand and a net table
// read from "%port" lines.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/TextFile.h"
#include "model/LayoutModel.h"
#include "ndd/NetTable.h"

namespace testing_support {

// Layers top first, each a name and a kind (kLayerSignal, kLayerDielectric, kLayerPlane).
inline void MakeLayerStack(const std::vector<std::pair<std::string, uint8_t>>& layers) {
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    for (size_t i = 0; i < layers.size(); ++i) {
        SetLayerName(g_model.g_aLayers[i], layers[i].first);
        g_model.g_aLayers[i].kind = layers[i].second;
    }
    g_model.g_nLayerCount = static_cast<int16_t>(layers.size());
}

// Net table with the given names, with display names and colours.
inline void MakeNets(const std::vector<std::string>& names) {
    std::string text;
    for (size_t i = 0; i < names.size(); ++i)
        text += "%port \"P" + std::to_string(i) + "\" \"" + names[i] + "\";\n";
    base::LineStream stream(std::make_shared<const std::string>(text));
    ParseNet(stream);
    AssignNetColors();
}

}  // namespace testing_support
