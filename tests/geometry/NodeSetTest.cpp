// The node set's cases are board scripts under tests/data/geometry/NodeSet; here its array,
// index and range walk.
#include "model/NodeSet.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/LayoutModel.h"

namespace {

using testing_support::ResetGlobals;

int32_t TraceEnd(double x, double y, int32_t layer, int32_t net = 0) {
    return AddNode(nullptr, x, y, layer, net, 1, nullptr, 0.0);
}

// A node as "#id Llayer x,y net contact traceRefs viaRefs".
std::string Text(const NodeRec* n) {
    char buf[96];
    std::snprintf(buf, sizeof buf, "#%u L%d %.17g,%.17g n%d c%u t%u v%u", n->id, n->layer, n->x,
                  n->y, n->net, n->contact, n->traceRefs, n->viaRefs);
    return buf;
}

TEST(NodeSet, ArrayIsTheSetInKeyOrderWithBlockCapacity) {
    ResetGlobals();
    TraceEnd(3.0, 0.0, 1);  // id 0
    TraceEnd(1.0, 5.0, 1);  // id 1
    TraceEnd(1.0, 2.0, 1);  // id 2
    TraceEnd(9.0, 9.0, 0);  // id 3
    RebuildNodeArray();
    EXPECT_EQ(g_model.g_aNodes.capacity(), 8192u);
    std::vector<uint32_t> ids;
    for (const NodeRec& node : g_model.g_aNodes) ids.push_back(node.id);
    EXPECT_EQ(ids, (std::vector<uint32_t>{3, 2, 1, 0}));

    RebuildNodeIndex();
    EXPECT_EQ(g_model.g_aNodeIndex, (std::vector<uint32_t>{3, 2, 1, 0}));
    EXPECT_EQ(Text(NodeById(2)), "#2 L1 1,2 n0 c1 t1 v0");
    EXPECT_EQ(NodeById(4), nullptr);
    EXPECT_EQ(NodeById(-1), nullptr);

    // Changes to the array do not reach the set: a rebuild undoes them.
    NodeById(2)->net = 42;
    RebuildNodeArray();
    EXPECT_EQ(g_model.g_aNodes[1].net, 0);

    // The capacity grows in whole blocks.
    for (int i = 0; i < 8187; ++i) TraceEnd(100.0 + i, 0.0, 0);
    RebuildNodeArray();
    EXPECT_EQ(g_model.g_aNodes.capacity(), 8192u);
    TraceEnd(-1.0, 0.0, 0);
    RebuildNodeArray();
    EXPECT_EQ(g_model.g_aNodes.size(), 8192u);
    EXPECT_EQ(g_model.g_aNodes.capacity(), 16384u);
    EXPECT_EQ(g_model.g_aNodes[0].x, -1.0);
}

TEST(NodeSet, RangeWalkStaysOnItsLayerBetweenTheBounds) {
    ResetGlobals();
    for (int i = 0; i < 6; ++i) TraceEnd(i * 1.0, 0.0, 1);  // ids 0..5
    TraceEnd(2.0, 0.0, 0);                                  // id 6, another layer
    TraceEnd(2.0, 0.0, 2);                                  // id 7
    auto walk = [](int32_t layer, double x0, double x1, uint32_t stopAt) {
        std::vector<uint32_t> seen;
        WalkNodeRange(layer, x0, -1.0, x1, 1.0, [&](const NodeRec& node) {
            seen.push_back(node.id);
            return node.id == stopAt;
        });
        return seen;
    };
    EXPECT_EQ(walk(1, 1.5, 3.5, 99), (std::vector<uint32_t>{2, 3}));
    EXPECT_EQ(walk(1, 0.5, 9.0, 3), (std::vector<uint32_t>{1, 2, 3}));  // stops at a hit
    EXPECT_TRUE(walk(3, -9.0, 9.0, 99).empty());
}

}  // namespace
