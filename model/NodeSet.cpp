#include "model/NodeSet.h"

#include <new>
#include <vector>

#include "base/HugePages.h"
#include "model/LayoutModel.h"

namespace {

NodeRec KeyOf(int32_t layer, double x, double y) {
    NodeRec key;
    key.layer = layer;
    key.x = x;
    key.y = y;
    return key;
}

// The set's record equal to key, found from its lower bound, or end(). Finding and inserting
// both start from the lower bound, so a point that is near two distinct nodes always joins
// the same one of them.
NodeSet::iterator FindEqual(NodeSet& set, const NodeRec& key, NodeSet::iterator& lower) {
    lower = set.lower_bound(key);
    if (lower != set.end() && !NodeOrder()(key, *lower)) return lower;
    return set.end();
}

// Inserts a new record at the given lower bound. Returns the set's record, which is an
// existing one when the set itself finds the new record equal to one of its neighbours.
const NodeRec* InsertAt(NodeSet& set, NodeSet::iterator lower, const NodeRec& rec, bool& added) {
    NodeSet::iterator it = set.emplace_hint(lower, rec);
    added = it->id == rec.id;  // existing records all have lower numbers
    if (added) ++g_model.g_nNodeCount;
    return &*it;
}

}  // namespace

int32_t AddNode(const NodeRec** outRecord, double x, double y, int32_t layer, int32_t net,
                uint16_t contact, PadStackRec* padStack, double rotation) {
    NodeSet& set = g_model.g_setNodes;
    NodeRec rec = KeyOf(layer, x, y);
    NodeSet::iterator lower;
    NodeSet::iterator found = FindEqual(set, rec, lower);
    const NodeRec* node = nullptr;
    bool added = false;
    if (found != set.end()) {
        node = &*found;
    } else {
        rec.id = g_model.g_nNodeCount;
        rec.net = net;
        rec.contact = contact;
        rec.viaRefs = 0;
        rec.traceRefs = 1;
        rec.pad.Set(padStack, rotation);
        try {
            node = InsertAt(set, lower, rec, added);
        } catch (const std::bad_alloc&) {
            return -1;
        }
    }
    if (!added) ++node->traceRefs;
    if (outRecord) *outRecord = node;
    return static_cast<int32_t>(node->id);
}

const NodeRec* AddViaNode(double x, double y, int32_t layer, int32_t net, uint16_t contact,
                          uint16_t viaRef) {
    NodeSet& set = g_model.g_setNodes;
    NodeRec rec = KeyOf(layer, x, y);
    NodeSet::iterator lower;
    NodeSet::iterator found = FindEqual(set, rec, lower);
    const NodeRec* node = nullptr;
    bool added = false;
    if (found != set.end()) {
        node = &*found;
    } else {
        rec.id = g_model.g_nNodeCount;
        rec.net = net;
        rec.contact = contact;
        rec.viaRefs = viaRef;
        rec.traceRefs = 1;
        try {
            node = InsertAt(set, lower, rec, added);
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }
    if (!added) {
        ++node->traceRefs;
        if (viaRef != 0) ++node->viaRefs;
        if (node->net == kNoNet) node->net = net;
    }
    return node;
}

const NodeRec* FindNode(int32_t layer, double x, double y) {
    NodeSet::iterator lower;
    NodeSet::iterator found = FindEqual(g_model.g_setNodes, KeyOf(layer, x, y), lower);
    return found == g_model.g_setNodes.end() ? nullptr : &*found;
}

void WalkNodeRange(int32_t layer, double minX, double minY, double maxX, double maxY,
                   const std::function<bool(const NodeRec&)>& visit) {
    const NodeSet& set = g_model.g_setNodes;
    NodeSet::const_iterator it = set.lower_bound(KeyOf(layer, minX, minY));
    NodeSet::const_iterator last = set.upper_bound(KeyOf(layer, maxX, maxY));
    // The order is not transitive at the edges of the tolerance, so the two bounds are not
    // trusted to come in order: the layer test keeps the walk finite and on its layer.
    for (; it != last && it != set.end() && it->layer == layer; ++it)
        if (visit(*it)) return;
}

void RebuildNodeArray() {
    const NodeSet& set = g_model.g_setNodes;
    // The old copy goes first, so that two copies are never held at once.
    std::vector<NodeRec>().swap(g_model.g_aNodes);
    std::vector<NodeRec> nodes;
    base::ReserveLarge(nodes, (set.size() / kNodeArrayBlock + 1) * kNodeArrayBlock);
    // One walk of the tree: assign() over set iterators walks it once to count, then to copy.
    for (const NodeRec& node : set) nodes.push_back(node);
    g_model.g_aNodes.swap(nodes);
}

void RebuildNodeIndex() {
    std::vector<uint32_t> index(g_model.g_nNodeCount, kNoNodeIndex);
    const std::vector<NodeRec>& nodes = g_model.g_aNodes;
    for (size_t i = 0; i < nodes.size(); ++i)
        if (nodes[i].id < index.size()) index[nodes[i].id] = static_cast<uint32_t>(i);
    g_model.g_aNodeIndex.swap(index);
}

NodeRec* NodeById(int64_t id) {
    if (id < 0 || static_cast<uint64_t>(id) >= g_model.g_aNodeIndex.size()) return nullptr;
    uint32_t place = g_model.g_aNodeIndex[static_cast<size_t>(id)];
    if (place >= g_model.g_aNodes.size()) return nullptr;
    NodeRec& node = g_model.g_aNodes[place];
    return static_cast<int64_t>(node.id) == id ? &node : nullptr;
}
