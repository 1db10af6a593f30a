#pragma once
// Components with their package nodes, for one translation: binds every pin to the node at
// its place, and finds a node for a pin that a trace reaches only across its pad. The
// driver makes one after the shapes are written, over the node array of that moment.
#include <cstdint>
#include <cstdio>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/StringMap.h"
#include "model/ComponentRecords.h"
#include "model/NodeRec.h"

class ModelAssignment;

class ComponentNodes {
  public:
    // folder is the output folder with its separator; models may be null.
    ComponentNodes(base::StringMap<ComponentRec>* components, ModelAssignment* models,
                   std::string inputName, FILE* output, FILE* log, const std::string& folder);

    // Ties every placed pin to the node printed at its place (positions compared as
    // six-decimal text), and writes the head of the model report to the log.
    void BindPinsToNodes(base::StringMap<ComponentRec*>& blockTable);
    // A node where a trace crosses the pin's pad, for a pin that the binding missed. Leaves
    // pin.nodeId empty when no trace of the pin's net crosses the pad.
    void AddExtraPinNode(PinRec& pin, ComponentRec& component);
    // Node number to place in the node array.
    void RebuildNodePosition();
    // The array record of a node number given as text, or null.
    const NodeRec* NodeOf(const std::string& nodeId) const;

    base::StringMap<ComponentRec>* components = nullptr;
    ModelAssignment* models = nullptr;
    std::string inputName;
    FILE* output = nullptr;
    FILE* log = nullptr;
    int32_t includeNoNet = 0;
    int32_t selectedOnly = 0;
    std::vector<int32_t> selectedNets;  // sorted
    std::vector<uint32_t> nodePosition;
    // Node lines of the nodes made for pins; kept, never printed.
    std::vector<std::string> extraNodes;
    std::string componentFile, componentPinFile, componentPadFile;

  private:
    bool NodeNetTaken(int32_t net) const;
    std::unordered_set<std::string> PinPlaces() const;
    std::unordered_map<std::string, std::pair<uint32_t, uint32_t>> PinPlaceNodes() const;
    bool Crosses(int32_t layer, int32_t net, double minX, double minY, double maxX, double maxY);
    // Traces by layer and start-node net, made on first use.
    std::unordered_map<int64_t, std::vector<int32_t>> tracesByLayerNet_;
    bool tracesIndexed_ = false;
};

// "x#y#layer" with six decimals: the key that binds a pin to a node.
std::string NodeKey(double x, double y, int32_t layer);
