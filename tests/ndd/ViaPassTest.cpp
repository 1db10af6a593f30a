#include "ndd/ViaPass.h"

#include <gtest/gtest.h>

#include <string>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/LayerStack.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/PadBoundaries.h"
#include "ndd/PadLibrary.h"

using namespace testing_support;

namespace {

// TOP, D1, GND, D2, BOT in TN units; nets N1 and N2.
const std::string kBoard = testing_support::DataFile("ndd/ViaPass/board.ndd");

class ViaPassTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }

    void Run(const std::string& vias, const std::string& board = kBoard) {
        ForgetNddInput();
        std::string path = dir_.Write("board.ndd", board + vias);
        ASSERT_EQ(ParseLayer(path), 1);
        ParseNet(*OpenNdd(path));
        ParsePadDefData(path);
        ParsePadDef(path);
        ASSERT_EQ(ParseVia(path), 1);
    }
    const ViaRec& Via(size_t i) { return g_model.g_aVias.at(i); }

    ScratchDir dir_;
};

TEST_F(ViaPassTest, BothFormsAndTheDroppedVias) {
    Run("%via \"V1\" 100000 200000 45 \"N1\";\n"
        "%via \"V1\" 100 200 0 \"TOP\" \"GND\";\n"
        "%via \"V1\" 100 200 0 \"BOT\" \"TOP\" \"N1\";\n"
        "%via \"V1\" 100 200 0 \"TOP\" \"TOP\" \"N1\";\n"
        "%via \"V1\" 100 200 0 \"TOP\" \"D1\" \"N1\";\n"
        "%via \"V1\" 100 200 0 \"TOP\" \"NOWHERE\" \"N1\";\n"
        "%via \"GHOST\" 100 200 0 \"N1\";\n"
        "%viarule \"V1\" \"TOP\" \"BOT\";\n"
        "%via \"V1\" 300000 0 -90 \"GND\" \"BOT\" \"N2\" ;\n"
        "%via \"V1\" 0 0 0 \"N3\" %extra;\n");
    ASSERT_EQ(g_model.ViaCount(), 3);
    EXPECT_EQ(Via(0).x, 100000 * 1e-5);
    EXPECT_EQ(Via(0).y, 200000 * 1e-5);
    EXPECT_EQ(Via(0).rotation, 45.0);
    EXPECT_EQ(Via(0).startLayer, 0);
    EXPECT_EQ(Via(0).endLayer, 4);
    EXPECT_EQ(Via(0).net, NetIndexByName("N1"));
    EXPECT_EQ(Via(0).noContact, 0);
    EXPECT_EQ(Via(0).padStack, g_model.g_padStacks.Find("V1"));
    EXPECT_EQ(Via(1).startLayer, 2);
    EXPECT_EQ(Via(1).endLayer, 4);
    EXPECT_EQ(Via(1).rotation, -90.0);
    EXPECT_EQ(Via(1).net, NetIndexByName("N2"));
    // A seventh token that begins with '%' still makes a through via; an unknown net is kept
    // without a net index.
    EXPECT_EQ(Via(2).startLayer, 0);
    EXPECT_EQ(Via(2).endLayer, 4);
    EXPECT_EQ(Via(2).net, kNoNet);
}

TEST_F(ViaPassTest, NoNetViasNeedTheNoNetOption) {
    g_options.g_nIncludeNoNetEtches = 1;
    Run("%via \"V1\" 100 200 0 \"TOP\" \"GND\";\n");
    ASSERT_EQ(g_model.ViaCount(), 1);
    EXPECT_EQ(Via(0).net, kNoNet);
    EXPECT_EQ(Via(0).endLayer, 2);
}

