#include "model/NodeSet.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/LayoutModel.h"

namespace {

using testing_support::ResetGlobals;

int32_t TraceEnd(double x, double y, int32_t layer, int32_t net = 0) {
    return AddNode(nullptr, x, y, layer, net, 1, nullptr, 0.0);
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
    const NodeRec* node = FindNode(0, 10.0, 0.0);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->traceRefs, 3);
    EXPECT_EQ(node->viaRefs, 0);
    EXPECT_EQ(node->x, 10.0);  // the first end's position stands
}

TEST(NodeSet, SamePointOnTwoLayersGivesTwoNodes) {
    ResetGlobals();
    EXPECT_EQ(TraceEnd(1.0, 2.0, 0), 0);
    EXPECT_EQ(TraceEnd(1.0, 2.0, 2), 1);
    EXPECT_EQ(TraceEnd(1.0, 2.0, 2), 1);
    EXPECT_EQ(g_model.g_setNodes.size(), 2u);
}

TEST(NodeSet, ExistingNodeKeepsItsOwnNetContactPadstackAndRotation) {
    ResetGlobals();
    PadStackRec pad;
    const NodeRec* first = nullptr;
    const NodeRec* second = nullptr;
    EXPECT_EQ(AddNode(&first, 1.0, 1.0, 0, 3, 1, nullptr, 0.0), 0);
    EXPECT_EQ(AddNode(&second, 1.00001, 1.0, 0, 4, 0, &pad, 45.0), 0);
    EXPECT_EQ(first, second);
    EXPECT_EQ(second->net, 3);
    EXPECT_EQ(second->contact, 1);
    EXPECT_EQ(second->padStack, nullptr);
    EXPECT_EQ(second->rotation, 0.0);
    EXPECT_EQ(second->traceRefs, 2);
}

TEST(NodeSet, ViaOnATraceEndTakesThatNodeAndItsNetOnlyWhenItHasNone) {
    ResetGlobals();
    EXPECT_EQ(TraceEnd(5.0, 5.0, 1, 7), 0);
    const NodeRec* via = AddViaNode(5.00003, 5.0, 1, 9, 0, 1);
    ASSERT_NE(via, nullptr);
    EXPECT_EQ(via->id, 0u);
    EXPECT_EQ(via->viaRefs, 1);
    EXPECT_EQ(via->traceRefs, 2);
    EXPECT_EQ(via->net, 7);  // the trace's net is not overwritten
    EXPECT_EQ(via->x, 5.0);  // the node keeps the first end's position
    EXPECT_EQ(via->contact, 1);

    EXPECT_EQ(TraceEnd(8.0, 8.0, 1, kNoNet), 1);
    via = AddViaNode(8.0, 8.0, 1, 9, 1, 1);
    EXPECT_EQ(via->net, 9);  // a node without net takes the via's
    EXPECT_EQ(via->viaRefs, 1);
    EXPECT_EQ(via->traceRefs, 2);

    via = AddViaNode(8.0, 8.0, 1, 4, 1, 0);  // no via reference: only a trace reference
    EXPECT_EQ(via->viaRefs, 1);
    EXPECT_EQ(via->traceRefs, 3);
    EXPECT_EQ(via->net, 9);
}

TEST(NodeSet, NewViaNodeStoresContactAndViaReference) {
    ResetGlobals();
    const NodeRec* via = AddViaNode(1.0, 1.0, 0, 2, 0, 1);
    ASSERT_NE(via, nullptr);
    EXPECT_EQ(via->id, 0u);
    EXPECT_EQ(via->contact, 0);
    EXPECT_EQ(via->viaRefs, 1);
    EXPECT_EQ(via->traceRefs, 1);
    EXPECT_EQ(via->net, 2);
    EXPECT_EQ(g_model.g_nNodeCount, 1u);
    // The caller may change the record in the set.
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
    ASSERT_EQ(g_model.g_aNodes.size(), 4u);
    EXPECT_EQ(g_model.g_aNodes.capacity(), 8192u);
    std::vector<uint32_t> ids;
    for (const NodeRec& node : g_model.g_aNodes) ids.push_back(node.id);
    EXPECT_EQ(ids, (std::vector<uint32_t>{3, 2, 1, 0}));

    RebuildNodeIndex();
    ASSERT_EQ(g_model.g_aNodeIndex.size(), 4u);
    EXPECT_EQ(g_model.g_aNodeIndex, (std::vector<uint32_t>{3, 2, 1, 0}));
    ASSERT_NE(NodeById(2), nullptr);
    EXPECT_EQ(NodeById(2)->y, 2.0);
    EXPECT_EQ(NodeById(4), nullptr);
    EXPECT_EQ(NodeById(-1), nullptr);

    // Changes to the array do not reach the set: a rebuild undoes them.
    NodeById(2)->net = 42;
    RebuildNodeArray();
    EXPECT_EQ(g_model.g_aNodes[1].net, 0);
}

TEST(NodeSet, ArrayCapacityGrowsInWholeBlocks) {
    ResetGlobals();
    for (int i = 0; i < 8191; ++i) TraceEnd(i * 1.0, 0.0, 0);
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
    std::vector<uint32_t> seen;
    WalkNodeRange(1, 1.5, -1.0, 3.5, 1.0, [&](const NodeRec& node) {
        seen.push_back(node.id);
        return false;
    });
    EXPECT_EQ(seen, (std::vector<uint32_t>{2, 3}));

    seen.clear();
    WalkNodeRange(1, 0.5, -1.0, 9.0, 1.0, [&](const NodeRec& node) {
        seen.push_back(node.id);
        return node.id == 3;  // stop at the first hit
    });
    EXPECT_EQ(seen, (std::vector<uint32_t>{1, 2, 3}));

    seen.clear();
    WalkNodeRange(3, -9.0, -9.0, 9.0, 9.0, [&](const NodeRec& node) {
        seen.push_back(node.id);
        return false;
    });
    EXPECT_TRUE(seen.empty());
}

TEST(NodeSet, FindNodeUsesTheTolerance) {
    ResetGlobals();
    TraceEnd(4.0, 4.0, 2);
    EXPECT_NE(FindNode(2, 4.00005, 3.99995), nullptr);
    EXPECT_EQ(FindNode(2, 4.00007, 4.0), nullptr);
    EXPECT_EQ(FindNode(1, 4.0, 4.0), nullptr);
}

}  // namespace
