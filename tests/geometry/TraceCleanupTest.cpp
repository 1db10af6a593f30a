#include "geometry/TraceCleanup.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <stdexcept>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/MakeNode.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/TraceReader.h"
#include "qfx/NodeWriter.h"
#include "qfx/TraceWriter.h"

namespace {

using testing_support::CaptureOutput;

constexpr int32_t kClk = 0;
constexpr int32_t kGnd = 1;

class TraceCleanupTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeLayerStack({{"TOP", kLayerSignal}});
        fixtures::MakeNets({"CLK", "GND"});
    }

    static void Trace(double x1, double y1, double x2, double y2, int32_t net = kClk) {
        ASSERT_TRUE(GrowTraceArrays());
        ASSERT_TRUE(AddTraceRecord(x1, y1, x2, y2, 0.1, 0, net));
    }

    // The array and index as the driver leaves them before the clean-up passes.
    static void LastRebuild() {
        RebuildNodeArray();
        RebuildNodeIndex();
    }

    static void UnionLength(double length) { g_model.g_dbTinyTraceLimitSquared = length * length; }

    static std::string NodeAndTraceLines() {
        MakeNode();
        return CaptureOutput([](FILE* f) {
            WriteNodes(f);
            WriteTraces(f);
        });
    }

    static double Width(size_t t) { return g_model.g_aTraces[t].width; }
    static int32_t Start(size_t t) { return g_model.g_aTraces[t].startNode; }
    static int32_t End(size_t t) { return g_model.g_aTraces[t].endNode; }
    static int Refs(int32_t id) { return NodeById(id)->traceRefs; }
};

TEST_F(TraceCleanupTest, DeletedWidthIsTheExactBitPattern) {
    uint64_t bits = 0;
    std::memcpy(&bits, &kDeletedTraceWidth, sizeof bits);
    EXPECT_EQ(bits, 0xC7D2CED32A16A1B1ull);
}

TEST_F(TraceCleanupTest, ZeroLengthTraceOnOneNodeIsKickedOutAndLeavesNoLine) {
    Trace(5, 5, 5, 5);  // trace 0: a loop on node 0, its only user
    Trace(1, 1, 1, 1);  // trace 1: a loop on node 1
    Trace(1, 1, 3, 1);  // trace 2: node 1 to node 2
    LastRebuild();
    EXPECT_EQ(Refs(1), 3);
    KickOutTrivialTrace();
    EXPECT_EQ(Width(0), kDeletedTraceWidth);
    EXPECT_EQ(Width(1), kDeletedTraceWidth);
    EXPECT_EQ(Width(2), 0.1);
    EXPECT_EQ(Refs(0), 0);
    EXPECT_EQ(Refs(1), 1);
    EXPECT_EQ(g_model.g_aTraces.size(), 3u);  // the records stay
    EXPECT_EQ(NodeAndTraceLines(),
              "Node1::CLK X = 1.0000000000e+00mm Y = 1.0000000000e+00mm Layer = Signal$TOP "
              "Contact = 1\n"
              "Node2::CLK X = 3.0000000000e+00mm Y = 1.0000000000e+00mm Layer = Signal$TOP "
              "Contact = 1\n"
              "Trace2::CLK StartingNode = Node1::CLK EndingNode = Node2::CLK Width = "
              "1.000000e-01mm Color = red\n");
}

TEST_F(TraceCleanupTest, KickOutTakesDeletedLoopsAgainAndStopsReferencesAtZero) {
    Trace(5, 5, 5, 5);
    LastRebuild();
    g_model.g_aTraces[0].width = kDeletedTraceWidth;
    NodeById(0)->traceRefs = 1;
    KickOutTrivialTrace();
    EXPECT_EQ(Refs(0), 0);
}

TEST_F(TraceCleanupTest, WithLimitZeroTheTinyTracePassIsSkipped) {
    Trace(1, 1, 1.01, 1);
    Trace(1.01, 1, 3, 1);
    LastRebuild();
    UnionLength(0.0);
    ClearTinyTraces();
    EXPECT_EQ(Width(0), 0.1);
    EXPECT_EQ(Start(1), 1);
    EXPECT_EQ(Refs(1), 2);
}

