#include "ndd/TraceReader.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "TraceTestSupport.h"
#include "model/Progress.h"
#include "model/TranslationOptions.h"
#include "model/NodeSet.h"
#include "model/LayoutModel.h"

namespace {

using namespace testing_support;

// TOP and BOTTOM signal layers around a dielectric, nets CLK (0) and GND (1), lengths in mm.
void MakeBoard() {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"BOTTOM", kLayerSignal}});
    MakeNets({"GND", "CLK"});
    g_model.g_dbLengthScale = 1.0;
}

struct TraceView {
    double width;
    int32_t layer, start, end, color, net;
};

TraceView View(size_t i) {
    const TraceRec& t = g_model.g_aTraces.at(i);
    return {t.width, t.layer, t.startNode, t.endNode, t.color, g_model.g_aTraceNets.at(i)};
}

void ExpectTrace(size_t i, TraceView want) {
    TraceView got = View(i);
    EXPECT_EQ(got.width, want.width) << i;
    EXPECT_EQ(got.layer, want.layer) << i;
    EXPECT_EQ(got.start, want.start) << i;
    EXPECT_EQ(got.end, want.end) << i;
    EXPECT_EQ(got.color, want.color) << i;
    EXPECT_EQ(got.net, want.net) << i;
    EXPECT_EQ(g_model.g_aTraceFlags.at(i), 0) << i;
}

TEST(ParseTrace, ConnectedEndsShareNodesAndFieldsAreRead) {
    MakeBoard();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "# Traces section.\n"
                                 "%trace \"TOP\" 0.25 0 0 10 0 \"CLK\";\n"
                                 "%trace \"TOP\" 0.25 10.00005 0 20 0 \"clk\"\n"
                                 "%trace \"TOP\" 0.25 20.00007 0 30 0 GND;\n"
                                 "%trace \"BOTTOM\" 0.5 30 0 0 0 \"GND\" ;\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    ASSERT_EQ(g_model.TraceCount(), 4);
    // Nets sort without case: CLK is 0 (colour 1), GND is 1 (colour 2).
    ExpectTrace(0, {0.25, 0, 0, 1, 1, 0});
    ExpectTrace(1, {0.25, 0, 1, 2, 1, 0});  // 5e-5 mm from node 1: the same node
    ExpectTrace(2, {0.25, 0, 3, 4, 2, 1});  // 7e-5 mm from node 2: a new node
    ExpectTrace(3, {0.5, 2, 5, 6, 2, 1});   // same points on another layer: new nodes
    EXPECT_EQ(g_model.g_nNodeCount, 7u);
    EXPECT_EQ(FindNode(0, 10.0, 0.0)->traceRefs, 2);
}