TEST_F(ViaPassTest, DrillRadiiFromTheSizePassAndTheirCarryOver) {
    Run("%via \"VNULL\" 0 0 0 \"N1\";\n"  // before any size record: radius 0
        "%via \"V1\" 0 0 0 \"N1\";\n"
        "%via \"V 2\" 0 0 0 \"N1\";\n"
        "%via \"VNULL\" 0 0 0 \"N1\";\n"
        "%via \"V3\" 0 0 0 \"N1\";\n");
    ASSERT_EQ(g_model.ViaCount(), 5);
    // V1: a drill of 20000 TN is a radius of 0.1 mm in the library and in the size pass.
    EXPECT_EQ(g_model.g_padStacks.Find("V1")->drill, 0.1);
    // V 2 has no drill (-1) and no shape: it takes the size pass's 1e6.
    EXPECT_EQ(g_model.g_padStacks.Find("V_2")->drill, 1e6);
    // VNULL has no size record and takes the radius of the via before it: 0 for the first.
    EXPECT_EQ(g_model.g_padStacks.Find("VNULL")->drill, 0.0);
    // V3: the drill radius 0.2 is above the smaller circle's 0.035.
    EXPECT_EQ(g_model.g_padStacks.Find("V3")->drill, 10000 * 0.5 * 0.7 * 1e-5);
    ASSERT_EQ(g_model.g_aDrillRadii.size(), 4u);
    EXPECT_EQ(g_model.g_aDrillRadii[0].radius, 0.0);
    EXPECT_EQ(g_model.g_aDrillRadii[0].index, 0);
    EXPECT_EQ(g_model.g_aDrillRadii[1].radius, 10000 * 0.5 * 0.7 * 1e-5);
    EXPECT_EQ(g_model.g_aDrillRadii[1].index, 3);
    EXPECT_EQ(g_model.g_aDrillRadii[2].radius, 0.1);
    EXPECT_EQ(g_model.g_aDrillRadii[3].radius, 1e6);
    EXPECT_EQ(Via(0).drillIndex, 0);
    EXPECT_EQ(Via(1).drillIndex, 1);
    EXPECT_EQ(Via(2).drillIndex, 2);
    EXPECT_EQ(Via(3).drillIndex, 2);  // carried from V 2
    EXPECT_EQ(Via(4).drillIndex, 3);
}

TEST_F(ViaPassTest, SpatialRangeDropsViasOutsideButKeepsTheirDrill) {
    g_options.g_bSpatialLimit = 1;
    g_model.g_dbWorkMinX = 0.0;
    g_model.g_dbWorkMaxX = 1.0;
    g_model.g_dbWorkMinY = 0.0;
    g_model.g_dbWorkMaxY = 1.0;
    Run("%via \"V1\" 100000 100000 0 \"N1\";\n"    // on the corner: kept
        "%via \"V 2\" 100001 50000 0 \"N1\";\n");  // outside
    ASSERT_EQ(g_model.ViaCount(), 1);
    EXPECT_EQ(g_model.g_aDrillRadii.size(), 2u);
}

TEST_F(ViaPassTest, OneConductorLayerDropsThroughVias) {
    Run("%via \"V1\" 0 0 0 \"N1\";\n",
        "%dielectric \"D1\" \"x\" \"FR4\" 1;\n%signal \"TOP\" \"1\" \"x\" 1 \"CU\";\n"
        "%port \"U1-1\" \"N1\";\n%padstackdef \"V1\"\n%end_padstackdef\n");
    EXPECT_EQ(g_model.ViaCount(), 0);
}

TEST_F(ViaPassTest, AddDrillRadiusKeepsTheTableSortedWithIndicesInOrderOfFirstUse) {
    size_t position = 99;
    EXPECT_EQ(AddDrillRadius(0.3, &position), 0);
    EXPECT_EQ(position, 0u);
    EXPECT_EQ(AddDrillRadius(0.1, &position), 1);
    EXPECT_EQ(position, 0u);
    EXPECT_EQ(AddDrillRadius(0.2, &position), 2);
    EXPECT_EQ(position, 1u);
    EXPECT_EQ(AddDrillRadius(0.1, &position), 1);
    EXPECT_EQ(position, 0u);
    EXPECT_EQ(AddDrillRadius(0.30000000000000004), 3);  // exact compare
    ASSERT_EQ(g_model.g_aDrillRadii.size(), 4u);
    EXPECT_EQ(g_model.g_aDrillRadii[0].index, 1);
    EXPECT_EQ(g_model.g_aDrillRadii[1].index, 2);
    EXPECT_EQ(g_model.g_aDrillRadii[2].index, 0);
    EXPECT_EQ(g_model.g_aDrillRadii[3].index, 3);
}

TEST_F(ViaPassTest, AMissingFileFails) {
    EXPECT_EQ(ParseVia(dir_.File("missing.ndd")), 0);
}

}  // namespace
