#include "ndd/LayerStack.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestSupport.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"

using namespace testing_support;

namespace {

std::vector<std::string> g_messages;
int CaptureBox(const std::string& text, int, int) {
    g_messages.push_back(text);
    return 1;
}

class LayerStackTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        g_messages.clear();
        SetMessageBoxHandler(&CaptureBox);
    }
    void TearDown() override { SetMessageBoxHandler(nullptr); }

    int Parse(const std::string& text) { return ParseLayer(dir_.Write("board.ndd", text)); }
    const LayerRec& Layer(int i) const { return g_model.g_aLayers[i]; }
    std::string Kind(const std::string& name) const {
        const std::string* kind = g_model.g_mapLayerKind.Find(name);
        return kind ? *kind : "?";
    }

    ScratchDir dir_;
};

const char kStack[] =
    "# Default Units section.\n"
    "%length TN;\n"
    "%power mW;\n"
    "# Materials section.\n"
    "%dielectric_material \"FR4\" 4.3;\n"
    "%conductor_material \"CU\" %resistivity 0.5;\n"
    "%conductor_material \"AL\" %conductivity 37000000.9;\n"
    "%conductor_material \"THIN\" %resistivity 4;\n"
    "%signal \"TOP\" \"1\" \"x\" 3500 \"CU\";\n"
    "%dielectric \"D\" \"x\" \"FR4\" 20000;\n"
    "%power \"mW_PLANE\" \"9\" \"x\" 3500 \"CU\";\n"
    "%power \"GND\" \"2\" \"x\" 1800 \"AL\";\n"
    "%dielectric \"D\" \"x\" \"air\" 10000;\n"
    "%signal \"TOP\" \"7\" \"x\" 100 \"CU\";\n"
    "%power \"PWR\" \"3\" \"x\" 1800 \"THIN\";\n"
    "%dielectric \"D3\" \"x\" \"UNKNOWN\" 5000;\n"
    "%signal \"BOT\" \"4\" \"x\" 3500 \"NOPE\";\n"
    "%board_outline\n"
    "%signal \"LATE\" \"5\" \"x\" 3500 \"CU\";\n";

TEST_F(LayerStackTest, BuildsTheStackTopFirstWithItsMaterials) {
    ASSERT_EQ(Parse(kStack), 1);
    // The mW unit line and the plane named mW_PLANE are no layers, the second TOP is dropped,
    // the second D is kept and LATE stands after the outline.
    ASSERT_EQ(g_model.g_nLayerCount, 7);
    const char* names[] = {"TOP", "D", "GND", "D", "PWR", "D3", "BOT"};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(LayerName(Layer(i)), names[i]) << i;
        EXPECT_EQ(Layer(i).ordinal, i) << i;
        EXPECT_EQ(Layer(i).hasShapes, 0) << i;
    }
    ASSERT_EQ(g_model.g_lstMaterials.size(), 4u);
    EXPECT_EQ(g_model.g_lstMaterials[1].name, "CU");
    EXPECT_EQ(g_model.g_lstMaterials[1].conductivity, 1.0 / 0.5);
    EXPECT_EQ(g_model.g_lstMaterials[1].permittivity, 4.0);

    // Signals on planes are allowed by default: planes are written as signal layers.
    EXPECT_EQ(Layer(0).kind, kLayerSignal);
    EXPECT_EQ(Layer(2).kind, kLayerSignal);
    EXPECT_EQ(Layer(1).kind, kLayerDielectric);
    EXPECT_EQ(Layer(0).thickness, 3500 * 1e-5);
    EXPECT_EQ(Layer(1).thickness, 20000 * 1e-5);

    EXPECT_EQ(Layer(0).conductivity, 2);         // 1 / 0.5
    EXPECT_EQ(Layer(2).conductivity, 37000000);  // truncated
    EXPECT_EQ(Layer(4).conductivity, 0);         // 1 / 4 truncates to 0
    EXPECT_EQ(Layer(6).conductivity, 0);         // unknown material
    EXPECT_EQ(Layer(0).permittivity, 4.0);

    EXPECT_EQ(Layer(1).permittivity, 4.3);
    EXPECT_EQ(Layer(3).permittivity, 1.0);  // "air" with no material record
    EXPECT_EQ(Layer(5).permittivity, 4.0);  // unknown material
    EXPECT_EQ(Layer(1).conductivity, 0);

    EXPECT_EQ(Kind("TOP"), "S");
    EXPECT_EQ(Kind("GND"), "P");
    EXPECT_EQ(Kind("D"), "D");
    EXPECT_EQ(Kind("mW_PLANE"), "?");
    ASSERT_NE(g_model.g_mapLayerId.Find("2"), nullptr);
    EXPECT_EQ(*g_model.g_mapLayerId.Find("2"), "GND");
    // A dropped line, and a line after the outline, leave the identifier map alone.
    EXPECT_EQ(g_model.g_mapLayerId.Find("7"), nullptr);
    EXPECT_EQ(g_model.g_mapLayerId.Find("5"), nullptr);

    EXPECT_EQ(LayerIndexByName("GND"), 2);
    EXPECT_EQ(LayerIndexByName("D"), -1);
    EXPECT_EQ(FirstConductorLayer(), 0);
    EXPECT_EQ(LastConductorLayer(), 6);
}

