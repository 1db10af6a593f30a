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

// Each row: the padstack records after the library, and the padstacks they give.
TEST_F(PadLibraryTest, PadStackRecords) {
    const struct {
        const char* what;
        std::string records;
        std::vector<const char*> keys;
        std::vector<std::string> stacks;
    } rows[] = {
        {"entries, pads and the drill radius; an oval is no antipad, an unknown pad none",
         "%padstackdef \"V 1\" %padstacktype %THRUHOLE\n%drill 0.3;\n%liblayer \"top\"\n"
         "%pad 0 0 \"C50\";\n%antipad 0 0 \"OX\";\n%thermalpad 0 0 \"C50\";\n"
         "%liblayer \"%bottompad\" %pad 0.1 0\n \"R\";\n"
         "%liblayer \"GHOST\" %pad 0 0 \"MISSING\";\n%end_padstackdef;\n",
         {"V_1"},
         {"V_1 t2 d0.15 def0 L-1 offset | TOP(top,C50,OX) CIRCLE 0.5x0.5@0,0 / - / - "
          "| BOT(%bottompad,R,) RECTANGLE -0.6x-0.3@0.1,0 / - / - "
          "| (GHOST,MISSING,) - / - / -"}},
        {"a power entry takes its first pad as antipad; an offset antipad marks the padstack "
         "but is never offset itself",
         "%padstackdef \"PWR\"\n%liblayer \"POWER\"\n%pad 0 0 \"C50\";\n%pad 0 0 \"R\";\n"
         "%end_padstackdef\n"
         "%padstackdef \"ANTI\"\n%liblayer \"TOP\"\n%antipad 0.2 0 \"R\";\n%end_padstackdef\n",
         {"PWR", "ANTI"},
         {"PWR t0 d-1 def1 L-1 | %defaultliblayer(%defaultliblayer,R,C50) RECTANGLE -0.6x-0.3@0,0 "
          "/ "
          "CIRCLE 0.5x0.5@0,0 / -",
          "ANTI t0 d-1 def0 L-1 offset | TOP(TOP,,R) - / RECTANGLE -0.6x-0.3@0,0 / -"}},
        {"a default entry is overwritten by later layer words; a drill after it makes an "
         "untyped padstack a through hole",
         "%padstackdef \"D\"\n%defaultliblayer\n%pad 0 0 \"C50\";\n%drill 0.2\n"
         "%liblayer \"TOP\"\n%pad 0 0 \"R\";\n%end_padstackdef\n",
         {"D"},
         {"D t2 d0.1 def1 L-1 | TOP(TOP,R,) RECTANGLE -0.6x-0.3@0,0 / - / -"}},
        {"an unknown layer word leaves the default entry as it was",
         "%padstackdef \"D\"\n%liblayer \"%ALL_LAYERS\"\n%pad 0 0 \"C50\";\n"
         "%liblayer \"NOWHERE\"\n%end_padstackdef\n",
         {"D"},
         {"D t0 d-1 def1 L-1 | %defaultliblayer(NOWHERE,C50,) CIRCLE 0.5x0.5@0,0 / - / -"}},
        {"inline boundaries: a path is no inline shape, nor is a polygon an antipad",
         "%padstackdef \"IN\"\n%liblayer \"%toppad\"\n"
         "%pad 0 0 %begin_boundary %outline %polygon 0 0 1 0 1 1; %end_boundary;\n"
         "%antipad 0 0 %begin_boundary %outline %circle 0 0 0.8; %end_boundary;\n"
         "%liblayer \"BOT\"\n%pad 0 0 %begin_boundary %outline %line 0 0 1 1 %end_boundary;\n"
         "%antipad 0 0 %begin_boundary %outline %polygon 0 0 1 0 1 1; %end_boundary;\n"
         "%end_padstackdef\n",
         {"IN"},
         {"IN t0 d-1 def0 L-1 | TOP(%toppad,,) POLYGON 0x0@0,0 0,0 1,0 1,1 / CIRCLE "
          "0.8x0.8@0,0 / - | BOT(BOT,,) - / - / -"}},
        {"a record cut off by the end of the file ends cleanly",
         "%padstackdef \"CUT\"\n%liblayer \"TOP\"\n%pad 0 0 %begin_boundary %outline "
         "%polygon 0 0 1",
         {"CUT"},
         {"CUT t0 d-1 def0 L-1 | TOP(TOP,,) POLYGON 0x0@0,0 0,0 / - / -"}},
        {"a blank line inside a record ends the pass",
         "%padstackdef \"A\"\n%liblayer \"TOP\"\n\n%pad 0 0 \"C50\";\n%end_padstackdef\n"
         "%padstackdef \"B\"\n%end_padstackdef\n",
         {"A", "B"},
         {"A t0 d-1 def0 L-1 | TOP(TOP,,) - / - / -", "none"}},
        {"the pass stops at the next section",
         "%padstackdef \"A\"\n%end_padstackdef\n%packagedef \"PKG\"\n"
         "%padstackdef \"LATE\"\n%end_padstackdef\n",
         {"A", "LATE"},
         {"A t0 d-1 def0 L-1", "none"}},
    };
    for (const auto& row : rows) {
        SetUp();
        Load(row.records);
        std::vector<std::string> got;
        for (const char* key : row.keys) got.push_back(Stack(key));
        EXPECT_EQ(got, row.stacks) << row.what;
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
