#include "qfx/MakeVias.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"

#include "geometry/CheckUndiscardableVoids.h"
#include "model/TranslationOptions.h"
#include "qfx/ShapeWriter.h"
#include "qfx/ViaContact.h"
#include "qfx/ViaWriter.h"

namespace {

using namespace testing_support;
using namespace fixtures;

// Four conductor layers L1..L4 at indices 0, 2, 4, 6; nets GND (0, red) and N1 (1, green).
class MakeViasTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        MakeLayerStack({{"L1", kLayerSignal},
                        {"D1", kLayerDielectric},
                        {"L2", kLayerSignal},
                        {"D2", kLayerDielectric},
                        {"L3", kLayerSignal},
                        {"D3", kLayerDielectric},
                        {"L4", kLayerSignal}});
        MakeNets({"GND", "N1"});
        gnd = NetIndexByName("GND");
        n1 = NetIndexByName("N1");
        stack.name = "VIA1";
    }
    void AddVia(double x, double y, int32_t net, uint16_t start = 0, uint16_t end = 6) {
        ViaRec via;
        via.x = x;
        via.y = y;
        via.net = net;
        via.startLayer = start;
        via.endLayer = end;
        via.padStack = &stack;
        g_model.g_aVias.push_back(via);
    }
    // Sorts the shapes, makes the vias, and prints them with the node index made afresh.
    std::string Make() {
        SortShapes();
        EXPECT_EQ(MakeVias(), 1);
        RebuildNodeArray();
        RebuildNodeIndex();
        return CaptureOutput([](FILE* f) { WriteVias(f); });
    }
    const NodeRec* Node(int32_t layer, double x, double y) { return FindNode(layer, x, y); }
    PadStackRec stack;
    int32_t gnd = 0, n1 = 0;
};

TEST_F(MakeViasTest, ViaWithNoMiddleContactGivesOneStretch) {
    AddVia(1, 1, n1);
    g_model.g_aVias[0].rotation = 45;
    EXPECT_EQ(Make(),
              "Via1::N1 UpperNode = Node0::N1 LowerNode = Node1::N1 Color = green PadStack = VIA1 "
              "AbsoluteRotation = 45.000000\n");
    EXPECT_EQ(Node(0, 1, 1)->contact, 1);
    EXPECT_EQ(Node(6, 1, 1)->contact, 1);
}

TEST_F(MakeViasTest, StretchesAreNumberedOverTheWholeTable) {
    AddTraceLine(2, 1, 1, 5, 1, n1);
    AddVia(1, 1, n1);
    AddVia(8, 8, kNoNet);
    g_options.g_nIncludeNoNetEtches = 1;
    g_options.g_strNameAffix = "X_";
    EXPECT_EQ(Make(), DataFile("qfx/MakeVias/StretchesAreNumberedOverTheWholeTable.txt"));
}

TEST_F(MakeViasTest, ATraceEndOnThePadConnectsThroughANewNodeAtTheCentre) {
    PadEntry entry;
    entry.layerName = "l3";  // names compare without case
    entry.regular = std::make_shared<PadDefRec>();
    entry.regular->shapeName = "CIRCLE";
    entry.regular->width = 0.5;
    stack.entries.push_back(entry);
    AddTraceLine(4, 1.2, 1, 5, 1, n1);  // 0.2 from the centre, inside the pad radius 0.25
    AddTraceLine(2, 1.3, 1, 5, 1, n1);  // on L2 the pad radius is 0.0001
    AddVia(1, 1, n1);
    g_model.g_aVias[0].rotation = 30;
    EXPECT_EQ(Make(),
              DataFile("qfx/MakeVias/ATraceEndOnThePadConnectsThroughANewNodeAtTheCentre.txt"));
    const NodeRec* pad = Node(4, 1, 1);
    ASSERT_NE(pad, nullptr);
    EXPECT_EQ(pad->padStack, &stack);
    EXPECT_EQ(pad->rotation, 30);
    EXPECT_EQ(pad->contact, 1);
}

TEST(ViaPadRadius, FromTheLayersEntry) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"INNER", kLayerSignal}, {"BOT", kLayerSignal}});
    PadStackRec stack;
    ViaRec via;
    via.padStack = &stack;
    EXPECT_EQ(ViaPadRadius(via, 1), 0.0001);  // no entries at all
    PadEntry top, inner;
    top.layerName = "TOP";
    inner.layerName = "Inner";
    stack.entries = {top, inner};
    EXPECT_EQ(ViaPadRadius(via, 1), 0.0);  // an entry without a regular pad
    stack.entries[1].regular = std::make_shared<PadDefRec>();
    stack.entries[1].regular->shapeName = "POLYGON";
    stack.entries[1].regular->width = 9;
    stack.entries[1].regular->points = {{-0.25, 1}, {0.5, 2}, {0.75, 3}};
    EXPECT_EQ(ViaPadRadius(via, 1), 0.5);  // the mean of |x|
    stack.entries[1].regular->shapeName = "RECTANGLE";
    EXPECT_EQ(ViaPadRadius(via, 1), 4.5);
    EXPECT_EQ(ViaPadRadius(via, 2), 0.0001);  // no entry names BOT
}

