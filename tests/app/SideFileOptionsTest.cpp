// The options that name the traces file and layout.hkp for a batch run.
#include <gtest/gtest.h>

#include "TestSupport.h"
#include "app/CommandLine.h"
#include "model/TranslationOptions.h"
#include "base/Platform.h"

namespace {

int Parse(std::vector<std::string> args, std::string* input = nullptr) {
    args.insert(args.begin(), "ndd2qfx");
    std::string log, in, out;
    int result = ParseCommandLine(args, log, in, out);
    if (input) *input = in;
    return result;
}

class SideFileOptionsTest : public ::testing::Test {
  protected:
    void SetUp() override { testing_support::ResetGlobals(); }
};

TEST_F(SideFileOptionsTest, EachOptionTakesItsValueAsAnAbsolutePath) {
    std::string input;
    EXPECT_EQ(Parse({"-NoUI", "-traces", "pcb/traces", "-hkp", "/d/layout.hkp", "a.ndd"}, &input),
              kCmdFilesTaken);
    EXPECT_EQ(g_options.g_strTraceFile, base::CurrentFolder() + "/pcb/traces");
    EXPECT_EQ(g_options.g_strHkpFile, "/d/layout.hkp");
    EXPECT_EQ(input, base::CurrentFolder() + "/a.ndd");
}

TEST_F(SideFileOptionsTest, SlashFormsAndCaseAreAcceptedLikeTheOtherOptions) {
    Parse({"/TRACES", "t.txt", "/Hkp", "dir\\x.hkp", "-b", "a.ndd"});
    EXPECT_EQ(g_options.g_strTraceFile, base::CurrentFolder() + "/t.txt");
    EXPECT_EQ(g_options.g_strHkpFile, base::CurrentFolder() + "/dir/x.hkp");
    EXPECT_EQ(g_options.g_nBatchMode, 1);
}

TEST_F(SideFileOptionsTest, ValueIsConsumedEvenWhenItLooksLikeAFileName) {
    std::string input;
    EXPECT_EQ(Parse({"-hkp", "b.ndd", "a.ndd"}, &input), kCmdFilesTaken);
    EXPECT_EQ(g_options.g_strHkpFile, base::CurrentFolder() + "/b.ndd");
    EXPECT_EQ(input, base::CurrentFolder() + "/a.ndd");
}

TEST_F(SideFileOptionsTest, OptionWithoutValueEndsTheWalkWithNoFile) {
    EXPECT_EQ(Parse({"-traces"}), kCmdNoFile);
    EXPECT_EQ(g_options.g_strTraceFile, "");
}

}  // namespace