TEST_F(LayerStackTest, PlanesStayPlanesWithoutSignalsOnPlanes) {
    g_options.g_bAllowSignalOnPlane = 0;
    ASSERT_EQ(Parse(kStack), 1);
    EXPECT_EQ(Layer(0).kind, kLayerSignal);
    EXPECT_EQ(Layer(2).kind, kLayerPlane);
    EXPECT_EQ(Layer(4).kind, kLayerPlane);
}

TEST_F(LayerStackTest, AMaterialRecordCalledAirWinsOverTheAirRule) {
    ASSERT_EQ(Parse("%dielectric_material \"Air\" 1.25;\n"
                    "%dielectric \"D1\" \"x\" \"AIR\" 100;\n"
                    "%dielectric \"D2\" \"x\" \"airgap\" 100;\n"),
              1);
    ASSERT_EQ(g_model.g_nLayerCount, 2);
    EXPECT_EQ(Layer(0).permittivity, 1.25);
    EXPECT_EQ(Layer(1).permittivity, 1.0);
}

TEST_F(LayerStackTest, MaterialsAfterTheFirstLayerLineAreNotRead) {
    ASSERT_EQ(Parse("%conductor_material \"CU\" %conductivity 5;\n"
                    "%signal \"TOP\" \"1\" \"x\" 1 \"CU\";\n"
                    "%conductor_material \"AL\" %conductivity 7;\n"
                    "%signal \"BOT\" \"2\" \"x\" 1 \"AL\";\n"),
              1);
    ASSERT_EQ(g_model.g_lstMaterials.size(), 1u);
    EXPECT_EQ(Layer(0).conductivity, 5);
    EXPECT_EQ(Layer(1).conductivity, 0);
}

TEST_F(LayerStackTest, AnOutlineBeforeTheFirstLayerDoesNotEndThePass) {
    ASSERT_EQ(Parse("%board_outline\n%signal \"TOP\" \"1\" \"x\" 1 \"CU\";\n"
                    "  %signal \"INDENTED\" \"2\" \"x\" 1 \"CU\";\n"
                    "%signal \"BOT\" \"2\" \"x\" 1 \"CU\";\n"),
              1);
    ASSERT_EQ(g_model.g_nLayerCount, 2);
    EXPECT_EQ(LayerName(Layer(1)), "BOT");
}

TEST_F(LayerStackTest, PowerUnitAndPortLinesAreNoPlanes) {
    ASSERT_EQ(
        Parse("%power uW;\n%powerport \"U1\" \"VCC\";\n%power \"P_uW\" \"1\" \"x\" 1 \"CU\";\n"
              "%powerplane \"PP\" \"2\" \"x\" 1 \"CU\";\n"),
        1);
    // Any line that begins with "%power" and holds none of the three words is a plane.
    ASSERT_EQ(g_model.g_nLayerCount, 1);
    EXPECT_EQ(LayerName(Layer(0)), "PP");
}

TEST_F(LayerStackTest, LongNamesKeepTheirFirst32Characters) {
    std::string longName(40, 'L');
    std::string line = "%signal \"" + longName + "\" \"1\" \"x\" 1 \"CU\";\n";
    ASSERT_EQ(Parse(line + line), 1);
    ASSERT_EQ(g_model.g_nLayerCount, 1);
    EXPECT_EQ(LayerName(Layer(0)), std::string(32, 'L'));
    EXPECT_EQ(Kind(std::string(32, 'L')), "S");
}

TEST_F(LayerStackTest, A257thLayerStopsWithAMessageAndNoOverrun) {
    std::string text;
    for (int i = 0; i < 300; ++i)
        text += "%signal \"L" + std::to_string(i) + "\" \"" + std::to_string(i) +
                "\" \"x\" 1 \"CU\";\n";
    EXPECT_EQ(Parse(text), 0);
    EXPECT_EQ(g_model.g_nLayerCount, 256);
    EXPECT_EQ(LayerName(Layer(255)), "L255");
    ASSERT_EQ(g_messages.size(), 1u);
    EXPECT_EQ(g_messages[0],
              "The layer stack of the NDD file has more than 256 layers.\nThe translation is "
              "stopped.");
}

TEST_F(LayerStackTest, ExactlyTheFullTableIsAccepted) {
    std::string text;
    for (int i = 0; i < 256; ++i) text += "%dielectric \"D\" \"x\" \"FR4\" 1;\n";
    EXPECT_EQ(Parse(text), 1);
    EXPECT_EQ(g_model.g_nLayerCount, 256);
    EXPECT_TRUE(g_messages.empty());
}

TEST_F(LayerStackTest, AMissingFileLeavesAnEmptyTable) {
    EXPECT_EQ(ParseLayer(dir_.File("missing.ndd")), 1);
    EXPECT_EQ(g_model.g_nLayerCount, 0);
}

}  // namespace
