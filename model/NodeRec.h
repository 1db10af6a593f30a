#pragma once
// A node is a place on a layer where conductors meet. Nodes live in an ordered set whose
// order is the node tolerance: layer first, then x, then y, with coordinates within 6e-5 mm
// of each other comparing equal. That order is not transitive at the edges of the
// tolerance, so insertion order decides which of three nearly equal points come together.
#include <cstdint>
#include <set>
#include <string>

#include "model/NetIndex.h"
#include "model/NodeLabel.h"
#include "model/NodePad.h"
#include "model/NodePool.h"

constexpr double kNodeTolerance = 6e-5;

struct NodeRec {
    // The key: layer, x, y. The other fields may change while the record is in the set. x
    // and y may too, but only within the tolerance of where they were (a via moves its nodes
    // onto its upper end's position): a larger move would break the set's order. The fields
    // are ordered so that the record packs into 48 bytes: every node is held twice.
    int32_t layer = 0;
    mutable uint32_t id = 0;
    mutable double x = 0.0, y = 0.0;
    mutable int32_t net = kNoNet;
    // As wide as the node numbers: one node may hold any number of ends.
    mutable uint32_t viaRefs = 0;
    mutable uint32_t traceRefs = 1;
    mutable NodeLabel label;  // pin name; empty when the node has none
    mutable NodePad pad;      // padstack and rotation; none for most nodes
    mutable uint16_t contact = 0;
    mutable int8_t mirrored = 1;
};

static_assert(sizeof(NodeRec) <= 48, "a node record fills three quarters of a cache line");

struct NodeOrder {
    bool operator()(const NodeRec& a, const NodeRec& b) const {
        if (a.layer != b.layer) return a.layer < b.layer;
        double dx = a.x - b.x;
        if (dx > kNodeTolerance) return false;
        if (dx < -kNodeTolerance) return true;
        double dy = a.y - b.y;
        if (dy > kNodeTolerance) return false;
        if (dy < -kNodeTolerance) return true;
        return false;
    }
};

using NodeSet = std::set<NodeRec, NodeOrder, NodePoolAllocator<NodeRec>>;
