#include <gtest/gtest.h>

#include <cstdlib>

#include "TestSupport.h"
#include "model/ReportMessage.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"

namespace {

using testing_support::ReadFile;
using testing_support::ResetGlobals;
using testing_support::ScratchDir;

TEST(ReportMessage, BatchRunTrimsTheEndAndAppendsOneNewline) {
    ResetGlobals();
    ScratchDir dir;
    g_options.g_nBatchMode = -1;
    g_options.g_pErrorLog = std::fopen(dir.File("error.log").c_str(), "w+");
    EXPECT_EQ(ReportMessage("first \t\n\n", kBoxWarning), 1);
    EXPECT_EQ(ReportMessage("two\nlines"), 1);
    ResetGlobals();
    EXPECT_EQ(ReadFile(dir.File("error.log")), "first\ntwo\nlines\n");
}

class TraceStepTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        setenv("TMP", dir.Path().c_str(), 1);
        unsetenv("KEEP_BENCHMARK");
    }
    void TearDown() override {
        unsetenv("TMP");
        ResetGlobals();
    }
    ScratchDir dir;
};

TEST_F(TraceStepTest, LongTextIsCutToTheBuffer) {
    std::string big(5000, 'z');
    TraceStep(false, "%s", big.c_str());
    auto lines = testing_support::SplitLines(ReadFile(dir.File("debug_bm.log")));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].substr(26), std::string(2047, 'z'));
}

}  // namespace