TEST_F(TraceCleanupTest, MergeMovesTheGoingNodesTracesToTheStayingNode) {
    Trace(1, 1, 1.01, 1);  // tiny: node 0 to node 1
    Trace(1.01, 1, 3, 1);  // node 1 to node 2
    LastRebuild();
    UnionLength(0.2);
    ClearTinyTraces();
    EXPECT_EQ(Width(0), kDeletedTraceWidth);
    EXPECT_EQ(Start(1), 0);
    EXPECT_EQ(Refs(0), 1);
    EXPECT_EQ(Refs(1), 0);
    EXPECT_EQ(NodeAndTraceLines(),
              "Node0::CLK X = 1.0000000000e+00mm Y = 1.0000000000e+00mm Layer = Signal$TOP "
              "Contact = 1\n"
              "Node2::CLK X = 3.0000000000e+00mm Y = 1.0000000000e+00mm Layer = Signal$TOP "
              "Contact = 1\n"
              "Trace1::CLK StartingNode = Node0::CLK EndingNode = Node2::CLK Width = "
              "1.000000e-01mm Color = red\n");
}

TEST_F(TraceCleanupTest, TraceBetweenTwoViasIsNeverMerged) {
    ASSERT_NE(AddViaNode(1, 1, 0, kClk, 1, 1), nullptr);
    ASSERT_NE(AddViaNode(1.0001, 1, 0, kClk, 1, 1), nullptr);
    Trace(1, 1, 1.0001, 1);
    LastRebuild();
    UnionLength(1.0);
    ClearTinyTraces();
    EXPECT_EQ(Width(0), 0.1);
    EXPECT_EQ(Refs(0), 2);
    EXPECT_EQ(Refs(1), 2);
}

TEST_F(TraceCleanupTest, HeldEndStaysAndTheFreeStartGoes) {
    Trace(1, 1, 1.01, 1);  // node 0 (free) to node 1
    Trace(-2, 1, 1, 1);    // node 2 to node 0
    LastRebuild();
    NodeById(1)->label = "U1-1";  // a pin holds node 1
    UnionLength(0.2);
    ClearTinyTraces();
    EXPECT_EQ(Width(0), kDeletedTraceWidth);
    EXPECT_EQ(Start(1), 2);
    EXPECT_EQ(End(1), 1);
    EXPECT_EQ(Refs(0), 0);
    EXPECT_EQ(Refs(1), 1);
}

TEST_F(TraceCleanupTest, MeasureMixesTheCoordinatesAndMeetsTheSquaredLimit) {
    Trace(3, 0, 3, 3);      // 3 mm long, but (3 - 3)² + (3 - 3)² measures 0
    Trace(10, 0, 10.3, 0);  // 0.3 mm: the measure 0.3 exceeds the limit 0.5² = 0.25
    LastRebuild();
    UnionLength(0.5);
    ClearTinyTraces();
    EXPECT_EQ(Width(0), kDeletedTraceWidth);
    EXPECT_EQ(Width(1), 0.1);
}

TEST_F(TraceCleanupTest, FlaggedTracesAreLeftButAMergedLoopGoesInTheLastWalk) {
    Trace(1, 1, 1.01, 1);  // trace 0: flagged, not tried
    Trace(1, 1, 1.01, 1);  // trace 1: tiny, merges node 1 into node 0
    LastRebuild();
    g_model.g_aTraceFlags[0] = 1;
    UnionLength(0.2);
    ClearTinyTraces();
    EXPECT_EQ(Width(1), kDeletedTraceWidth);
    EXPECT_EQ(End(0), 0);                     // turned into a loop on node 0 ...
    EXPECT_EQ(Width(0), kDeletedTraceWidth);  // ... and deleted by the last walk
    EXPECT_EQ(Refs(0), 0);
    EXPECT_EQ(Refs(1), 0);
}

TEST_F(TraceCleanupTest, NoTracesOrNoNodesDoNothing) {
    UnionLength(1.0);
    KickOutTrivialTrace();
    ClearTinyTraces();
    EXPECT_TRUE(g_model.g_aTraces.empty());
}

class TraceGapTest : public TraceCleanupTest {
  protected:
    static void Square(double x0, double y0, double x1, double y1, int32_t net, int32_t polarity) {
        ShapeRec shape;
        shape.layer = 0;
        shape.net = net;
        shape.polarity = polarity;
        AppendShape(shape, {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}, {x0, y0}});
    }
    static std::vector<ShapePoint> Points(size_t i) {
        const ShapeRec& s = g_model.g_aShapes[i];
        auto first = g_model.g_aShapePoints.begin() + s.firstPoint;
        return std::vector<ShapePoint>(first, first + s.pointCount);
    }
};

