#include "ndd/ViaPass.h"

#include <gtest/gtest.h>

#include <string>

#include "DataCases.h"
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

// A via as "x,y rROTATION Lstart-end net nNOCONTACT dDRILLINDEX padstack".
std::string ViaText(const ViaRec& v) {
    return Exact(v.x) + "," + Exact(v.y) + " r" + Exact(v.rotation) + " L" +
           std::to_string(v.startLayer) + "-" + std::to_string(v.endLayer) + " " +
           (v.net == kNoNet ? std::string("nonet") : g_model.g_strNetNames[v.net].name) + " n" +
           std::to_string(v.noContact) + " d" + std::to_string(v.drillIndex) + " " +
           (v.padStack ? v.padStack->name : "-");
}

// The vias, the drill radius table (radius:index) and the padstacks' drills.
std::string ViasText() {
    std::string t;
    for (const ViaRec& v : g_model.g_aVias) t += ViaText(v) + "\n";
    t += "drills";
    for (const DrillRadius& d : g_model.g_aDrillRadii)
        t += " " + Exact(d.radius) + ":" + std::to_string(d.index);
    t += "\npadstacks";
    for (const std::string& key : g_model.g_padStacks.Keys())
        t += " " + key + ":" + Exact(g_model.g_padStacks.Find(key)->drill);
    return t + "\n";
}

class ViaPassTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
    ScratchDir dir_;
};

// Via records after board.ndd (or in place of it with "alone"), with the no-net option
// ("nonet") or a work area of 0..1 mm ("area").
TEST_F(ViaPassTest, RecordsGiveTheseVias) {
    for (const DataCase& c : DataCases("ndd/ViaPass/Records.txt")) {
        SetUp();
        g_options.g_nIncludeNoNetEtches = c.Has("nonet");
        if (c.Has("area")) {
            g_options.g_bSpatialLimit = 1;
            g_model.g_dbWorkMaxX = g_model.g_dbWorkMaxY = 1.0;
        }
        ForgetNddInput();
        std::string path = dir_.Write("board.ndd", (c.Has("alone") ? "" : kBoard) + c.input);
        ASSERT_EQ(ParseLayer(path), 1);
        ParseNet(*OpenNdd(path));
        ParsePadDefData(path);
        ParsePadDef(path);
        ASSERT_EQ(ParseVia(path), 1);
        EXPECT_EQ(ViasText(), c.expected) << c.title;
    }
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