class MakeViasVoidTest : public MakeViasTest {
  protected:
    void SetUp() override {
        MakeViasTest::SetUp();
        AddSquare(2, kPolarityCopper, gnd, 0, 0, 10);
        AddSquare(2, kPolarityVoid, gnd, 0.5, 0.5, 1);  // area 1, around the via at (1, 1)
        AddVia(1, 1, n1);
        g_options.g_dbViaVoidArea = 2;
        g_options.g_bExcludeVoidEnclosingVia = 1;
    }
    const ShapeRec& Void() { return g_model.g_aShapes[0]; }  // the smaller shape sorts first
    std::string Log() {
        std::string text = ReadStream(g_options.g_pLogFile);
        std::fclose(g_options.g_pLogFile);
        g_options.g_pLogFile = nullptr;
        return text;
    }
    const std::string kOneStretch =
        "Via1::N1 UpperNode = Node0::N1 LowerNode = Node1::N1 Color = green PadStack = VIA1 "
        "AbsoluteRotation = 0.000000\n";
};

TEST_F(MakeViasVoidTest, ASmallVoidOnAMiddleLayerIsDiscarded) {
    g_options.g_pLogFile = std::tmpfile();
    EXPECT_EQ(Make(), kOneStretch);
    EXPECT_EQ(Void().discarded, 1);
    EXPECT_EQ(Log(), "");
    // The shape section has the fill only.
    EXPECT_EQ(CaptureOutput([](FILE* f) { WriteShapes(f); }),
              DataFile("qfx/MakeVias/ASmallVoidOnAMiddleLayerIsDiscarded.txt"));
}

TEST_F(MakeViasVoidTest, WithTheOptionOffTheVoidStays) {
    g_model.g_aShapes.back().discarded = 0;
    g_options.g_bExcludeVoidEnclosingVia = 0;
    EXPECT_EQ(Make(), kOneStretch);
    EXPECT_EQ(Void().discarded, 0);
}

TEST_F(MakeViasVoidTest, AnUndiscardableVoidIsKeptAndLogged) {
    // Two traces on L2 run through the void, clear of the via's pad.
    AddTraceLine(2, 0, 0.7, 3, 0.7, gnd);
    AddTraceLine(2, 0, 1.3, 3, 1.3, gnd);
    SortShapes();
    RebuildNodeArray();
    CheckUndiscardableVoids();
    ASSERT_EQ(Void().undiscardable, 1);
    g_options.g_pLogFile = std::tmpfile();
    g_options.g_strNameAffix = "A_";
    g_model.g_aVias[0].x = 1.25;
    EXPECT_EQ(Make(),
              "ViaA_1::N1 UpperNode = NodeA_4::N1 LowerNode = NodeA_5::N1 Color = green PadStack = "
              "A_VIA1 AbsoluteRotation = 0.000000\n");
    EXPECT_EQ(Void().discarded, 0);
    EXPECT_EQ(Log(),
              "Warning : ViaA_1:N1(1.250000e+00mm, 1.000000e+00mm) is enclosed by undiscardable "
              "PolygonA_0\n");
}

TEST_F(MakeViasVoidTest, TheWarningNamesCirclesAndLeavesOutNoNet) {
    g_model.g_aShapes.clear();
    g_model.g_aShapePoints.clear();
    AddCircle(2, kPolarityVoid, gnd, 1, 1, 0.5);
    g_model.g_aShapes[0].undiscardable = 1;
    g_model.g_aVias[0].net = kNoNet;
    g_options.g_pLogFile = std::tmpfile();
    Make();
    EXPECT_EQ(Log(),
              "Warning : Via1(1.000000e+00mm, 1.000000e+00mm) is enclosed by undiscardable "
              "Circle0\n");
}

TEST_F(MakeViasVoidTest, AVoidOfAreaEqualToTheLimitStaysForTheViaButNotForTheShapes) {
    g_options.g_dbViaVoidArea = 1;  // the void's area: only a greater limit discards
    EXPECT_EQ(Make(), kOneStretch);
    EXPECT_EQ(Void().discarded, 0);
    // The shape writer drops a void whose area equals its own limit.
    g_options.g_dbVoidAreaLimit = 1;
    EXPECT_EQ(
        CaptureOutput([](FILE* f) { WriteShapes(f); }),
        DataFile("qfx/MakeVias/AVoidOfAreaEqualToTheLimitStaysForTheViaButNotForTheShapes.txt"));
    g_options.g_dbVoidAreaLimit = 0.999;
    EXPECT_NE(CaptureOutput([](FILE* f) {
                  WriteShapes(f);
              }).find("Box0::GND- Color = red 5.000000e-01mm"),
              std::string::npos);
}

