#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/MakeNode.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/TraceReader.h"
#include "qfx/NodeWriter.h"
#include "qfx/TraceWriter.h"

namespace {

using namespace testing_support;
using namespace fixtures;

// The writing steps of a translation after the traces were read.
void SettleNodes() {
    RebuildNodeArray();
    RebuildNodeIndex();
    MakeNode();
    FlipMirroredBottomNodes();
}

std::string Nodes() {
    return CaptureOutput([](FILE* f) { WriteNodes(f); });
}
std::string Traces() {
    return CaptureOutput([](FILE* f) { WriteTraces(f); });
}

TEST(WriteNodes, TracesOffSignalLayersLeaveNoLines) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"GND", kLayerPlane}});
    MakeNets({"CLK"});
    g_model.g_dbLengthScale = 1.0;
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%trace \"TOP\" 0.1 0 0 1 0 \"CLK\";\n"
                                 "%trace \"GND\" 0.5 0 0 1 0 \"CLK\";\n"
                                 "%trace \"GND\" 0.5 2 0 3 0 \"CLK\";\n"
                                 "%trace \"XX\" 0.1 5 5 6 6 \"CLK\";\n");
    ASSERT_EQ(ParseTrace(path, 0), 1);
    // A via on the plane keeps node 3 alive: a plane node prints with "Plane".
    AddViaNode(1.0, 0.0, 2, 0, 0, 1);
    SettleNodes();
    EXPECT_EQ(Nodes(), DataFile("qfx/NodeTraceWriter/TracesOffSignalLayersLeaveNoLines.txt"));
    EXPECT_EQ(Traces(),
              "Trace0::CLK StartingNode = Node0::CLK EndingNode = Node1::CLK Width = "
              "1.000000e-01mm Color = red\n");
}

TEST(WriteNodes, MirroredBottomPadPrintsTheMirroredPadstackName) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal},
                    {"D1", kLayerDielectric},
                    {"BOT", kLayerSignal},
                    {"D2", kLayerDielectric}});
    MakeNets({"N1"});
    g_options.g_strNameAffix = "A_";
    PadStackRec pad;
    pad.name = "VIA20";
    const NodeRec* pin = nullptr;
    AddNode(nullptr, 1, 2, 2, 0, 1, &pad, 90.0);
    AddNode(nullptr, 1, 2, 0, 0, 1, &pad, 90.0);
    AddNode(&pin, 3, 4, 2, 0, 0, &pad, 30.0);
    pin->mirrored = 0;
    pin->label = "U1-3";
    SettleNodes();
    const std::string want =
        "NodeA_1::N1 X = 1.0000000000e+00mm Y = 2.0000000000e+00mm Layer = Signal$A_TOP "
        "Contact = 1 PadStack = A_VIA20 AbsoluteRotation = 90.000000\n"
        "NodeA_0::N1 X = 1.0000000000e+00mm Y = 2.0000000000e+00mm Layer = Signal$A_BOT "
        "Contact = 1 PadStack = A_VIA20_Mirrd AbsoluteRotation = -90.000000\n"
        "NodeA_2!!U1-3::N1 X = 3.0000000000e+00mm Y = 4.0000000000e+00mm Layer = Signal$A_BOT "
        "Contact = 0 PadStack = A_VIA20 AbsoluteRotation = 30.000000\n";
    EXPECT_EQ(Nodes(), want);
    EXPECT_EQ(Nodes(), want);  // the second writing prints the same
}

TEST(WriteNodes, NodesWithoutNetPrintOnlyWithNoNetEtches) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}});
    MakeNets({"N1"});
    AddNode(nullptr, 0, 0, 0, kNoNet, 1, nullptr, 0.0);
    AddNode(nullptr, 1, 0, 0, kNoNetAlt, 1, nullptr, 0.0);
    AddNode(nullptr, 2, 0, 0, 0, 1, nullptr, 0.0);
    g_options.g_bAppendNetName = 0;
    SettleNodes();
    EXPECT_EQ(Nodes(),
              "Node2 X = 2.0000000000e+00mm Y = 0.0000000000e+00mm Layer = Signal$TOP Contact = "
              "1\n");
    g_options.g_nIncludeNoNetEtches = 1;
    EXPECT_EQ(Nodes(), DataFile("qfx/NodeTraceWriter/NodesWithoutNetPrintOnlyWithNoNetEtches.txt"));
}