TEST(ParseTrace, ScalesByTheLengthUnit) {
    MakeBoard();
    g_model.g_dbLengthScale = 1e-5;
    ScratchDir dir;
    std::string path =
        dir.Write("a.ndd", "%trace \"TOP\" 23500 1524000 1016000 1571184 1063184 \"CLK\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    ASSERT_EQ(g_model.TraceCount(), 1);
    EXPECT_EQ(g_model.g_aTraces[0].width, 23500 * 1e-5);
    const NodeRec* start = FindNode(0, 1524000 * 1e-5, 1016000 * 1e-5);
    ASSERT_NE(start, nullptr);
    EXPECT_EQ(start->x, 1524000 * 1e-5);
    EXPECT_EQ(start->y, 1016000 * 1e-5);
}

TEST(ParseTrace, LayerTokenLosesItsFirstAndLastCharacterWhateverTheyAre) {
    MakeBoard();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%trace xBOTTOMx 1 0 0 1 1 \"CLK\";\n"
                                 "%trace TOP 1 0 0 1 1 \"CLK\";\n"
                                 "%trace \"D1\" 1 0 0 1 1 \"CLK\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    ASSERT_EQ(g_model.TraceCount(), 3);
    EXPECT_EQ(g_model.g_aTraces[0].layer, 2);
    EXPECT_EQ(g_model.g_aTraces[1].layer, -1);  // "O" is no layer; the trace stays
    EXPECT_EQ(g_model.g_aTraces[2].layer, -1);  // dielectrics are never found
}

TEST(ParseTrace, NetRulesDecideWhichLinesAreKept) {
    MakeBoard();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%trace \"TOP\" 1 0 0 1 0\n"
                                 "%trace \"TOP\" 1 0 1 1 1 \"\";\n"
                                 "%trace \"TOP\" 1 0 2 1 2 \"NOSUCH\";\n"
                                 "%trace \"TOP\" 1 0 3 1 3 \"GND\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    // Without a net the line is dropped; an unknown name keeps the line with no net.
    ASSERT_EQ(g_model.TraceCount(), 2);
    ExpectTrace(0, {1, 0, 0, 1, 0, kNoNet});
    ExpectTrace(1, {1, 0, 2, 3, 2, 1});

    MakeBoard();
    g_options.g_nIncludeNoNetEtches = 1;
    ASSERT_EQ(ParseTrace(path, 0), 1);
    EXPECT_EQ(g_model.TraceCount(), 4);
    EXPECT_EQ(g_model.g_aTraceNets[0], kNoNet);
    EXPECT_EQ(g_model.g_aTraces[0].color, 0);

    MakeBoard();
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {1};  // GND
    SetNetSelectionMode();
    ASSERT_EQ(ParseTrace(path, 0), 1);
    ASSERT_EQ(g_model.TraceCount(), 1);  // "NOSUCH" is not selected
    EXPECT_EQ(g_model.g_aTraceNets[0], 1);
}

TEST(ParseTrace, LinesThatAreNotTraces) {
    MakeBoard();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "#%trace \"TOP\" 1 0 0 1 0 \"CLK\";\n"
                                 " %trace \"TOP\" 1 0 0 1 0 \"CLK\";\n"
                                 "%trace \"TOP\" 1 0 0 1 0 \"CLK\"; # Vias section.\n"
                                 "%arc_trace \"TOP\" 1 0 0 1 1 2 0 \"CLK\";\n"
                                 "%via \"V\" 0 0 0 \"CLK\";\n"
                                 "\n"
                                 "%traceX \"TOP\" 1 5 5 6 6 \"CLK\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    // Only the line whose first six characters are "%trace" is read.
    ASSERT_EQ(g_model.TraceCount(), 1);
    EXPECT_EQ(FindNode(0, 5.0, 5.0)->id, 0u);
}

TEST(ParseTrace, TraceRuleEndsThePassOnlyAfterTheFirstTrace) {
    MakeBoard();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%tracerule \"CLK\" 1;\n"
                                 "%trace \"TOP\" 1 0 0 1 0 \"CLK\";\n"
                                 "%trace \"TOP\" 1 1 0 2 0 \"CLK\";\n"
                                 "%tracerule \"CLK\" 1;\n"
                                 "%trace \"TOP\" 1 2 0 3 0 \"CLK\";\n"
                                 "%arc_trace \"TOP\" 1 5 0 6 1 7 0 \"CLK\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    EXPECT_EQ(g_model.TraceCount(), 2);
    ASSERT_EQ(ParseArcTrace(path, 0), 1);  // an arc after the rule is read
    EXPECT_EQ(g_model.TraceCount(), 4);
}

TEST(ParseTrace, SpatialRangeComparesTheFilesRawNumbers) {
    MakeBoard();
    g_model.g_dbLengthScale = 1e-5;  // TN
    g_options.g_bSpatialLimit = 1;
    g_model.g_dbWorkMinX = 0;
    g_model.g_dbWorkMinY = 0;
    g_model.g_dbWorkMaxX = 100;  // mm
    g_model.g_dbWorkMaxY = 100;
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 // 0.5 mm to 0.6 mm: inside in mm, far outside as raw numbers
                                 "%trace \"TOP\" 100 50000 50000 60000 60000 \"CLK\";\n"
                                 // raw 50..60: inside, although it is only 0.0006 mm
                                 "%trace \"TOP\" 100 50 50 60 60 \"CLK\";\n"
                                 // one raw end inside keeps the trace
                                 "%trace \"TOP\" 100 100 100 5000 5000 \"CLK\";\n"
                                 "%trace \"TOP\" 100 5000 0 0 101 \"CLK\";\n"
                                 "%arc_trace \"TOP\" 100 50000 0 60000 0 70000 0 \"CLK\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    ASSERT_EQ(g_model.TraceCount(), 2);
    EXPECT_EQ(g_model.g_aTraces[0].width, 100 * 1e-5);
    EXPECT_NE(FindNode(0, 50 * 1e-5, 50 * 1e-5), nullptr);
    EXPECT_NE(FindNode(0, 5000 * 1e-5, 5000 * 1e-5), nullptr);
    ASSERT_EQ(ParseArcTrace(path, 0), 1);  // arcs are not filtered
    EXPECT_EQ(g_model.TraceCount(), 4);
}

TEST(ParseArcTrace, ArcBecomesTwoHalvesMeetingAtItsMiddlePoint) {
    MakeBoard();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%trace \"TOP\" 1 9 9 8 8 \"CLK\";\n"
                                 "%arc_trace \"BOTTOM\" 0.2 0 0 1 1 2 0 \"GND\";\n"
                                 "%arc_trace \"BOTTOM\" 0.2 2 0 3 -1 4 0;\n"
                                 " %arc_trace \"BOTTOM\" 0.2 7 7 8 8 9 9 \"GND\";\n");
    ASSERT_EQ(ParseArcTrace(path, 0), 1);
    ASSERT_EQ(g_model.TraceCount(), 2);
    ExpectTrace(0, {0.2, 2, 0, 1, 2, 1});  // (0,0) to (1,1)
    ExpectTrace(1, {0.2, 2, 2, 1, 2, 1});  // (2,0) to (1,1)
    EXPECT_EQ(FindNode(2, 1.0, 1.0)->traceRefs, 2);
    EXPECT_EQ(FindNode(2, 2.0, 0.0)->id, 2u);
}

