// The clean-up passes' cases are board scripts under tests/data/geometry/TraceCleanup; here
// the gaps' exact points and the tiny-trace pass against a plain walk over the whole table.
#include "geometry/TraceCleanup.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <stdexcept>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/TraceReader.h"

namespace {

constexpr int32_t kClk = 0;

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
};

TEST_F(TraceCleanupTest, DeletedWidthIsTheExactBitPattern) {
    uint64_t bits = 0;
    std::memcpy(&bits, &kDeletedTraceWidth, sizeof bits);
    EXPECT_EQ(bits, 0xC7D2CED32A16A1B1ull);
}

using TraceGapTest = TraceCleanupTest;
using fixtures::PointsOf;

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
    std::vector<ShapePoint> p = PointsOf(0);
    ASSERT_EQ(p.size(), 5u);
    const double xs[] = {1 - h, 1 - h, 2 + h, 2 + h, 1 - h};
    const double ys[] = {1 - h, 1 + h, 1 + h, 1 - h, 1 - h};
    for (size_t k = 0; k < 5; ++k) {
        EXPECT_EQ(p[k].x, xs[k]) << k;
        EXPECT_EQ(p[k].y, ys[k]) << k;
    }
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
