#include "ndd/PadLibrary.h"

#include <gtest/gtest.h>

#include <string>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "ndd/LayerStack.h"
#include "ndd/PadStackLayers.h"

using namespace testing_support;

namespace {

// TOP, D1, GND (plane), D2, BOT; lengths in mm so the numbers read as they stand.
const char kStack[] =
    "%length mm;\n"
    "%signal \"TOP\" \"1\" \"x\" 0.035 \"CU\";\n"
    "%dielectric \"D1\" \"x\" \"FR4\" 0.2;\n"
    "%power \"GND\" \"2\" \"x\" 0.035 \"CU\";\n"
    "%dielectric \"D2\" \"x\" \"FR4\" 0.2;\n"
    "%signal \"BOT\" \"3\" \"x\" 0.035 \"CU\";\n"
    "%board_outline\n";

const char kPads[] =
    "%paddef \"C50\"\n%begin_boundary\n%outline\n%circle 0 0 0.5;\n%end_boundary\n%end_paddef;\n"
    "%paddef \"R\" %begin_boundary %outline %rectangle 0.3 0.2 -0.3 -0.1; %end_boundary "
    "%end_paddef;\n"
    "%paddef \"PAD 1,A\"\n%begin_boundary %outline\n%polygon 0 0 1 0\n 1 1;\n%end_boundary\n"
    "%end_paddef\n"
    "%paddef \"OX\" %begin_boundary %outline %round_endpoint_line -1 0 1 0 0.5; %end_boundary "
    "%end_paddef\n"
    "%paddef \"OY\" %begin_boundary %outline %Round_Endpoint_Line 2 -1 2 1 0.5; %end_boundary "
    "%end_paddef\n"
    "%paddef \"PATH\" %begin_boundary %outline %line 0 0 1 0 %arc 1 0 2 1 1 2 %end_boundary "
    "%end_paddef\n"
    "%paddef \"\" %begin_boundary %outline %circle 0 0 9; %end_boundary %end_paddef\n"
    "%paddef \"NOSHAPE\" %end_paddef\n"
    "%paddef \"DONUT\" %begin_boundary %outline %donut 1 2; %end_boundary %end_paddef\n";

class PadLibraryTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }

    // Units, layers, then the two library passes as a translation runs them.
    std::string Load(const std::string& records) {
        std::string path = dir_.Write("board.ndd", std::string(kStack) + kPads + records);
        g_model.g_dbLengthScale = 1.0;
        EXPECT_EQ(ParseLayer(path), 1);
        ParsePadDefData(path);
        return path;
    }
    const PadStackRec& Stack(const std::string& key) {
        const PadStackRec* stack = g_model.g_padStacks.Find(key);
        EXPECT_NE(stack, nullptr) << key;
        static PadStackRec none;
        return stack ? *stack : none;
    }

    ScratchDir dir_;
};

TEST_F(PadLibraryTest, PadLibraryShapes) {
    Load("");
    auto& lib = g_model.g_padLibrary;
    EXPECT_EQ(lib.Size(), 6u);
    const PadLibRec* c = lib.Find("C50");
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->kind, 2);
    EXPECT_EQ(c->width, 0.5);
    EXPECT_EQ(c->height, 0.5);
    // Read as minimum corner then maximum corner: reversed corners give negative sizes.
    const PadLibRec* r = lib.Find("R");
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->kind, 1);
    EXPECT_EQ(r->width, -0.3 - 0.3);
    EXPECT_EQ(r->height, -0.1 - 0.2);
    // Blanks and commas of the key become "_"; the record keeps the name as read.
    const PadLibRec* p = lib.Find("PAD_1_A");
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->name, "PAD 1,A");
    EXPECT_EQ(p->kind, 3);
    EXPECT_EQ(p->points, (PointList{{0, 0}, {1, 0}, {1, 1}}));
    const PadLibRec* ox = lib.Find("OX");
    ASSERT_NE(ox, nullptr);
    EXPECT_EQ(ox->kind, 4);
    EXPECT_EQ(ox->width, 2.0 + 0.5);
    EXPECT_EQ(ox->height, 0.5);
    const PadLibRec* oy = lib.Find("OY");
    ASSERT_NE(oy, nullptr);
    EXPECT_EQ(oy->kind, 5);
    EXPECT_EQ(oy->width, 0.5);
    EXPECT_EQ(oy->height, 2.0 + 0.5);
    const PadLibRec* path = lib.Find("PATH");
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(path->kind, 3);
    EXPECT_EQ(path->points, (PointList{{0, 0}, {1, 0}, {1, 0}, {2, 1}, {1, 2}}));
    EXPECT_FALSE(lib.Contains(""));
    EXPECT_FALSE(lib.Contains("NOSHAPE"));
    EXPECT_FALSE(lib.Contains("DONUT"));
}

