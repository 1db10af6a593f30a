#include "ndd/TraceReader.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "RecordingHost.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/Progress.h"
#include "model/TranslationOptions.h"

namespace {

using namespace testing_support;
using namespace fixtures;

// TOP and BOTTOM signal layers around a dielectric, nets CLK (0) and GND (1), lengths in mm.
void MakeBoard() {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"BOTTOM", kLayerSignal}});
    MakeNets({"GND", "CLK"});
    g_model.g_dbLengthScale = 1.0;
}

// Whole runs of the trace reader are in tests/data/cases (trace_*, arc_*).
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

TEST(ParseTrace, DialogRunMovesTheProgressBarEvery150Records) {
    MakeBoard();
    RecordingHost host;
    HostScope hostScope(host);
    std::vector<int>& positions = host.positions;
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