TEST_F(TraceGapTest, TwentyPercentOnATenthMillimetreGivesAGapOfFourteenHundredths) {
    Trace(1, 1, 2, 1);
    LastRebuild();
    g_options.g_strTraceGapPercent = "20";
    GenerateTraceGaps();
    EXPECT_EQ(g_model.g_aTraces[0].gap, 1);
    ASSERT_EQ(g_model.g_aShapes.size(), 1u);
    const ShapeRec& gap = g_model.g_aShapes[0];
    EXPECT_EQ(gap.polarity, kPolarityVoid);
    EXPECT_EQ(gap.undiscardable, 1);
    EXPECT_EQ(gap.layer, 0);
    EXPECT_EQ(gap.net, kClk);
    const double width = (2 * 20.0 + 100) * 0.1 / 100;
    EXPECT_NEAR(width, 0.14, 1e-15);
    const double h = width / 2;  // 0.07 to each side and past each end
    std::vector<ShapePoint> p = Points(0);
    ASSERT_EQ(p.size(), 5u);
    const double xs[] = {1 - h, 1 - h, 2 + h, 2 + h, 1 - h};
    const double ys[] = {1 - h, 1 + h, 1 + h, 1 - h, 1 - h};
    for (size_t k = 0; k < 5; ++k) {
        EXPECT_EQ(p[k].x, xs[k]) << k;
        EXPECT_EQ(p[k].y, ys[k]) << k;
    }
}

TEST_F(TraceGapTest, EndInOwnCopperNeedsNoGapOtherNetsAndVoidsDo) {
    Square(0, 0, 1.5, 2, kClk, kPolarityCopper);        // holds the start of trace 0
    Square(9, 0, 11, 2, kGnd, kPolarityCopper);         // holds the start of trace 1
    Square(19, 0, 21, 2, kClk, kPolarityCopper);        // a CLK fill ...
    Square(19.5, 0.5, 20.5, 1.5, kGnd, kPolarityVoid);  // ... with a void at trace 2's start
    SortShapes();
    Trace(1, 1, 5, 1);
    Trace(10, 1, 15, 1);
    Trace(20, 1, 25, 1);
    LastRebuild();
    g_options.g_strTraceGapPercent = "50";
    GenerateTraceGaps();
    EXPECT_EQ(g_model.g_aTraces[0].gap, 0);
    EXPECT_EQ(g_model.g_aTraces[1].gap, 1);
    EXPECT_EQ(g_model.g_aTraces[2].gap, 1);
    ASSERT_EQ(g_model.g_aShapes.size(), 6u);
    EXPECT_EQ(Points(4)[0].x, 10 - 0.1);  // width 0.2, from trace 1's start
    EXPECT_EQ(Points(5)[0].x, 20 - 0.1);
}

TEST_F(TraceGapTest, EmptyOrZeroPercentAndDeletedTracesMakeNoGap) {
    Trace(1, 1, 2, 1);
    LastRebuild();
    GenerateTraceGaps();
    g_options.g_strTraceGapPercent = "0.0";
    GenerateTraceGaps();
    EXPECT_TRUE(g_model.g_aShapes.empty());
    g_model.g_aTraces[0].width = kDeletedTraceWidth;
    g_options.g_strTraceGapPercent = "20";
    GenerateTraceGaps();
    EXPECT_EQ(g_model.g_aTraces[0].gap, 0);
    EXPECT_TRUE(g_model.g_aShapes.empty());
}

}  // namespace