TEST_F(PadLibraryTest, PadStackEntriesAndPads) {
    Load(
        "%padstackdef \"V 1\" %padstacktype %THRUHOLE\n"
        "%drill 0.3;\n"
        "%liblayer \"top\"\n"
        "%pad 0 0 \"C50\";\n"
        "%antipad 0 0 \"OX\";\n"
        "%thermalpad 0 0 \"C50\";\n"
        "%liblayer \"%bottompad\" %pad 0.1 0\n \"R\";\n"
        "%liblayer \"GHOST\" %pad 0 0 \"MISSING\";\n"
        "%end_padstackdef;\n");
    const PadStackRec& v = Stack("V_1");
    EXPECT_EQ(v.name, "V_1");
    EXPECT_EQ(v.nType, 2);
    EXPECT_EQ(v.drill, 0.3 * 1.0 * 0.5);
    EXPECT_EQ(v.defaultLayerFlag, 0);
    ASSERT_EQ(v.entries.size(), 3u);
    EXPECT_EQ(v.entries[0].layerName, "TOP");
    EXPECT_EQ(v.entries[0].strLibLayer, "top");
    EXPECT_EQ(v.entries[0].strPadName, "C50");
    EXPECT_EQ(v.entries[0].strAntiPadName, "OX");
    ASSERT_NE(v.entries[0].regular, nullptr);
    EXPECT_EQ(v.entries[0].regular->shapeName, "CIRCLE");
    EXPECT_EQ(v.entries[0].regular->width, 0.5);
    EXPECT_EQ(v.entries[0].anti, nullptr);  // an oval is no antipad
    EXPECT_EQ(v.entries[0].thermal, nullptr);
    EXPECT_EQ(v.entries[1].layerName, "BOT");
    ASSERT_NE(v.entries[1].regular, nullptr);
    EXPECT_EQ(v.entries[1].regular->shapeName, "RECTANGLE");
    EXPECT_EQ(v.entries[1].regular->offsetX, 0.1);
    EXPECT_EQ(v.entries[2].layerName, "");
    EXPECT_EQ(v.entries[2].regular, nullptr);
    EXPECT_TRUE(g_model.g_mapOffsetPadStacks.Contains("V_1"));
}

TEST_F(PadLibraryTest, PowerEntryTakesItsFirstPadAsAntipad) {
    Load(
        "%padstackdef \"PWR\"\n%liblayer \"POWER\"\n%pad 0 0 \"C50\";\n%pad 0 0 \"R\";\n"
        "%end_padstackdef\n"
        "%padstackdef \"ANTI\"\n%liblayer \"TOP\"\n%antipad 0.2 0 \"R\";\n%end_padstackdef\n");
    const PadStackRec& pwr = Stack("PWR");
    EXPECT_EQ(pwr.defaultLayerFlag, 1);
    ASSERT_EQ(pwr.entries.size(), 1u);
    EXPECT_EQ(pwr.entries[0].layerName, "%defaultliblayer");
    ASSERT_NE(pwr.entries[0].anti, nullptr);
    EXPECT_EQ(pwr.entries[0].anti->shapeName, "CIRCLE");
    ASSERT_NE(pwr.entries[0].regular, nullptr);
    EXPECT_EQ(pwr.entries[0].regular->shapeName, "RECTANGLE");
    // An offset antipad marks the padstack but the antipad itself is never offset.
    const PadStackRec& anti = Stack("ANTI");
    ASSERT_NE(anti.entries[0].anti, nullptr);
    EXPECT_EQ(anti.entries[0].anti->offsetX, 0.0);
    EXPECT_TRUE(g_model.g_mapOffsetPadStacks.Contains("ANTI"));
    EXPECT_FALSE(g_model.g_mapOffsetPadStacks.Contains("PWR"));
}

