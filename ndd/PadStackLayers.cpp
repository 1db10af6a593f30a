#include "ndd/PadStackLayers.h"

#include <unordered_set>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

const char kDefaultLibLayer[] = "%defaultliblayer";

namespace {

int LayerCount() {
    return g_model.g_aLayers ? g_model.g_nLayerCount : 0;
}

int NamedLayer(int index, std::string& outName) {
    if (index < 0 || index >= LayerCount()) return -1;
    outName = LayerName(g_model.g_aLayers[index]);
    return index;
}

bool IsPlaneByKind(const std::string& layerName) {
    const std::string* kind = g_model.g_mapLayerKind.Find(layerName);
    return kind && *kind == "P";
}

}  // namespace

int ResolvePadLayer(const std::string& word, std::string& outName) {
    if (EqualsNoCase(word, "%toppad")) return NamedLayer(FirstConductorLayer(), outName);
    if (EqualsNoCase(word, "%bottompad")) return NamedLayer(LastConductorLayer(), outName);
    if (EqualsNoCase(word, kDefaultLibLayer)) {
        outName = kDefaultLibLayer;
        return -1;
    }
    bool power = EqualsNoCase(word, "POWER");
    for (int i = 0; i < LayerCount(); ++i) {
        std::string name = LayerName(g_model.g_aLayers[i]);
        if ((power && IsPlaneByKind(name)) || EqualsNoCase(word, name))
            return NamedLayer(i, outName);
    }
    return -1;
}

void ResolvePadStackLayers() {
    g_model.g_padStacks.ForEach([](const std::string&, PadStackRec& stack) {
        size_t count = stack.entries.size();
        if (count != 1 && count != 2) return;
        std::string name;
        stack.layer = ResolvePadLayer(stack.entries.front().layerName, name);
        if (count == 2 && stack.layer < 0)
            stack.layer = ResolvePadLayer(stack.entries.back().layerName, name);
    });
}

void ExpandDefaultLayers() {
    g_model.g_padStacks.ForEach([](const std::string&, PadStackRec& stack) {
        if (!stack.defaultLayerFlag) return;
        size_t def = 0;
        while (def < stack.entries.size() && stack.entries[def].layerName != kDefaultLibLayer)
            ++def;
        if (def == stack.entries.size()) return;
        std::unordered_set<std::string> named;
        for (const PadEntry& entry : stack.entries) named.insert(ToLower(entry.layerName));
        const PadEntry defaults = stack.entries[def];
        for (int i = 0; i < LayerCount(); ++i) {
            const LayerRec& layer = g_model.g_aLayers[i];
            if (layer.kind == kLayerDielectric) continue;
            std::string name = LayerName(layer);
            if (!named.insert(ToLower(name)).second) continue;
            PadEntry entry;
            entry.regular = defaults.regular;
            entry.anti = defaults.anti;
            entry.thermal = defaults.thermal;
            entry.layerName = name;
            stack.entries.push_back(std::move(entry));
        }
        stack.entries.erase(stack.entries.begin() + static_cast<std::ptrdiff_t>(def));
    });
}
