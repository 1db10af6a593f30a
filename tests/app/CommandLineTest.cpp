#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/TranslationOptions.h"
#include "base/Platform.h"

namespace {

struct Parsed {
    int result;
    std::string log, input, output;
};

Parsed Parse(std::vector<std::string> args) {
    args.insert(args.begin(), "ndd2qfx");
    Parsed p{};
    p.result = ParseCommandLine(args, p.log, p.input, p.output);
    return p;
}

class CommandLineTest : public ::testing::Test {
  protected:
    void SetUp() override { testing_support::ResetGlobals(); }
};

TEST_F(CommandLineTest, DrillAndGapExcludeEachOtherByOrder) {
    Parse({"-drill", "5", "-EXP", "3", "a.ndd"});
    EXPECT_DOUBLE_EQ(g_options.g_dbDrillClearance, 5 * 0.0254);
    EXPECT_EQ(g_options.g_dbGapAroundAreaFillOnPlaneLayers, -1.0);
    testing_support::ResetGlobals();
    Parse({"-EXP", "3", "/DRILL", "5", "a.ndd"});
    EXPECT_EQ(g_options.g_dbDrillClearance, -1.0);
    EXPECT_DOUBLE_EQ(g_options.g_dbGapAroundAreaFillOnPlaneLayers, 3 * 0.0254);
    testing_support::ResetGlobals();
    Parse({"-drill", "abc", "a.ndd"});
    EXPECT_EQ(g_options.g_dbDrillClearance, 0.0);
}

TEST_F(CommandLineTest, BatchFlags) {
    Parse({"-NoUI", "-b", "a.ndd"});
    EXPECT_EQ(g_options.g_nBatchMode, -1);  // an earlier -NoUI stays
    testing_support::ResetGlobals();
    Parse({"/b", "/noui", "a.ndd"});
    EXPECT_EQ(g_options.g_nBatchMode, -1);
    testing_support::ResetGlobals();
    Parse({"-B", "-log", "/v", "-splitplane", "a.ndd"});
    EXPECT_EQ(g_options.g_nBatchMode, 1);
    EXPECT_EQ(g_options.g_bVerboseFlag, 1);
}

TEST_F(CommandLineTest, NddNameTakesOutputAndGapPercent) {
    Parsed p = Parse({"-NoUI", "  a.NDD ", "b.qfx", "20"});
    EXPECT_EQ(p.result, kCmdFilesTaken);
    EXPECT_EQ(p.input, base::CurrentFolder() + "/a.NDD");
    EXPECT_EQ(p.output, "b.qfx");
    EXPECT_EQ(g_options.g_strTraceGapPercent, "20");
    EXPECT_EQ(DefaultOutputName(p.input), base::CurrentFolder() + "/a.qfx");
}

TEST_F(CommandLineTest, LogNameTakesInputAndOutput) {
    Parsed p = Parse({"dir\\prev.LOG", "in.ndd", "out.qfx"});
    EXPECT_EQ(p.result, kCmdFilesTaken);
    EXPECT_EQ(p.log, base::CurrentFolder() + "/dir/prev.LOG");
    EXPECT_EQ(p.input, "in.ndd");
    EXPECT_EQ(p.output, "out.qfx");
}

TEST_F(CommandLineTest, UnknownExtensionsAndOptions) {
    EXPECT_EQ(Parse({"a.qfx"}).result, kCmdUnknownExtension);
    EXPECT_EQ(Parse({"-x", "a.ndd"}).result, kCmdUnknownExtension);  // -x is the first name
    EXPECT_EQ(Parse({}).result, kCmdNoFile);
    EXPECT_EQ(Parse({"-NoUI"}).result, kCmdNoFile);
}

TEST(DefaultOutputName, CutsAtTheDotOfTheExtensionOnly) {
    EXPECT_EQ(DefaultOutputName("/d/my.board.ndd"), "/d/my.board.qfx");
    EXPECT_EQ(DefaultOutputName("/d/boardndd"), "/d/boardndd.qfx");
}

}  // namespace

namespace {

TEST_F(CommandLineTest, PipeTokenStartsFromTheParentWhateverFollows) {
    const struct {
        std::vector<std::string> args;
        int batchMode;
    } cases[] = {
        {{"-pipe"}, 0},
        {{"/PIPE"}, 0},
        {{"-pipe", "-NoUI"}, -1},
        {{"-b", "/pipe", "a.ndd", "b.qfx"}, 1},
        {{"-NoUI", "-Pipe", "a.qfx"}, -1},
    };
    for (const auto& c : cases) {
        testing_support::ResetGlobals();
        Parsed p = Parse(c.args);
        EXPECT_EQ(p.result, kCmdPipeStart) << c.args[0];
        EXPECT_EQ(p.log + p.input + p.output, "");
        EXPECT_EQ(g_options.g_nBatchMode, c.batchMode);
    }
    // Behind the first name the token is a name like any other.
    testing_support::ResetGlobals();
    EXPECT_EQ(Parse({"a.ndd", "-pipe"}).result, kCmdFilesTaken);
    EXPECT_EQ(Parse({"-pipes"}).result, kCmdUnknownExtension);
}

}  // namespace
