#include "ndd/PadStackSizes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/LayerStack.h"
#include "ndd/NddInput.h"
#include "ndd/PadBoundaries.h"

using namespace testing_support;

namespace {

constexpr double kTwoPi = 6.283185307179586;

// TOP, D1, GND, D2, BOT in TN units (1e-5 mm).
const std::string kStack = testing_support::DataFile("ndd/PadStackSizes/stack.ndd");

const std::string kPads = testing_support::DataFile("ndd/PadStackSizes/pads.ndd");

class PadStackSizesTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
    void TearDown() override {
        if (g_options.g_pLogFile) std::fclose(g_options.g_pLogFile);
        g_options.g_pLogFile = nullptr;
    }

    std::string Load(const std::string& records) {
        ForgetNddInput();
        path_ = dir_.Write("board.ndd", std::string(kStack) + kPads + records);
        EXPECT_EQ(ParseLayer(path_), 1);
        ParsePadDef(path_);
        return path_;
    }
    PadStackSizeRec* Size(const std::string& name) {
        PadStackSizeRec* const* size = g_model.g_mapPadStackSizes.Find(name);
        return size ? *size : nullptr;
    }
    const PadBoundaryRec* Boundary(const std::string& name) {
        const PadNameRec* pad = g_model.g_mapPadBoundaries.Find(name);
        return pad ? pad->boundary.get() : nullptr;
    }

    ScratchDir dir_;
    std::string path_;
};

TEST_F(PadStackSizesTest, PadBoundariesAndTheirEquivalentRadii) {
    Load("");
    const PadBoundaryRec* c = Boundary("C");
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->nShape, 1);
    EXPECT_EQ(c->polarity, 1);
    EXPECT_EQ(c->x, 100 * 1e-5);
    EXPECT_EQ(c->dbRadius, 50000 * 1e-5 * 0.5);
    EXPECT_EQ(c->dbEquivalentRadius, c->dbRadius);

    const PadBoundaryRec* r = Boundary("R");
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->nShape, 2);
    EXPECT_EQ(r->polarity, 0);
    ASSERT_EQ(r->points.size(), 5u);
    EXPECT_EQ(r->points[2], std::make_pair(40000 * 1e-5, 20000 * 1e-5));
    EXPECT_EQ(r->points[4], r->points[0]);
    // (2 * 0.4 + 2 * 0.2) / 2 pi * 0.75
    EXPECT_DOUBLE_EQ(r->dbEquivalentRadius, 1.2 / kTwoPi * 0.75);

    // Closed by the first point again; the edge from the first point to the second is not
    // counted: 0.4 + 0.5.
    const PadBoundaryRec* p = Boundary("P");
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->nShape, 3);
    ASSERT_EQ(p->points.size(), 4u);
    EXPECT_EQ(p->points[3], p->points[0]);
    EXPECT_DOUBLE_EQ(p->dbEquivalentRadius, 0.9 / kTwoPi * 0.75);

    ASSERT_TRUE(g_model.g_mapPadBoundaries.Contains("EMPTY"));
    EXPECT_EQ(Boundary("EMPTY"), nullptr);
}

TEST_F(PadStackSizesTest, PadDefinitionCutOffByTheEndOfTheFile) {
    Load("%paddef \"CUT\"\n%begin_boundary\n%outline\n%circle 0 0 5000;\n");
    ASSERT_TRUE(g_model.g_mapPadBoundaries.Contains("CUT"));
    EXPECT_EQ(Boundary("CUT"), nullptr);
}