namespace {

// The tiny-trace pass as plainly written: each merge walks the whole table from its start.
void PlainClearTinyTraces(std::vector<TraceRec>& traces, std::vector<NodeRec>& nodes,
                          const std::vector<uint8_t>& flags, double limit) {
    auto node = [&](int32_t id) -> NodeRec& {
        for (NodeRec& n : nodes)
            if (static_cast<int32_t>(n.id) == id) return n;
        throw std::runtime_error("no node");
    };
    auto lower = [](NodeRec& n, int by) {
        const uint32_t count = static_cast<uint32_t>(by);
        n.traceRefs = n.traceRefs > count ? n.traceRefs - count : 0;
    };
    for (size_t t = 0; t < traces.size(); ++t) {
        if (flags[t] != 0 || traces[t].width < 0) continue;
        NodeRec& s = node(traces[t].startNode);
        NodeRec& e = node(traces[t].endNode);
        const double a = s.x - e.y, b = e.x - e.y;
        if (std::sqrt(a * a + b * b) > limit) continue;
        if (traces[t].startNode == traces[t].endNode) {
            traces[t].width = kDeletedTraceWidth;
            lower(s, 2);
            continue;
        }
        auto held = [](const NodeRec& n) { return n.viaRefs != 0 || !n.label.empty(); };
        NodeRec* going = &e;
        NodeRec* staying = &s;
        if (held(e)) {
            if (held(s)) continue;
            std::swap(going, staying);
        }
        traces[t].width = kDeletedTraceWidth;
        int left = going->traceRefs > 0 ? going->traceRefs - 1 : 0;
        lower(*staying, 1);
        const int32_t gid = static_cast<int32_t>(going->id);
        for (size_t j = 0; j < traces.size() && left != 0; ++j) {
            if (traces[j].width == kDeletedTraceWidth) continue;
            if (traces[j].startNode == gid) {
                traces[j].startNode = static_cast<int32_t>(staying->id);
                ++staying->traceRefs;
                --left;
            }
            if (traces[j].endNode == gid) {
                traces[j].endNode = static_cast<int32_t>(staying->id);
                ++staying->traceRefs;
                --left;
            }
        }
        going->traceRefs = 0;
    }
    for (TraceRec& trace : traces) {
        if (trace.startNode != trace.endNode || !(trace.width > kDeletedTraceWidth)) continue;
        trace.width = kDeletedTraceWidth;
        lower(node(trace.startNode), 2);
    }
}

TEST(ClearTinyTraces, GivesWhatTheWalkOverTheWholeTableGives) {
    std::mt19937 rng(11);
    int deleted = 0, moved = 0;
    for (int round = 0; round < 200; ++round) {
        testing_support::ResetGlobals();
        fixtures::MakeLayerStack({{"TOP", kLayerSignal}});
        // Points on a small diagonal lattice: most traces measure tiny, ends are shared.
        std::uniform_int_distribution<int> pick(0, 12);
        auto coord = [&](int k) { return k * 0.05 + (k % 3) * 0.01; };
        const int count = 5 + round % 40;
        for (int i = 0; i < count; ++i) {
            const int a = pick(rng), b = rng() % 4 ? pick(rng) : a;
            const int c = pick(rng) % 3;
            GrowTraceArrays();
            AddTraceRecord(coord(a), coord(a + c), coord(b), coord(b + c), 0.1, 0, 0);
            g_model.g_aTraceFlags.back() = rng() % 8 == 0;
        }
        RebuildNodeArray();
        RebuildNodeIndex();
        for (NodeRec& n : g_model.g_aNodes) {
            if (rng() % 6 == 0) n.viaRefs = 1;
            if (rng() % 9 == 0) n.label = "P";
            if (rng() % 7 == 0) n.traceRefs = static_cast<uint16_t>(rng() % 4);
        }
        g_model.g_dbTinyTraceLimitSquared = 0.3;
        std::vector<TraceRec> traces = g_model.g_aTraces;
        const std::vector<TraceRec> before = traces;
        std::vector<NodeRec> nodes = g_model.g_aNodes;
        PlainClearTinyTraces(traces, nodes, g_model.g_aTraceFlags, 0.3);
        ClearTinyTraces();
        for (size_t t = 0; t < traces.size(); ++t) {
            ASSERT_EQ(g_model.g_aTraces[t].startNode, traces[t].startNode) << round << " " << t;
            ASSERT_EQ(g_model.g_aTraces[t].endNode, traces[t].endNode) << round << " " << t;
            ASSERT_EQ(g_model.g_aTraces[t].width, traces[t].width) << round << " " << t;
            deleted += traces[t].width == kDeletedTraceWidth;
            moved += traces[t].startNode != before[t].startNode ||
                     traces[t].endNode != before[t].endNode;
        }
        for (size_t k = 0; k < nodes.size(); ++k)
            ASSERT_EQ(g_model.g_aNodes[k].traceRefs, nodes[k].traceRefs) << round << " " << k;
    }
    EXPECT_GT(deleted, 500);  // the rounds merge a lot ...
    EXPECT_GT(moved, 200);    // ... and move traces between nodes
}

}  // namespace
