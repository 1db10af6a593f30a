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
    if (!n) return "none";
    char buf[96];
    std::snprintf(buf, sizeof buf, "#%u L%d %.17g,%.17g n%d c%u t%u v%u", n->id, n->layer, n->x,
                  n->y, n->net, n->contact, n->traceRefs, n->viaRefs);
    return buf;
}

TEST(NodeSet, EndsWithinToleranceShareANodeAndFartherOnesDoNot) {
    ResetGlobals();
    EXPECT_EQ(TraceEnd(10.0, 0.0, 0), 0);
    EXPECT_EQ(TraceEnd(10.00005, 0.0, 0), 0);  // 5e-5 mm away in x: the same node
    EXPECT_EQ(TraceEnd(10.0, 10.00005 - 10.0, 0), 0);
    EXPECT_EQ(TraceEnd(10.00007, 0.0, 0), 1);  // 7e-5 mm away: a node of its own
    EXPECT_EQ(TraceEnd(10.0, 7e-5, 0), 2);
    EXPECT_EQ(g_model.g_nNodeCount, 3u);
    EXPECT_EQ(g_model.g_setNodes.size(), 3u);
    // The first end's position stands.
    EXPECT_EQ(Text(FindNode(0, 10.0, 0.0)), "#0 L0 10,0 n0 c1 t3 v0");
    // The same point on another layer is another node.
    EXPECT_EQ(TraceEnd(10.0, 0.0, 2), 3);
    EXPECT_EQ(TraceEnd(10.0, 0.0, 2), 3);
    // FindNode uses the tolerance.
    EXPECT_NE(FindNode(2, 10.00005, -0.00005), nullptr);
    EXPECT_EQ(FindNode(2, 10.00007, 0.0), nullptr);
    EXPECT_EQ(FindNode(1, 10.0, 0.0), nullptr);
}

TEST(NodeSet, ExistingNodeKeepsItsOwnNetContactPadstackAndRotation) {
    ResetGlobals();
    PadStackRec pad;
    const NodeRec* first = nullptr;
    const NodeRec* second = nullptr;
    EXPECT_EQ(AddNode(&first, 1.0, 1.0, 0, 3, 1, nullptr, 0.0), 0);
    EXPECT_EQ(AddNode(&second, 1.00001, 1.0, 0, 4, 0, &pad, 45.0), 0);
    EXPECT_EQ(first, second);
    EXPECT_EQ(Text(second), "#0 L0 1,1 n3 c1 t2 v0");
    EXPECT_EQ(second->padStack, nullptr);
    EXPECT_EQ(second->rotation, 0.0);
}

TEST(NodeSet, ViaNodes) {
    ResetGlobals();
    // On a trace end the via takes that node and its position, but not its net.
    EXPECT_EQ(TraceEnd(5.0, 5.0, 1, 7), 0);
    EXPECT_EQ(Text(AddViaNode(5.00003, 5.0, 1, 9, 0, 1)), "#0 L1 5,5 n7 c1 t2 v1");
    // A node without net takes the via's.
    EXPECT_EQ(TraceEnd(8.0, 8.0, 1, kNoNet), 1);
    EXPECT_EQ(Text(AddViaNode(8.0, 8.0, 1, 9, 1, 1)), "#1 L1 8,8 n9 c1 t2 v1");
    // No via reference: only a trace reference.
    EXPECT_EQ(Text(AddViaNode(8.0, 8.0, 1, 4, 1, 0)), "#1 L1 8,8 n9 c1 t3 v1");
    // A new via node stores its contact and the via reference; the caller may change it.
    const NodeRec* via = AddViaNode(1.0, 1.0, 0, 2, 0, 1);
    EXPECT_EQ(Text(via), "#2 L0 1,1 n2 c0 t1 v1");
    via->contact = 1;
    EXPECT_EQ(FindNode(0, 1.0, 1.0)->contact, 1);
}

TEST(NodeSet, InsertionOrderDecidesWhichNearlyEqualPointsComeTogether) {
    ResetGlobals();
    // 0 and 1e-4 are two nodes; 5e-5 lies within the tolerance of both and joins the
    // lower one instead of making a third. Had 5e-5 come first, both would have joined it.
    EXPECT_EQ(TraceEnd(0.0, 0.0, 0), 0);
    EXPECT_EQ(TraceEnd(1e-4, 0.0, 0), 1);
    EXPECT_EQ(TraceEnd(5e-5, 0.0, 0), 0);
    EXPECT_EQ(g_model.g_setNodes.size(), 2u);
    EXPECT_EQ(FindNode(0, 5e-5, 0.0)->id, 0u);

    ResetGlobals();
    EXPECT_EQ(TraceEnd(5e-5, 0.0, 0), 0);
    EXPECT_EQ(TraceEnd(1e-4, 0.0, 0), 0);
    EXPECT_EQ(TraceEnd(0.0, 0.0, 0), 0);
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
