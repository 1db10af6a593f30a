#include "app/ModelReport.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "app/TranslationDriver.h"
#include "base/Platform.h"
#include "model/BatchHost.h"
#include "model/TranslationOptions.h"

using namespace testing_support;

namespace {

const std::string kBoard = testing_support::DataFile("app/ModelReport/board.ndd");

void StartBatchRun() {
    ResetGlobals();
    g_options.g_nBatchMode = -1;
    g_options.g_nQuiet = -1;
    g_options.g_pErrorLog = std::tmpfile();
}

int Translate(const std::string& input, const std::string& output) {
    g_options.g_strInputFile = input;
    g_options.g_strOutputFile = output;
    BatchHost host;
    TranslationDriver driver(host);
    return driver.Translate(input, output) == TranslateStatus::Done ? 1 : 0;
}

std::string Reports() {
    return ReadStream(g_options.g_pErrorLog);
}

size_t Count(const std::string& text, const std::string& part) {
    size_t n = 0;
    for (size_t p = text.find(part); p != std::string::npos; p = text.find(part, p + 1)) ++n;
    return n;
}

TEST(ModelReport, SecondWritingReplacesTheFirstAndIgnoresTheElementSwitches) {
    ScratchDir dir;
    std::string input = dir.Write("board.ndd", kBoard);

    StartBatchRun();
    std::string all = dir.File("all.qfx");
    ASSERT_EQ(Translate(input, all), 1);

    StartBatchRun();
    g_options.g_bTranslateShapes = g_options.g_bTranslateLayers = 0;
    g_options.g_bTranslateTraces = g_options.g_bTranslateVias = 0;
    std::string none = dir.File("none.qfx");
    // Warnings printed before the report step are dropped with the first log.
    g_options.g_pLogFile = std::fopen((none + ".log").c_str(), "w");
    std::fputs("stale warning\n", g_options.g_pLogFile);
    dir.Write("none.qfxtemp.log", "model messages\n");
    ASSERT_EQ(Translate(input, none), 1);
    EXPECT_EQ(Reports(), "");

    std::string text = ReadFile(none);
    EXPECT_EQ(text, ReadFile(all));
    EXPECT_EQ(Count(text, "Title - BOLT9000"), 1u);
    EXPECT_EQ(Count(text, ".EndPackage\n"), 1u);
    ASSERT_GE(text.size(), 5u);
    EXPECT_EQ(text.substr(text.size() - 5), ".End\n");
    EXPECT_FALSE(base::PathExists(dir.File("none.qfxtemp.log")));

    std::string log = ReadFile(none + ".log");
    EXPECT_EQ(log.find("stale warning"), std::string::npos);
    EXPECT_EQ(log.rfind("Ndd2Qfx Version ", 0), 0u);
    EXPECT_NE(log.find("From file : " + input + "\nTo file : " + none + "\n"), std::string::npos);
    EXPECT_NE(log.find("\n\nWarning(s):\n\n\nComponent Model Info :\n\n"
                       "\nTotal No Of Components in Design File = 0\n"),
              std::string::npos);
    EXPECT_EQ(g_options.g_pLogFile, nullptr);
    EXPECT_EQ(g_options.g_pOutputFile, nullptr);
}

}  // namespace