TEST(WriteNodes, NodesOnOtherLayersPrintAsMedium) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}});
    AddViaNode(0.5, 0.25, 1, kNoNet, 1, 1);
    AddViaNode(0.5, 0.25, -1, kNoNet, 0, 1);
    g_options.g_nIncludeNoNetEtches = 1;
    SettleNodes();
    EXPECT_EQ(Nodes(), DataFile("qfx/NodeTraceWriter/NodesOnOtherLayersPrintAsMedium.txt"));
}

TEST(WriteNodes, PadstacksWithoutDrillTakeTheirViasDrillRadius) {
    ResetGlobals();
    PadStackRec noDrill, zeroDrill, ownDrill;
    noDrill.drill = -1.0;
    zeroDrill.drill = 0.0;
    ownDrill.drill = 0.05;
    // Sorted by radius; each radius keeps the index of its first use.
    g_model.g_aDrillRadii = {{0.1, 1}, {0.2, 0}};
    ViaOutRec via;
    via.padStack = &noDrill;
    via.drillIndex = 0;
    g_model.g_aViaOut.push_back(via);
    via.padStack = &zeroDrill;
    via.drillIndex = 1;
    g_model.g_aViaOut.push_back(via);
    via.padStack = &ownDrill;
    via.drillIndex = 0;
    g_model.g_aViaOut.push_back(via);
    via.padStack = nullptr;
    g_model.g_aViaOut.push_back(via);
    EXPECT_EQ(Nodes(), "");
    EXPECT_EQ(noDrill.drill, 0.2);
    EXPECT_EQ(zeroDrill.drill, 0.1);
    EXPECT_EQ(ownDrill.drill, 0.05);
}

// Node ids 0 to 4 on TOP; node 0 is on net N2, the others on N1. Trace 12 runs from node 4 to
// node 0 after twelve deleted traces, trace 13 has no net.
void MakeNumberedTraces() {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}});
    MakeNets({"N1", "N2"});
    for (int i = 0; i < 5; ++i) AddNode(nullptr, i, 0, 0, i == 0 ? 1 : 0, 1, nullptr, 0.0);
    FindNode(0, 2.0, 0.0)->label = "U1-3";
    TraceRec deleted;
    deleted.width = kDeletedTraceWidth;
    deleted.layer = 0;
    for (int i = 0; i < 12; ++i) {
        g_model.g_aTraces.push_back(deleted);
        g_model.g_aTraceNets.push_back(0);
    }
    TraceRec t;
    t.width = 0.25;
    t.layer = 0;
    t.startNode = 4;
    t.endNode = 0;
    t.color = 1;
    g_model.g_aTraces.push_back(t);
    g_model.g_aTraceNets.push_back(0);
    t.startNode = 1;
    t.endNode = 2;
    t.color = 0;
    g_model.g_aTraces.push_back(t);
    g_model.g_aTraceNets.push_back(kNoNet);
    RebuildNodeArray();
    RebuildNodeIndex();
}

TEST(WriteTraces, CountersKeepTheirGapsAndNodeSuffixesComeFromTheNodes) {
    MakeNumberedTraces();
    g_options.g_strNameAffix = "A_";
    EXPECT_EQ(Traces(),
              "TraceA_12::N1 StartingNode = NodeA_4::N1 EndingNode = NodeA_0::N2 Width = "
              "2.500000e-01mm Color = red\n");
    g_options.g_nIncludeNoNetEtches = 1;
    g_options.g_bAppendNetName = 0;
    EXPECT_EQ(
        Traces(),
        DataFile("qfx/NodeTraceWriter/CountersKeepTheirGapsAndNodeSuffixesComeFromTheNodes.txt"));
}

TEST(WriteTraces, EmptyTableAndOffSignalTracesPrintNothing) {
    ResetGlobals();
    EXPECT_EQ(Traces(), "");
    MakeNumberedTraces();
    g_model.g_aLayers[0].kind = kLayerPlane;
    EXPECT_EQ(Traces(), "");
}

}  // namespace
