#pragma once
// The model's node set and its flat copy. Trace ends, pins and via barrels hold node numbers;
// two ends within the node tolerance on one layer get the same node, which is how they come
// to be connected. Look-ups go through the set's order, never through a scan.
//
// The flat array g_aNodes is a copy of the set in set order, made anew by RebuildNodeArray;
// changes made to the array do not reach the set, and indices into it hold only until the
// next rebuild. g_aNodeIndex leads from a node number to its place in the array.
#include <cstdint>
#include <functional>

#include "model/NodeRec.h"

// Finds or adds the node at (x, y) on layer, for a trace end or a pin. A new node takes the
// next node number, traceRefs 1 and viaRefs 0. An existing one counts one more trace
// reference and keeps its own position, net, contact, padstack and rotation. outRecord (may
// be null) receives the set's record. Returns the node number, or -1 when memory ran out.
int32_t AddNode(const NodeRec** outRecord, double x, double y, int32_t layer, int32_t net,
                uint16_t contact, PadStackRec* padStack, double rotation);

// Finds or adds the node at (x, y) on layer for a via barrel. A new node stores contact and
// viaRef (as its viaRefs) with traceRefs 1. An existing one counts one more trace reference,
// one more via reference when viaRef is non-zero, and takes net only when it has none.
// Returns the set's record, whose non-key fields the caller may change; null when memory ran
// out.
const NodeRec* AddViaNode(double x, double y, int32_t layer, int32_t net, uint16_t contact,
                          uint16_t viaRef);

// The node equal to (layer, x, y) in the set's sense (within the tolerance), or null.
const NodeRec* FindNode(int32_t layer, double x, double y);

// Walks the set in order from the lower bound of (layer, minX, minY) to the upper bound of
// (layer, maxX, maxY), never leaving the layer. visit returns true to stop the walk. The
// walk is a range of the set's order, not a box test: callers test the distance themselves.
void WalkNodeRange(int32_t layer, double minX, double minY, double maxX, double maxY,
                   const std::function<bool(const NodeRec&)>& visit);

// Makes g_aNodes anew from the set, in set order, with a capacity of whole 8192-record blocks.
void RebuildNodeArray();
// Makes g_aNodeIndex anew for g_nNodeCount node numbers: number -> place in g_aNodes.
void RebuildNodeIndex();

// The record of a node number in the flat array through the index, or null when the number
// is unknown or the array and index are out of step.
NodeRec* NodeById(int64_t id);

constexpr size_t kNodeArrayBlock = 8192;
// Value of an index entry whose node number is not in the array.
constexpr uint32_t kNoNodeIndex = 0xFFFFFFFFu;
