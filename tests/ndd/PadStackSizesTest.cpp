#include "ndd/PadStackSizes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "DataCases.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/LayerStack.h"
#include "ndd/NddInput.h"
#include "ndd/PadBoundaries.h"

using namespace testing_support;

namespace {

std::string Words(const std::vector<std::string>& words) {
    std::string t;
    for (const std::string& w : words) t += (t.empty() ? "" : " ") + w;
    return "[" + t + "]";
}

// "@NAME": the pad boundary NAME as "shape polarity x,y radius equivalent-radius points";
// "NAME": the padstack size NAME as "type has-type via-rule radius [corners] [layers]".
std::string RecordText(const std::string& arg) {
    if (arg[0] == '@') {
        const PadNameRec* pad = g_model.g_mapPadBoundaries.Find(arg.substr(1));
        if (!pad || !pad->boundary) return arg + (pad ? " empty" : " none");
        const PadBoundaryRec& b = *pad->boundary;
        std::string t = arg + " s" + std::to_string(b.nShape) + " p" + std::to_string(b.polarity) +
                        " " + Exact(b.x) + "," + Exact(b.y) + " r" + Exact(b.dbRadius) + " e" +
                        Exact(b.dbEquivalentRadius);
        for (const auto& p : b.points) t += " " + Exact(p.first) + "," + Exact(p.second);
        return t;
    }
    PadStackSizeRec* const* size = g_model.g_mapPadStackSizes.Find(arg);
    if (!size) return arg + " none";
    const PadStackSizeRec& s = **size;
    return arg + " t" + std::to_string(s.nType) + " h" + std::to_string(s.nHasType) + " v" +
           std::to_string(s.nViaRule) + " r" + Exact(s.dbMinRadius) + " " +
           Words(s.lstRoundCorners) + " " + Words(s.lstLibLayers);
}

class PadStackSizesTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
    void TearDown() override {
        if (g_options.g_pLogFile) std::fclose(g_options.g_pLogFile);
        g_options.g_pLogFile = nullptr;
    }
    ScratchDir dir_;
};

// Records after a stack (TOP, D1, GND, D2, BOT in TN units) and the pads C, R, P and EMPTY;
// then the number of sizes, the records named on the "--" line and what the log says.
TEST_F(PadStackSizesTest, RecordsGiveTheseSizes) {
    const std::string head =
        DataFile("ndd/PadStackSizes/stack.ndd") + DataFile("ndd/PadStackSizes/pads.ndd");
    for (const DataCase& c : DataCases("ndd/PadStackSizes/Records.txt")) {
        SetUp();
        TearDown();
        ForgetNddInput();
        const std::string path = dir_.Write("board.ndd", head + c.input);
        ASSERT_EQ(ParseLayer(path), 1);
        ParsePadDef(path);
        g_options.g_pLogFile = std::tmpfile();
        ParsePadStackSizes(path);
        std::string got = std::to_string(g_model.g_lstPadStackSizes.size()) + " sizes\n";
        for (const std::string& arg : c.args) got += RecordText(arg) + "\n";
        EXPECT_EQ(got + ReadStream(g_options.g_pLogFile), c.expected) << c.title;
    }
}

TEST(GuessPadStackType, FromLayerWords) {
    ResetGlobals();
    ScratchDir dir;
    ASSERT_EQ(ParseLayer(dir.Write("s.ndd", DataFile("ndd/PadStackSizes/stack.ndd"))), 1);
    const struct {
        std::vector<std::string> words;
        int type;
    } rows[] = {{{}, 2},
                {{"\"TOP\""}, 1},
                {{"\"TOP\"", "\"BOT\""}, 2},
                {{"\"D1\""}, 1},
                {{"\"%toppad\""}, 1},
                {{"\"%bottompad\""}, 1},
                {{"\"%toppad\"", "\"%bottompad\""}, 2},
                {{"\"%toppad\"", "\"%bottompad\"", "GND"}, 1},
                {{"\"%all_layers\""}, 2},
                {{"%defailtliblayer"}, 2}};
    for (const auto& row : rows) {
        PadStackSizeRec size;
        size.lstLibLayers = row.words;
        GuessPadStackType(size);
        EXPECT_EQ(size.nType, row.type) << Words(row.words);
    }
}

}  // namespace
