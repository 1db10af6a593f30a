#include "ibis/ComponentNodes.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "ibis/CircuitForm.h"
#include "ibis/IbisReader.h"
#include "ibis/PinRotation.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"

namespace {

int64_t LayerNetKey(int32_t layer, int32_t net) {
    return (static_cast<int64_t>(layer) << 32) | static_cast<uint32_t>(net);
}

bool Between(double a, double v, double b) {
    return (a < v && v < b) || (b < v && v < a);
}

// Whether the segment crosses the box. Strict comparisons throughout: touching a side or a
// corner is no crossing.
bool SegmentCrossesBox(double x1, double y1, double x2, double y2, double minX, double minY,
                       double maxX, double maxY) {
    if (x1 == x2) {
        if (!(minX < x1 && x1 < maxX)) return false;
        return Between(y1, minY, y2) || Between(y1, maxY, y2);
    }
    if (y1 == y2) {
        if (!(minY < y1 && y1 < maxY)) return false;
        return Between(x1, minX, x2) || Between(x1, maxX, x2);
    }
    double slope = (y2 - y1) / (x2 - x1);
    for (double side : {minX, maxX}) {
        if (!Between(x1, side, x2)) continue;
        double y = y1 + slope * (side - x1);
        if (minY < y && y < maxY) return true;
    }
    for (double side : {minY, maxY}) {
        if (!Between(y1, side, y2)) continue;
        double x = x1 + (side - y1) / slope;
        if (minX < x && x < maxX) return true;
    }
    return false;
}

void AddToGroup(ComponentRec& component, const std::string& group, const char* kind,
                const std::string& pinName) {
    if (group.empty()) return;
    GroupRec* rec = component.groups.Find(group);
    if (!rec) {
        GroupRec fresh;
        fresh.name = group;
        fresh.kind = kind;
        rec = &component.groups.Set(group, std::move(fresh));
    }
    rec->pins.push_back(pinName);
}

// The group step: power and ground pins of each active block, by the groups their file
// names.
void GatherGroups(base::StringMap<ComponentRec*>& blockTable) {
    blockTable.ForEach([](const std::string&, ComponentRec* c) {
        TakePassiveForm(*c);
        if (!c->isActive) return;
        ParseIbisFile(*c);
        for (const PinRec& pin : c->pins) {
            if (pin.pinClass == 1) AddToGroup(*c, pin.Model().powerGroup, "PU", pin.name);
            if (pin.pinClass == 2) AddToGroup(*c, pin.Model().groundGroup, "PD", pin.name);
        }
    });
}

std::string LayerNameOf(int32_t layer) {
    if (!g_model.g_aLayers || layer < 0 || layer >= g_model.g_nLayerCount) return "";
    return LayerName(g_model.g_aLayers[layer]);
}

const char* LayerWord(int32_t layer) {
    if (!g_model.g_aLayers || layer < 0 || layer >= g_model.g_nLayerCount) return "Signal";
    return g_model.g_aLayers[layer].kind == kLayerPlane ? "Plane" : "Signal";
}

}  // namespace

std::string NodeKey(double x, double y, int32_t layer) {
    char key[720];  // two %f of any double and a layer number
    std::snprintf(key, sizeof key, "%f#%f#%d", x, y, layer);
    return key;
}

ComponentNodes::ComponentNodes(base::StringMap<ComponentRec>* components_, ModelAssignment* models_,
                               std::string inputName_, FILE* output_, FILE* log_,
                               const std::string& folder)
    : components(components_),
      models(models_),
      inputName(std::move(inputName_)),
      output(output_),
      log(log_),
      includeNoNet(g_options.g_nIncludeNoNetEtches),
      selectedOnly(g_options.g_bSelectedOnly),
      selectedNets(g_options.g_aSortedSelectedNets),
      componentFile(folder + "Component.txt"),
      componentPinFile(folder + "ComponentPin.txt"),
      componentPadFile(folder + "ComponentPad.txt") {
    std::sort(selectedNets.begin(), selectedNets.end());
}

void ComponentNodes::RebuildNodePosition() {
    const std::vector<NodeRec>& nodes = g_model.g_aNodes;
    nodePosition.assign(g_model.g_nNodeCount, kNoNodeIndex);
    for (size_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].id >= nodePosition.size()) nodePosition.resize(nodes[i].id + 1, kNoNodeIndex);
        nodePosition[nodes[i].id] = static_cast<uint32_t>(i);
    }
}