TEST_F(PadLibraryTest, ADefaultEntryIsOverwrittenByLaterLayerWords) {
    Load(
        "%padstackdef \"D\"\n%defaultliblayer\n%pad 0 0 \"C50\";\n%drill 0.2\n"
        "%liblayer \"TOP\"\n%pad 0 0 \"R\";\n%end_padstackdef\n");
    const PadStackRec& d = Stack("D");
    ASSERT_EQ(d.entries.size(), 1u);
    EXPECT_EQ(d.entries[0].layerName, "TOP");
    EXPECT_EQ(d.entries[0].regular->shapeName, "RECTANGLE");
    // A drill after a default entry makes an untyped padstack a through hole.
    EXPECT_EQ(d.nType, 2);
}

TEST_F(PadLibraryTest, AnUnknownLayerWordLeavesTheDefaultEntryAsItWas) {
    Load(
        "%padstackdef \"D\"\n%liblayer \"%ALL_LAYERS\"\n%pad 0 0 \"C50\";\n"
        "%liblayer \"NOWHERE\"\n%end_padstackdef\n");
    const PadStackRec& d = Stack("D");
    ASSERT_EQ(d.entries.size(), 1u);
    EXPECT_EQ(d.entries[0].layerName, "%defaultliblayer");
    EXPECT_EQ(d.entries[0].strLibLayer, "NOWHERE");
    EXPECT_EQ(d.nType, 0);
}

TEST_F(PadLibraryTest, InlineBoundaries) {
    Load(
        "%padstackdef \"IN\"\n%liblayer \"%toppad\"\n"
        "%pad 0 0 %begin_boundary %outline %polygon 0 0 1 0 1 1; %end_boundary;\n"
        "%antipad 0 0 %begin_boundary %outline %circle 0 0 0.8; %end_boundary;\n"
        "%liblayer \"BOT\"\n"
        "%pad 0 0 %begin_boundary %outline %line 0 0 1 1 %end_boundary;\n"
        "%antipad 0 0 %begin_boundary %outline %polygon 0 0 1 0 1 1; %end_boundary;\n"
        "%end_padstackdef\n");
    const PadStackRec& in = Stack("IN");
    ASSERT_EQ(in.entries.size(), 2u);
    ASSERT_NE(in.entries[0].regular, nullptr);
    EXPECT_EQ(in.entries[0].regular->shapeName, "POLYGON");
    EXPECT_EQ(in.entries[0].regular->points, (PointList{{0, 0}, {1, 0}, {1, 1}}));
    ASSERT_NE(in.entries[0].anti, nullptr);
    EXPECT_EQ(in.entries[0].anti->width, 0.8);
    EXPECT_EQ(in.entries[1].regular, nullptr);  // a path is no inline shape
    EXPECT_EQ(in.entries[1].anti, nullptr);     // nor is a polygon an antipad
}

