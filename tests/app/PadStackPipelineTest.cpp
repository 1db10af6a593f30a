// Layers, padstacks and vias through a whole batch translation.
#include <gtest/gtest.h>

#include <string>

#include "TestSupport.h"

using namespace testing_support;

namespace {

bool HasLine(const std::string& text, const std::string& line) {
    for (const std::string& l : SplitLines(text))
        if (l == line) return true;
    return false;
}

TEST(PadStackPipelineTest, ExampleBoardWritesItsPadstackLibrary) {
    ScratchDir dir;
    WriteFile(dir.File("board.ndd"), ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "-drill", "5", "board.ndd"}), 0);
    std::string qfx = ReadFile(dir.File("board.qfx"));
    EXPECT_TRUE(HasLine(qfx, "*PadStack Library Section"));
    // Drill 20000 TN is a radius of 0.1 mm; -drill 5 adds 0.127 mm.
    EXPECT_TRUE(HasLine(qfx, ".PadStackDef VIA20 2.270000e-01mm 1.000000e-01mm"));
    EXPECT_TRUE(HasLine(qfx, ".PadStackDef VIA20_Mirrd 2.270000e-01mm 1.000000e-01mm"));
    EXPECT_TRUE(HasLine(qfx, ".PadDef Signal$BOTTOM"));
    EXPECT_TRUE(HasLine(qfx, "Regular Circle 2.500000e-01mm"));
    EXPECT_NE(qfx.find(".EndPadStackDef\n\n\n\n.EndPackage\n"), std::string::npos);
}

TEST(PadStackPipelineTest, ThreeHundredLayersStopTheTranslationWithAMessage) {
    ScratchDir dir;
    std::string text;
    for (int i = 0; i < 300; ++i)
        text += "%signal \"L" + std::to_string(i) + "\" \"" + std::to_string(i) +
                "\" \"x\" 1 \"CU\";\n";
    WriteFile(dir.File("big.ndd"), text);
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "big.ndd"}, &err), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")),
              "The layer stack of the NDD file has more than 256 layers.\nThe translation is "
              "stopped.\n");
}

TEST(PadStackPipelineTest, APadstackCutOffByTheEndOfTheFileEndsCleanly) {
    ScratchDir dir;
    WriteFile(dir.File("cut.ndd"),
              "%signal \"TOP\" \"1\" \"x\" 1 \"CU\";\n%signal \"BOT\" \"2\" \"x\" 1 \"CU\";\n"
              "%paddef \"C\"\n%begin_boundary\n%outline\n%circle 0 0 50000;\n%end_boundary\n"
              "%end_paddef\n"
              "%padstackdef \"V\"\n%drill 20000;\n%liblayer \"TOP\"\n%pad 0 0 \"C\";\n"
              "%padstackdef \"W\"\n%liblayer \"BOT\"\n%pad 0 0 %begin_boundary %outline "
              "%polygon 0 0 1");
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "cut.ndd"}), 0);
    std::string qfx = ReadFile(dir.File("cut.qfx"));
    // The second "%padstackdef" is a word inside the first record, which the file ends.
    EXPECT_TRUE(HasLine(qfx, ".PadStackDef V 1.000000e-01mm"));
    EXPECT_NE(qfx.find(".EndPackage\n.End\n"), std::string::npos);
}

}  // namespace