const NodeRec* ComponentNodes::NodeOf(const std::string& nodeId) const {
    if (nodeId.empty()) return nullptr;
    long id = ToLong(nodeId);
    if (id < 0 || static_cast<size_t>(id) >= nodePosition.size()) return nullptr;
    uint32_t place = nodePosition[static_cast<size_t>(id)];
    if (place >= g_model.g_aNodes.size()) return nullptr;
    const NodeRec& node = g_model.g_aNodes[place];
    return node.id == static_cast<uint32_t>(id) ? &node : nullptr;
}

bool ComponentNodes::NodeNetTaken(int32_t net) const {
    if (net == kNoNet) return includeNoNet != 0;
    if (!selectedOnly) return true;
    return std::binary_search(selectedNets.begin(), selectedNets.end(), net);
}

namespace {

// The position text of a pin that the binding step looks up; empty when it passes the pin over.
std::string PinPlaceKey(const ComponentRec& c, const PinRec& pin) {
    if (!c.isActive && pin.hasNode) return std::string();
    double x = Contains(c.placement, "bottom") ? c.x - pin.x : c.x + pin.x;
    return NodeKey(x, c.y + pin.y, c.layer);
}

}  // namespace

// The position text of every pin that the binding step will look up, as "x#y#layer".
std::unordered_set<std::string> ComponentNodes::PinPlaces() const {
    std::unordered_set<std::string> places;
    components->ForEach([&](const std::string&, ComponentRec& c) {
        TakePassiveForm(c);
        for (const PinRec& pin : c.pins) {
            std::string key = PinPlaceKey(c, pin);
            if (!key.empty()) places.insert(std::move(key));
        }
    });
    return places;
}

namespace {

// Two x values whose six-decimal texts are equal lie within 1e-6 of each other, so their cells
// of 1e-6 differ by at most one (two, with the rounding of the product). Beyond kCellRange
// and for no number at all there is no cell: such a node is always compared by its text.
constexpr double kCellRange = 1e9;

bool CellOf(double x, int64_t& cell) {
    if (!(std::fabs(x) < kCellRange)) return false;
    cell = static_cast<int64_t>(std::floor(x * 1e6));
    return true;
}

// The cells near the pins' x positions; a node outside them cannot share a pin's text.
struct PinCells {
    explicit PinCells(const std::unordered_set<std::string>& places) {
        for (const std::string& place : places) {
            int64_t cell;
            if (CellOf(std::strtod(place.c_str(), nullptr), cell))
                for (int64_t d = -2; d <= 2; ++d) cells.insert(cell + d);
        }
    }
    bool MayHold(double x) const {
        int64_t cell;
        return !CellOf(x, cell) || cells.count(cell) != 0;
    }
    std::unordered_set<int64_t> cells;
};

}  // namespace

// Pin position text to (node number, place in the array) of the node there; a later node with
// the same text wins. Only the pins' positions are kept: the board's other nodes never match,
// and most of them are passed over by their x before any text is made.
std::unordered_map<std::string, std::pair<uint32_t, uint32_t>> ComponentNodes::PinPlaceNodes()
    const {
    const std::unordered_set<std::string> places = PinPlaces();
    const PinCells near(places);
    std::unordered_map<std::string, std::pair<uint32_t, uint32_t>> byKey;
    const std::vector<NodeRec>& nodes = g_model.g_aNodes;
    std::string key;
    for (size_t i = 0; i < nodes.size(); ++i) {
        if (!NodeNetTaken(nodes[i].net) || !near.MayHold(nodes[i].x)) continue;
        key = NodeKey(nodes[i].x, nodes[i].y, nodes[i].layer);
        if (places.count(key)) byKey[key] = {nodes[i].id, static_cast<uint32_t>(i)};
    }
    return byKey;
}

void ComponentNodes::BindPinsToNodes(base::StringMap<ComponentRec*>& blockTable) {
    GatherGroups(blockTable);
    RebuildNodePosition();
    if (log) std::fprintf(log, "\n\nComponent Model Info :\n\n");
    if (!components) return;
    std::unordered_map<std::string, std::pair<uint32_t, uint32_t>> byKey = PinPlaceNodes();
    int number = 0;
    components->ForEach([&](const std::string&, ComponentRec& c) {
        ++number;
        if (log) std::fprintf(log, "%d] Component RefDes : %s ", number, c.refDes.c_str());
        TakePassiveForm(c);
        for (PinRec& pin : c.pins) {
            const std::string key = PinPlaceKey(c, pin);
            auto it = key.empty() ? byKey.end() : byKey.find(key);
            if (it == byKey.end()) continue;
            pin.nodeId = std::to_string(it->second.first);
            g_model.g_aNodes[it->second.second].label = pin.name;
            if (c.isActive) c.pinNodes.Set(pin.name, pin.nodeId);
        }
    });
}