TEST_F(MakeViasVoidTest, ASmallVoidOnAnEndLayerIsDiscardedToo) {
    AddSquare(0, kPolarityVoid, gnd, 0.5, 0.5, 1);
    EXPECT_EQ(Make(), kOneStretch);
    EXPECT_EQ(g_model.g_aShapes[0].layer, 0);
    EXPECT_EQ(g_model.g_aShapes[0].discarded, 1);
    EXPECT_EQ(Node(0, 1, 1)->contact, 1);  // a void does not take the contact away
}

TEST_F(MakeViasTest, CopperOfTheViasNetOnAMiddleLayerConnects) {
    AddSquare(2, kPolarityCopper, gnd, 0, 0, 4);  // foreign fill, passed over
    AddSquare(2, kPolarityCopper, n1, 0, 0, 10);
    AddVia(1, 1, n1);
    EXPECT_EQ(Make(), DataFile("qfx/MakeVias/CopperOfTheViasNetOnAMiddleLayerConnects.txt"));
}

TEST_F(MakeViasTest, WithAGapAroundFillsAForeignFillGivesTheLayerUp) {
    AddSquare(2, kPolarityCopper, gnd, 0, 0, 4);
    AddSquare(2, kPolarityCopper, n1, 0, 0, 10);
    AddVia(1, 1, n1);
    g_options.g_dbGapAroundAreaFillOnPlaneLayers = 0.1;
    EXPECT_EQ(Make(),
              "Via1::N1 UpperNode = Node0::N1 LowerNode = Node1::N1 Color = green PadStack = VIA1 "
              "AbsoluteRotation = 0.000000\n");
}

TEST_F(MakeViasTest, ANoNetViaPassesOverAllCopperWhenNoNetEtchesAreIncluded) {
    AddSquare(2, kPolarityCopper, n1, 0, 0, 10);
    AddVia(1, 1, kNoNet);
    g_options.g_nIncludeNoNetEtches = 1;
    EXPECT_EQ(Make(),
              "Via1 UpperNode = Node0 LowerNode = Node1 Color = red PadStack = VIA1 "
              "AbsoluteRotation = 0.000000\n");
    g_options.g_nIncludeNoNetEtches = 0;
    g_model.g_setNodes.clear();
    g_model.g_nNodeCount = 0;
    EXPECT_EQ(Make(), "");  // two stretches, but no-net vias print nothing with the option off
    EXPECT_EQ(g_model.g_aViaOut.size(), 2u);
}

TEST_F(MakeViasTest, ForeignCopperOnAnEndLayerTakesTheContactAway) {
    AddSquare(0, kPolarityCopper, gnd, 0, 0, 10);
    AddVia(1, 1, n1);
    AddVia(2, 2, kNoNet);
    Make();
    EXPECT_EQ(Node(0, 1, 1)->contact, 0);
    EXPECT_EQ(Node(0, 2, 2)->contact, 1);  // a via without a net keeps it
    EXPECT_EQ(Node(6, 1, 1)->contact, 1);
}

TEST_F(MakeViasTest, NoContactViaMakesOneStretchWithContactZero) {
    AddTraceLine(4, 1, 1, 5, 1, n1);
    AddVia(1, 1, n1);
    g_model.g_aVias[0].noContact = 1;
    Make();
    ASSERT_EQ(g_model.g_aViaOut.size(), 1u);
    EXPECT_EQ(Node(0, 1, 1)->contact, 0);
    EXPECT_EQ(Node(6, 1, 1)->contact, 0);
}

TEST_F(MakeViasTest, EveryNodeOfTheViaTakesTheUpperNodesPosition) {
    AddTraceLine(0, 1.00003, 1, 5, 1, n1);  // the upper node exists already, 3e-5 off
    AddTraceLine(6, 0.99996, 1, 5, 1, n1);  // so does the lower one, on the other side
    AddVia(1, 1, n1);
    Make();
    const NodeRec* lower = Node(6, 1, 1);
    ASSERT_NE(lower, nullptr);
    EXPECT_EQ(lower->x, 1.00003);
    EXPECT_EQ(lower->viaRefs, 1);
    EXPECT_EQ(lower->traceRefs, 2);
    EXPECT_EQ(Node(0, 1, 1)->x, 1.00003);
}

}  // namespace
