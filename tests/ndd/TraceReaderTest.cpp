#include "ndd/TraceReader.h"

#include <gtest/gtest.h>

#include "DataCases.h"
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

// The traces as "Llayer x,y-x,y wWIDTH".
std::string TracesText() {
    RebuildNodeArray();
    RebuildNodeIndex();
    std::string t;
    for (const TraceRec& trace : g_model.g_aTraces) {
        const NodeRec* a = NodeById(trace.startNode);
        const NodeRec* b = NodeById(trace.endNode);
        t += "L" + std::to_string(trace.layer) + " " + Exact(a->x) + "," + Exact(a->y) + "-" +
             Exact(b->x) + "," + Exact(b->y) + " w" + Exact(trace.width) + "\n";
    }
    return t;
}

// Records read by the trace pass, then by the arc pass; the traces after each. "tn" reads in
// TN with a work area of 0..100 mm. Whole runs of the trace reader are in tests/data/cases
// (trace_*, arc_*).
TEST(ParseTrace, RecordsGiveTheseTraces) {
    ScratchDir dir;
    for (const DataCase& c : DataCases("ndd/TraceReader/Records.txt")) {
        MakeBoard();
        if (!c.args.empty()) {
            g_model.g_dbLengthScale = 1e-5;
            g_options.g_bSpatialLimit = 1;
            g_model.g_dbWorkMaxX = g_model.g_dbWorkMaxY = 100;
        }
        const std::string path = dir.Write("a.ndd", c.input);
        ASSERT_EQ(ParseTrace(path, 0), 1);
        std::string got = "traces\n" + TracesText();
        ASSERT_EQ(ParseArcTrace(path, 0), 1);
        EXPECT_EQ(got + "arcs\n" + TracesText(), c.expected) << c.title;
    }
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