bool ComponentNodes::Crosses(int32_t layer, int32_t net, double minX, double minY, double maxX,
                             double maxY) {
    if (!tracesIndexed_) {
        tracesIndexed_ = true;
        const std::vector<TraceRec>& traces = g_model.g_aTraces;
        for (size_t t = 0; t < traces.size(); ++t) {
            const NodeRec* start = NodeById(traces[t].startNode);
            if (!start) continue;
            tracesByLayerNet_[LayerNetKey(traces[t].layer, start->net)].push_back(
                static_cast<int32_t>(t));
        }
    }
    auto it = tracesByLayerNet_.find(LayerNetKey(layer, net));
    if (it == tracesByLayerNet_.end()) return false;
    for (int32_t t : it->second) {
        const TraceRec& trace = g_model.g_aTraces[static_cast<size_t>(t)];
        const NodeRec* a = NodeById(trace.startNode);
        const NodeRec* b = NodeById(trace.endNode);
        if (!a || !b) continue;
        if (SegmentCrossesBox(a->x, a->y, b->x, b->y, minX, minY, maxX, maxY)) return true;
    }
    return false;
}

void ComponentNodes::AddExtraPinNode(PinRec& pin, ComponentRec& c) {
    if (!pin.padStack) return;
    PadStackSizeRec* const* size = g_model.g_mapPadStackSizes.Find(pin.padStackName);
    if (!size || !*size || (*size)->lstRoundCorners.size() != 4) return;
    const std::vector<std::string>& corners = (*size)->lstRoundCorners;
    double scale = g_model.g_dbLengthScale;
    double w = std::fabs(ToDouble(corners[0]) - ToDouble(corners[2])) * scale * 0.5;
    double h = std::fabs(ToDouble(corners[1]) - ToDouble(corners[3])) * scale * 0.5;
    bool bottom = Contains(c.placement, "bottom");
    double ax = 0, ay = 0, bx = 0, by = 0;
    RotateOffset(pin.libX - w, pin.libY - h, c.rotation, pin.rotation, ax, ay);
    RotateOffset(pin.libX + w, pin.libY + h, c.rotation, pin.rotation, bx, by);
    ax = bottom ? c.x - ax : c.x + ax;
    bx = bottom ? c.x - bx : c.x + bx;
    ay += c.y;
    by += c.y;
    int32_t net = NetIndexByName(pin.net);
    if (!Crosses(c.layer, net, std::min(ax, bx), std::min(ay, by), std::max(ax, bx),
                 std::max(ay, by)))
        return;

    double x = bottom ? c.x - pin.x : c.x + pin.x;
    double y = c.y + pin.y;
    uint32_t before = g_model.g_nNodeCount;
    const NodeRec* rec = nullptr;
    int32_t id = AddNode(&rec, x, y, c.layer, net, 1, nullptr, 0.0);
    if (id < 0 || !rec) return;
    rec->label = pin.name;
    if (g_model.g_nNodeCount != before) {
        // A new node joins the array behind the others, so the second writing prints it.
        g_model.g_aNodes.push_back(*rec);
        if (static_cast<size_t>(id) >= nodePosition.size())
            nodePosition.resize(static_cast<size_t>(id) + 1, kNoNodeIndex);
        nodePosition[static_cast<size_t>(id)] = static_cast<uint32_t>(g_model.g_aNodes.size() - 1);
    } else if (NodeOf(std::to_string(id)) == nullptr) {
        RebuildNodePosition();
    }
    if (const NodeRec* node = NodeOf(std::to_string(id))) node->label = pin.name;
    pin.nodeId = std::to_string(id);

    char line[512];
    std::snprintf(line, sizeof line, " X= %emm Y= %emm Layer = %s$", x, y, LayerWord(c.layer));
    extraNodes.push_back("Node" + pin.nodeId + "!!" + pin.name + "::" + pin.net + line +
                         LayerNameOf(c.layer) + " Contact = 1\n");
}