TEST_F(PadStackSizesTest, EquivalentRadiiOfTheFourInlineShapes) {
    Load(
        "%padstackdef \"CIRCLE\"\n%liblayer \"TOP\"\n%pad 0 0 %begin_boundary\n%outline\n"
        "%circle 0 0 50000;\n%end_boundary;\n%end_padstackdef\n"
        "%padstackdef \"RECT\"\n%rectangle -20000 -10000 20000 10000;\n%end_padstackdef\n"
        "%padstackdef \"LINE\"\n%round_endpoint_line 0 0 10000 0 5000;\n%end_padstackdef\n"
        "%padstackdef \"POLY\"\n%polygon 0 0 3 0\n# a comment\n3 4;\n%end_padstackdef\n");
    ParsePadStackSizes(path_);
    ASSERT_EQ(g_model.g_lstPadStackSizes.size(), 4u);
    // d * 0.5 * 0.7 * scale: only the circle is scaled.
    EXPECT_EQ(Size("CIRCLE")->dbMinRadius, 50000 * 0.5 * 0.7 * 1e-5);
    EXPECT_EQ(Size("RECT")->dbMinRadius, (2 * 40000.0 + 2 * 20000.0) * 0.7 / 6.283186);
    EXPECT_EQ(Size("LINE")->dbMinRadius, (2 * 10000.0 + 5000 * 6.283186) * 0.7 / 6.283186);
    EXPECT_EQ(
        Size("LINE")->lstRoundCorners,
        (std::vector<std::string>{"-2500.000000", "-2500.000000", "12500.000000", "2500.000000"}));
    EXPECT_EQ(Size("RECT")->lstRoundCorners,
              (std::vector<std::string>{"-20000", "-10000", "20000", "10000"}));
    EXPECT_EQ(Size("CIRCLE")->lstRoundCorners, (std::vector<std::string>{"0", "0"}));
    EXPECT_DOUBLE_EQ(Size("POLY")->dbMinRadius, 12.0 / kTwoPi * 0.7);
    EXPECT_TRUE(Size("POLY")->lstRoundCorners.empty());
    EXPECT_EQ(Size("CIRCLE")->lstLibLayers, (std::vector<std::string>{"\"TOP\""}));
}

TEST_F(PadStackSizesTest, DrillReplacesTheRadiusAndLaterShapesLowerIt) {
    Load(
        "%padstackdef \"A\"\n%circle 0 0 50000;\n%drill 100000;\n%end_padstackdef\n"
        "%padstackdef \"B\"\n%drill 100000;\n%circle 0 0 50000;\n%end_padstackdef\n"
        "%padstackdef \"Z\"\n%drill 0;\n%end_padstackdef\n");
    ParsePadStackSizes(path_);
    EXPECT_EQ(Size("A")->dbMinRadius, 100000 / 200000.0);
    EXPECT_EQ(Size("B")->dbMinRadius, 50000 * 0.5 * 0.7 * 1e-5);
    EXPECT_EQ(Size("Z")->dbMinRadius, 0.0);
}

TEST_F(PadStackSizesTest, LibraryPadsCountOnlyForTypesOtherThanSurface) {
    Load(
        "%padstackdef \"T\"\n%padstacktype \"%thruhole\"\n%pad 0 0 \"C\";\n%end_padstackdef\n"
        "%padstackdef \"S\" %padstacktype %surface;\n%pad 0 0 \"C\";\n%end_padstackdef\n"
        "%padstackdef \"U\"\n%pad 0 0 \"C\";\n%liblayer \"TOP\"\n%end_padstackdef\n"
        "%padstackdef \"MISS\"\n%padstacktype \"%thruhole\"\n%pad 0 0 \"NONE\" %drill 1;\n"
        "%end_padstackdef\n");
    ParsePadStackSizes(path_);
    EXPECT_EQ(Size("T")->dbMinRadius, 50000 * 1e-5 * 0.5);
    EXPECT_EQ(Size("T")->nType, 2);
    EXPECT_EQ(Size("T")->nHasType, 1);
    EXPECT_EQ(Size("S")->dbMinRadius, 1e6);
    EXPECT_EQ(Size("S")->nType, 1);
    // Untyped: the type is 1 while the pad is read, and guessed at the end.
    EXPECT_EQ(Size("U")->dbMinRadius, 1e6);
    EXPECT_EQ(Size("U")->nHasType, 0);
    EXPECT_EQ(Size("U")->nType, 1);
    // An unknown pad name passes over the rest of its line.
    EXPECT_EQ(Size("MISS")->dbMinRadius, 1e6);
}

