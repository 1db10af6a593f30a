#include "ndd/PadLibrary.h"

#include <gtest/gtest.h>

#include <string>

#include "DataCases.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "ndd/LayerStack.h"
#include "ndd/PadStackLayers.h"

using namespace testing_support;

namespace {

// TOP, D1, GND (plane), D2, BOT; lengths in mm so the numbers read as they stand.
const std::string kStack = testing_support::DataFile("ndd/PadLibrary/stack.ndd");

const std::string kPads = testing_support::DataFile("ndd/PadLibrary/pads.ndd");

std::string Num(double v) {
    if (v == 0) v = 0;  // the sign of a zero is no rule
    char buf[32];
    std::snprintf(buf, sizeof buf, "%g", v);
    return buf;
}

std::string PointsText(const PointList& points) {
    std::string t;
    for (const auto& p : points) t += " " + Num(p.first) + "," + Num(p.second);
    return t;
}

// A pad as "SHAPE WxH@offsetX,offsetY points", or "-" for none.
std::string PadText(const std::shared_ptr<PadDefRec>& pad) {
    if (!pad) return "-";
    return pad->shapeName + " " + Num(pad->width) + "x" + Num(pad->height) + "@" +
           Num(pad->offsetX) + "," + Num(pad->offsetY) + PointsText(pad->points);
}

class PadLibraryTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }

    // Units, layers, then the two library passes as a translation runs them.
    void Load(const std::string& records) {
        std::string path = dir_.Write("board.ndd", std::string(kStack) + kPads + records);
        g_model.g_dbLengthScale = 1.0;
        EXPECT_EQ(ParseLayer(path), 1);
        ParsePadDefData(path);
    }
    // A padstack on one line: name, type, drill, default flag, layer, whether it is listed as
    // offset; then each entry: layer name (library layer word, pad name, antipad name)
    // regular pad / antipad / thermal pad.
    static std::string Stack(const std::string& key) {
        const PadStackRec* s = g_model.g_padStacks.Find(key);
        if (!s) return "none";
        std::string t = s->name + " t" + std::to_string(s->nType) + " d" + Num(s->drill) + " def" +
                        std::to_string(s->defaultLayerFlag) + " L" + std::to_string(s->layer) +
                        (g_model.g_mapOffsetPadStacks.Contains(key) ? " offset" : "");
        for (const PadEntry& e : s->entries)
            t += " | " + e.layerName + "(" + e.strLibLayer + "," + e.strPadName + "," +
                 e.strAntiPadName + ") " + PadText(e.regular) + " / " + PadText(e.anti) + " / " +
                 PadText(e.thermal);
        return t;
    }

    ScratchDir dir_;
};

TEST_F(PadLibraryTest, PadLibraryShapes) {
    Load("");
    // Rectangles are read as minimum corner then maximum corner: reversed corners give
    // negative sizes. Blanks and commas of the key become "_"; the record keeps the name.
    std::string text;
    for (const char* key : {"C50", "R", "PAD_1_A", "OX", "OY", "PATH", "", "NOSHAPE", "DONUT"}) {
        const PadLibRec* pad = g_model.g_padLibrary.Find(key);
        text += std::string(key) + ": ";
        text += pad ? pad->name + " k" + std::to_string(pad->kind) + " " + Num(pad->width) + "x" +
                          Num(pad->height) + PointsText(pad->points)
                    : "none";
        text += "\n";
    }
    EXPECT_EQ(text,
              "C50: C50 k2 0.5x0.5\n"
              "R: R k1 -0.6x-0.3\n"
              "PAD_1_A: PAD 1,A k3 0x0 0,0 1,0 1,1\n"
              "OX: OX k4 2.5x0.5\n"
              "OY: OY k5 0.5x2.5\n"
              "PATH: PATH k3 0x0 0,0 1,0 1,0 2,1 1,2\n"
              ": none\nNOSHAPE: none\nDONUT: none\n");
    EXPECT_EQ(g_model.g_padLibrary.Size(), 6u);
}

// Padstack records after the library, and the padstacks they give (see the data file).
TEST_F(PadLibraryTest, PadStackRecords) {
    for (const DataCase& c : DataCases("ndd/PadLibrary/PadStackRecords.txt")) {
        SetUp();
        Load(c.input);
        std::string got;
        for (const std::string& key : c.args) got += Stack(key) + "\n";
        EXPECT_EQ(got, c.expected) << c.title;
    }
}

TEST_F(PadLibraryTest, ResolvePadLayerWords) {
    Load("");
    const struct {
        const char* word;
        int index;
        const char* name;
    } rows[] = {{"%TopPad", 0, "TOP"},
                {"%bottompad", 4, "BOT"},
                {"%defaultliblayer", -1, "%defaultliblayer"},
                {"power", 2, "GND"},
                {"d2", 3, "D2"},  // dielectric layers are found too
                {"NONE", -1, "D2"}};
    std::string name;
    for (const auto& row : rows) {
        EXPECT_EQ(ResolvePadLayer(row.word, name), row.index) << row.word;
        EXPECT_EQ(name, row.name) << row.word;
    }
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
    // ALL has two entries, the first one names BOT; the expanded entries share their pads.
    EXPECT_EQ(Stack("ALL"),
              "ALL t0 d-1 def1 L4 | BOT(BOT,R,) RECTANGLE -0.6x-0.3@0,0 / - / - "
              "| TOP(,,) CIRCLE 0.5x0.5@0,0 / - / - "
              "| GND(,,) CIRCLE 0.5x0.5@0,0 / - / -");
    const PadStackRec* all = g_model.g_padStacks.Find("ALL");
    EXPECT_EQ(all->entries[1].regular, all->entries[2].regular);
    EXPECT_EQ(g_model.g_padStacks.Find("ONE")->layer, 2);
    EXPECT_EQ(g_model.g_padStacks.Find("TWO")->layer, 4);  // the first names no layer
    EXPECT_EQ(g_model.g_padStacks.Find("THREE")->layer, -1);
}

}  // namespace