TEST(ParseTrace, DialogRunMovesTheProgressBarEvery150Records) {
    MakeBoard();
    std::vector<int> positions;
    SetProgressHandler([&](int position) { positions.push_back(position); });
    std::string text = "%port \"X\" \"CLK\";\n";
    for (int i = 0; i < 302; ++i) text += "%trace \"TOP\" 1 0 0 1 1 \"CLK\";\n";
    ScratchDir dir;
    std::string path = dir.Write("a.ndd", text);
    ASSERT_EQ(ParseTrace(path, 0), 1);
    EXPECT_EQ(positions, (std::vector<int>{10, 15, 20}));
    positions.clear();
    g_options.g_nQuiet = 1;  // a batch run has no progress bar
    ASSERT_EQ(ParseTrace(path, 0), 1);
    EXPECT_TRUE(positions.empty());
    SetProgressHandler(nullptr);
}

TEST(ParseTrace, MissingInputFailsThePass) {
    MakeBoard();
    EXPECT_EQ(ParseTrace("/nonexistent/board.ndd", 0), 0);
    EXPECT_EQ(ParseArcTrace("/nonexistent/board.ndd", 0), 0);
}

TEST(GrowTraceArrays, KeepsRoomForOneMoreRecordInAllThreeArrays) {
    ResetGlobals();
    for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ(GrowTraceArrays(), 1);
        ASSERT_GT(g_model.g_aTraces.capacity(), g_model.g_aTraces.size());
        ASSERT_GT(g_model.g_aTraceNets.capacity(), g_model.g_aTraceNets.size());
        ASSERT_GT(g_model.g_aTraceFlags.capacity(), g_model.g_aTraceFlags.size());
        EXPECT_EQ(g_model.g_aTraces.capacity() % 2048, 0u);
        ASSERT_EQ(AddTraceRecord(i, 0, i + 1, 0, 1.0, 0, kNoNet), 1);
    }
    EXPECT_EQ(g_model.TraceCount(), 5000);
    EXPECT_EQ(g_model.g_aTraces[4999].startNode, 4999);
    EXPECT_EQ(g_model.g_aTraces[4999].endNode, 5000);
}

}  // namespace