TEST_F(PadStackSizesTest, NullPadstacksAreSkippedAndLayerWordsKept) {
    Load(
        "%padstackdef \"VIA_NULL\"\n%drill 5;\n%end_padstackdef\n"
        "%padstackdef \"V, 1\"\n%defaultliblayer\n%liblayer \"GND\"\n%end_padstackdef\n"
        "%packagedef \"PKG\"\n%padstackdef \"LATE\"\n%end_padstackdef\n");
    ParsePadStackSizes(path_);
    ASSERT_EQ(g_model.g_lstPadStackSizes.size(), 1u);
    PadStackSizeRec* v = Size("V__1");
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->lstLibLayers, (std::vector<std::string>{"%defailtliblayer", "\"GND\""}));
    EXPECT_EQ(v->nType, 1);  // GND alone
    EXPECT_EQ(Size("LATE"), nullptr);
}

TEST_F(PadStackSizesTest, GuessPadStackTypeFromLayerWords) {
    Load("");
    auto guess = [](std::vector<std::string> words) {
        PadStackSizeRec size;
        size.lstLibLayers = std::move(words);
        GuessPadStackType(size);
        return size.nType;
    };
    EXPECT_EQ(guess({}), 2);
    EXPECT_EQ(guess({"\"TOP\""}), 1);
    EXPECT_EQ(guess({"\"TOP\"", "\"BOT\""}), 2);
    EXPECT_EQ(guess({"\"D1\""}), 1);
    EXPECT_EQ(guess({"\"%toppad\""}), 1);
    EXPECT_EQ(guess({"\"%bottompad\""}), 1);
    EXPECT_EQ(guess({"\"%toppad\"", "\"%bottompad\""}), 2);
    EXPECT_EQ(guess({"\"%toppad\"", "\"%bottompad\"", "GND"}), 1);
    EXPECT_EQ(guess({"\"%all_layers\""}), 2);
    EXPECT_EQ(guess({"%defailtliblayer"}), 2);
}

TEST_F(PadStackSizesTest, BuriedPadstacksTakeTheirViaRuleOrTellTheLog) {
    Load(
        "%padstackdef \"B1\"\n%padstacktype \"%buried\"\n%end_padstackdef\n"
        "%padstackdef \"B 2\"\n%padstacktype \"%buried\"\n%end_padstackdef\n"
        "%padstackdef \"B3\"\n%padstacktype \"%buried\"\n%end_padstackdef\n"
        "%padstackdef \"B4\" %padstacktype %buried;\n%end_padstackdef\n"
        "%viarule \"B1\" \"GND\" \"GND\";\n"
        "%pinrule \"B 2\" \"TOP\" \"GND\";\n"
        "%viarule \"B1\" \"TOP\" \"BOT\";\n"
        "# %viarule \"B3\" \"TOP\" \"BOT\";\n");
    g_options.g_pLogFile = std::tmpfile();
    ParsePadStackSizes(path_);
    EXPECT_EQ(Size("B1")->nType, 1);
    EXPECT_EQ(Size("B1")->nViaRule, 1);
    EXPECT_EQ(Size("B_2")->nType, 2);
    EXPECT_EQ(Size("B3")->nType, 2);
    EXPECT_EQ(Size("B3")->nViaRule, 0);
    EXPECT_EQ(Size("B4")->nViaRule, 0);
    EXPECT_EQ(ReadStream(g_options.g_pLogFile),
              DataFile("ndd/PadStackSizes/BuriedPadstacksTakeTheirViaRuleOrTellTheLog.txt"));
}

TEST_F(PadStackSizesTest, RecordsCutOffByTheEndOfTheFileEndCleanly) {
    Load("%padstackdef \"CUT\"\n%liblayer \"TOP\"\n%polygon 0 0 1 1");
    ParsePadStackSizes(path_);
    ASSERT_NE(Size("CUT"), nullptr);
    EXPECT_EQ(Size("CUT")->nType, 1);
    Load("%padstackdef \"VIA_NULL\"\n%drill 5;\n");
    ParsePadStackSizes(path_);
    EXPECT_TRUE(g_model.g_lstPadStackSizes.empty());
}

}  // namespace
