#include "geometry/MakeNode.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"

namespace {

using namespace testing_support;
using namespace fixtures;

int32_t Node(double x, int32_t net, int32_t layer = 0) {
    return AddNode(nullptr, x, 0.0, layer, net, 1, nullptr, 0.0);
}

void AddTrace(int32_t start, int32_t end, int32_t layer = 0, double width = 1.0) {
    TraceRec t;
    t.width = width;
    t.layer = layer;
    t.startNode = start;
    t.endNode = end;
    g_model.g_aTraces.push_back(t);
    g_model.g_aTraceNets.push_back(kNoNet);
    g_model.g_aTraceFlags.push_back(0);
}

void Settle() {
    RebuildNodeArray();
    RebuildNodeIndex();
    MakeNode();
}

TEST(MakeNode, NetsTravelOneForwardPassAlongTheTable) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}});
    int32_t a = Node(0, 5), b = Node(1, kNoNet), c = Node(2, kNoNet), d = Node(3, kNoNet);
    int32_t e = Node(4, kNoNet), f = Node(5, 6), g = Node(6, 7), h = Node(7, 8);
    AddTrace(c, d);                         // runs before c has a net: d stays without one
    AddTrace(a, b);                         // b takes a's net
    AddTrace(b, c, 0, kDeletedTraceWidth);  // deleted traces still carry nets
    AddTrace(e, f);                         // a start without net takes the end's
    AddTrace(g, h);                         // both have nets: nothing changes
    Settle();
    EXPECT_EQ(NodeById(b)->net, 5);
    EXPECT_EQ(NodeById(c)->net, 5);
    EXPECT_EQ(NodeById(d)->net, kNoNet);
    EXPECT_EQ(NodeById(e)->net, 6);
    EXPECT_EQ(NodeById(g)->net, 7);
    EXPECT_EQ(NodeById(h)->net, 8);
    // The set is not touched: the next rebuild brings the read nets back.
    RebuildNodeArray();
    RebuildNodeIndex();
    EXPECT_EQ(NodeById(b)->net, kNoNet);
}

TEST(MakeNode, TracesOffSignalLayersStopHoldingTheirNodes) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"GND", kLayerPlane}});
    int32_t p = Node(0, 1, 2), q = Node(1, 1, 2);
    Node(0, 1, 2);
    Node(0, 1, 2);  // p is held three times
    int32_t s = Node(0, 1, 0), t = Node(1, 1, 0);
    int32_t u = Node(0, 1, -1);
    AddTrace(p, q, 2);  // plane: both ends drop a reference
    AddTrace(p, q, 2);
    AddTrace(q, q, 2);                      // not below 0
    AddTrace(s, t, 0);                      // signal: unchanged
    AddTrace(s, t, 2, kDeletedTraceWidth);  // deleted: unchanged, whatever its layer
    AddTrace(u, u, -1);                     // unknown layer: not a signal layer
    Settle();
    EXPECT_EQ(NodeById(p)->traceRefs, 1);  // 3 references, 2 plane traces
    EXPECT_EQ(NodeById(q)->traceRefs, 0);  // 1 reference, 4 drops
    EXPECT_EQ(NodeById(s)->traceRefs, 1);
    EXPECT_EQ(NodeById(t)->traceRefs, 1);
    EXPECT_EQ(NodeById(u)->traceRefs, 0);
}

}  // namespace