TEST_F(PadLibraryTest, ResolvePadLayerWords) {
    Load("");
    std::string name;
    EXPECT_EQ(ResolvePadLayer("%TopPad", name), 0);
    EXPECT_EQ(name, "TOP");
    EXPECT_EQ(ResolvePadLayer("%bottompad", name), 4);
    EXPECT_EQ(name, "BOT");
    EXPECT_EQ(ResolvePadLayer("%defaultliblayer", name), -1);
    EXPECT_EQ(name, "%defaultliblayer");
    EXPECT_EQ(ResolvePadLayer("power", name), 2);
    EXPECT_EQ(name, "GND");
    EXPECT_EQ(ResolvePadLayer("d2", name), 3);  // dielectric layers are found too
    EXPECT_EQ(name, "D2");
    EXPECT_EQ(ResolvePadLayer("NONE", name), -1);
    EXPECT_EQ(name, "D2");
}

TEST_F(PadLibraryTest, DefaultEntriesExpandToTheConductorLayersLeftOver) {
    Load(
        "%padstackdef \"ALL\"\n%liblayer \"BOT\"\n%pad 0 0 \"R\";\n"
        "%liblayer \"%all_layers\"\n%pad 0 0 \"C50\";\n%end_padstackdef\n"
        "%padstackdef \"ONE\"\n%liblayer \"GND\"\n%pad 0 0 \"C50\";\n%end_padstackdef\n"
        "%padstackdef \"TWO\"\n%liblayer \"NONE\"\n%liblayer \"%bottompad\"\n%end_padstackdef\n"
        "%padstackdef \"THREE\"\n%liblayer \"TOP\"\n%liblayer \"GND\"\n%liblayer \"BOT\"\n"
        "%end_padstackdef\n");
    ResolvePadStackLayers();
    ExpandDefaultLayers();
    const PadStackRec& all = Stack("ALL");
    EXPECT_EQ(all.layer, 4);  // two entries, the first one names BOT
    ASSERT_EQ(all.entries.size(), 3u);
    EXPECT_EQ(all.entries[0].layerName, "BOT");
    EXPECT_EQ(all.entries[0].regular->shapeName, "RECTANGLE");
    EXPECT_EQ(all.entries[1].layerName, "TOP");
    EXPECT_EQ(all.entries[2].layerName, "GND");
    EXPECT_EQ(all.entries[1].regular, all.entries[2].regular);  // shared pads
    EXPECT_EQ(all.entries[1].regular->shapeName, "CIRCLE");
    EXPECT_EQ(Stack("ONE").layer, 2);
    EXPECT_EQ(Stack("TWO").layer, 4);  // the first names no layer
    EXPECT_EQ(Stack("THREE").layer, -1);
}

TEST_F(PadLibraryTest, RecordsCutOffByTheEndOfTheFileEndCleanly) {
    Load(
        "%padstackdef \"CUT\"\n%liblayer \"TOP\"\n%pad 0 0 %begin_boundary %outline %polygon 0 0 "
        "1");
    const PadStackRec& cut = Stack("CUT");
    ASSERT_EQ(cut.entries.size(), 1u);
    EXPECT_EQ(cut.entries[0].layerName, "TOP");
}

TEST_F(PadLibraryTest, ABlankLineInsideARecordEndsThePass) {
    Load(
        "%padstackdef \"A\"\n%liblayer \"TOP\"\n\n%pad 0 0 \"C50\";\n%end_padstackdef\n"
        "%padstackdef \"B\"\n%end_padstackdef\n");
    EXPECT_TRUE(g_model.g_padStacks.Contains("A"));
    EXPECT_FALSE(g_model.g_padStacks.Contains("B"));
    EXPECT_EQ(Stack("A").entries[0].regular, nullptr);
}

TEST_F(PadLibraryTest, PassesStopAtTheNextSection) {
    Load(
        "%padstackdef \"A\"\n%end_padstackdef\n%packagedef \"PKG\"\n"
        "%padstackdef \"LATE\"\n%end_padstackdef\n");
    EXPECT_TRUE(g_model.g_padStacks.Contains("A"));
    EXPECT_FALSE(g_model.g_padStacks.Contains("LATE"));
}

}  // namespace
