#pragma once
// The board as the translation sees it: one global record of tables, filled by the reader
// passes in a fixed order, cleaned, and written. Lengths are doubles in mm, areas in mm².
// Net index: position in the sorted net table; kNoNet and kNoNetAlt mean no net. Layer index:
// position in the layer table, top first; -1 for an unknown name.
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "base/StringMap.h"
#include "base/TextFile.h"
#include "model/ComponentRecords.h"
#include "model/LayerRecords.h"
#include "model/NetIndex.h"
#include "model/NodeRec.h"
#include "model/PadRecords.h"
#include "model/ShapeRec.h"
#include "model/TraceRec.h"
#include "model/ViaOutRec.h"
#include "model/ViaRec.h"

constexpr int kNetNameBytes = 128;

struct NetRec {
    char name[kNetNameBytes] = {};  // cut to 127 characters, always terminated
};

struct ThermalTieTypeRec {
    std::string name;
    double width = 0.0;
    int32_t nValue1 = 0, nValue2 = 0;
    double dbValue = 0.0;
};

struct LayoutModel {
    // The input, loaded once per translation; every pass walks this text.
    base::SharedText inputText;
    std::string inputTextPath;

    // Units.
    double g_dbLengthScale = 1e-5;
    double g_dbConductivityScale = 1e8;
    base::StringMap<std::string> g_mapUnits;

    // Nets.
    std::vector<NetRec> g_strNetNames;
    int32_t g_nNetCount = 0;
    std::vector<std::string> g_strDisplayNetNames;

    // Layer stack.
    std::vector<MaterialRec> g_lstMaterials;
    std::unique_ptr<LayerRec[]> g_aLayers;  // kMaxLayers records once allocated
    int16_t g_nLayerCount = 0;
    base::StringMap<std::string> g_mapLayerId;
    base::StringMap<std::string> g_mapLayerKind;

    // Pads and padstacks.
    base::StringMap<PadLibRec> g_padLibrary;
    base::StringMap<PadStackRec> g_padStacks;
    base::StringMap<int32_t> g_mapOffsetPadStacks;
    base::StringMap<PadNameRec> g_mapPadBoundaries;
    std::vector<std::unique_ptr<PadStackSizeRec>> g_lstPadStackSizes;
    base::StringMap<PadStackSizeRec*> g_mapPadStackSizes;
    int32_t nBuriedWithoutRule = 0;

    // Vias and drills.
    std::vector<ViaRec> g_aVias;
    std::vector<DrillRadius> g_aDrillRadii;  // sorted by radius

    // Traces, with their nets and flags in parallel arrays.
    std::vector<TraceRec> g_aTraces;
    std::vector<int32_t> g_aTraceNets;
    std::vector<uint8_t> g_aTraceFlags;

    // Shapes: records, shared point table, boxes by table index, board outline.
    std::vector<ShapeRec> g_aShapes;
    std::vector<ShapePoint> g_aShapePoints;
    std::vector<BoundingBox> g_aShapeBoxes;
    std::vector<ShapePoint> g_lstBoardOutline;

    // Nodes: the ordered set, its flat copy, and the id-to-index map.
    NodeSet g_setNodes;
    std::vector<NodeRec> g_aNodes;
    uint32_t g_nNodeCount = 0;
    std::vector<uint32_t> g_aNodeIndex;
    // Pin names of nodes; a node's label is a place in it, 0 the empty name.
    std::vector<std::string> g_aNodeLabels{std::string()};
    // Padstacks and rotations of nodes; a node's pad is a place in it, 0 none.
    std::vector<NodePadEntry> g_aNodePads{NodePadEntry{}};

    // Via output table, grown in small blocks: it reaches a million rows on a big board, and a
    // doubling vector would hold the old rows and twice their room at once when it grows.
    std::deque<ViaOutRec> g_aViaOut;

    // Side files.
    base::StringMap<ThermalTieTypeRec> g_mapThermalTieTypes;

    // Components.
    base::StringMap<ComponentRec> g_mapComponents{base::kComponentBuckets};
    base::StringMap<PackageDefRec> g_mapPackageDefs{base::kComponentBuckets};
    base::StringMap<PartPowerRec> g_mapPartPower{base::kComponentBuckets};
    base::StringMap<std::string> g_mapAliasProps{base::kComponentBuckets};

    // Working copy of the spatial range, taken at the pipeline's start.
    double g_dbWorkMinX = -1e38, g_dbWorkMinY = -1e38;
    double g_dbWorkMaxX = 1e38, g_dbWorkMaxY = 1e38;
    double g_dbTinyTraceLimitSquared = 0.0;

    int32_t ViaCount() const { return static_cast<int32_t>(g_aVias.size()); }
    int32_t TraceCount() const { return static_cast<int32_t>(g_aTraces.size()); }
    int32_t ShapeCount() const { return static_cast<int32_t>(g_aShapes.size()); }
};

extern LayoutModel g_model;

// Back to the initial values, for a fresh translation or a test.
void ResetLayoutModel();

// Net name of a net index, from the unique display names; empty for the no-net values.
const std::string& DisplayNetName(int32_t net);
// Plain net name from the sorted net table; empty for the no-net values.
std::string PlainNetName(int32_t net);
