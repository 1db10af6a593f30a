#include <new>

#include "ibis/Parts.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"
#include "ndd/ViaPass.h"

namespace {

bool OutsideWorkRange(double x, double y) {
    return x < g_model.g_dbWorkMinX || x > g_model.g_dbWorkMaxX || y < g_model.g_dbWorkMinY ||
           y > g_model.g_dbWorkMaxY;
}

// Component rotation plus pin rotation, brought below 360; a negative sum is only raised
// when it is -360 or less.
double PadRotation(double sum) {
    if (sum >= 0.0) {
        while (sum >= 360.0) sum -= 360.0;
    } else {
        while (sum <= -360.0) {
            sum += 360.0;
            if (sum < 0.0) sum += 360.0;
        }
    }
    return sum;
}

bool IsSignalOrPlane(int layer) {
    uint8_t kind = g_model.g_aLayers[layer].kind;
    return kind == kLayerSignal || kind == kLayerPlane;
}

// The pad's layer: the component's, or for a placed side the padstack's own layer (seen
// from below on the bottom side).
int32_t PinLayer(const ComponentRec& c, const PadStackRec& stack) {
    if (Contains(c.placement, "%topplace")) return stack.layer >= 0 ? stack.layer : c.layer;
    if (Contains(c.placement, "%bottomplace") && stack.layer >= 0 && g_model.g_aLayers) {
        for (int layer = g_model.g_nLayerCount - 1 - stack.layer; layer >= 0; --layer)
            if (layer < g_model.g_nLayerCount && IsSignalOrPlane(layer)) return layer;
    }
    return c.layer;
}

// The drill radius for a pin's via: the smallest pad radius of the size pass, which also
// lowers the padstack's own drill.
uint32_t PinDrill(PadStackRec& stack, const std::string& name) {
    double radius = stack.drill >= 0.0 ? stack.drill : 0.0;
    PadStackSizeRec* const* size = g_model.g_mapPadStackSizes.Find(name);
    if (size && *size) {
        radius = (*size)->dbMinRadius;
        if (stack.drill < 0.0 || stack.drill > radius) stack.drill = radius;
    }
    return AddDrillRadius(radius);
}

void AddPinVia(const ComponentRec& c, PinRec& pin, PadStackRec& stack, double x, double y,
               int32_t net, bool noConnect, double rotation) {
    ViaRec via;
    via.x = x;
    via.y = y;
    bool topDielectric = g_model.g_aLayers && g_model.g_nLayerCount > 0 &&
                         g_model.g_aLayers[0].kind == kLayerDielectric;
    via.startLayer = static_cast<uint16_t>(topDielectric ? 1 : FirstConductorLayer());
    via.endLayer =
        static_cast<uint16_t>(topDielectric ? g_model.g_nLayerCount - 2 : LastConductorLayer());
    via.net = net;
    via.noContact = noConnect ? 1 : 0;
    via.drillIndex = PinDrill(stack, UnderscoreBlanksAndCommas(pin.padStackName));
    via.padStack = &stack;
    via.rotation = rotation;
    (void)c;
    if (g_options.g_bSpatialLimit && OutsideWorkRange(x, y)) return;
    g_model.g_aVias.push_back(via);
}

void PlacePin(const ComponentRec& c, PinRec& pin) {
    bool noConnect = Contains(pin.net, "no_conn");
    std::string net = noConnect ? std::string() : pin.net;
    if (net.empty() ? !g_options.g_nIncludeNoNetEtches : !IsNetSelected(net)) return;
    PadStackRec* stack = g_model.g_padStacks.Find(pin.padStackName);
    pin.padStack = stack;
    if (!stack || !stack->nFlag) return;
    if (g_options.g_bSpatialLimit && OutsideWorkRange(c.x + pin.x, c.y + pin.y)) return;

    double rotation = PadRotation(c.rotation + pin.rotation);
    int32_t layer = PinLayer(c, *stack);
    bool bottom = Contains(c.placement, "bottom");
    double x = bottom ? c.x - pin.x : c.x + pin.x;
    double y = c.y + pin.y;
    int32_t netIndex = net.empty() ? kNoNet : NetIndexByName(net);

    const NodeRec* node = nullptr;
    int32_t id = AddNode(&node, x, y, layer, netIndex, 1, stack, rotation);
    if (id < 0 || !node) throw std::bad_alloc();
    pin.nodeId = std::to_string(id);
    node->label = pin.name;
    node->mirrored = bottom ? 1 : 0;
    pin.hasNode = 1;
    if (stack->nType == 2 || stack->nType == 3)
        AddPinVia(c, pin, *stack, x, y, netIndex, noConnect, rotation);
}

}  // namespace

int PlacePins() {
    try {
        g_model.g_mapComponents.ForEach([](const std::string&, ComponentRec& c) {
            if (c.placement.empty()) return;
            for (PinRec& pin : c.pins) PlacePin(c, pin);
        });
    } catch (const std::bad_alloc&) {
        ReportMessage("Insufficient Memory!");
        return 0;
    }
    return 1;
}
