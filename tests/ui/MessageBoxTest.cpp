// ReportMessage in a dialog run shows a box and returns its answer; a batch run writes
// error.log and shows nothing.
#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ui/MessageBox.h"
#include "ui/MessageBoxHost.h"

namespace {

TEST(MessageBoxes, DialogRunShowsBoxesAndReturnsTheirAnswers) {
    testing_support::ResetGlobals();
    CMessageBoxHost host;
    HostScope scope(host);
    CMessageBoxAnswers answers({kAnswerNo, 1, kAnswerYes});
    EXPECT_EQ(ReportMessage("Overwrite?", kBoxYesNo), kAnswerNo);
    EXPECT_EQ(ReportMessage("Careful", kBoxWarning), 1);
    EXPECT_EQ(ReportMessage("Again?", kBoxYesNo), kAnswerYes);
    EXPECT_EQ(ReportMessage("Done"), 1);
    std::vector<std::string> shown;
    for (const ShownMessageBox& box : answers.Shown())
        shown.push_back(box.title + "|" + box.text + "|" + std::to_string(box.type));
    EXPECT_EQ(shown, (std::vector<std::string>{"Ndd2Qfx|Overwrite?|4", "Ndd2Qfx|Careful|48",
                                               "Ndd2Qfx|Again?|4", "Ndd2Qfx|Done|0"}));
}

TEST(MessageBoxes, BatchRunWritesTheReportAndShowsNoBox) {
    testing_support::ResetGlobals();
    testing_support::ScratchDir dir;
    g_options.g_nBatchMode = -1;
    g_options.g_pErrorLog = std::fopen(dir.File("error.log").c_str(), "w+");
    CMessageBoxHost host;
    HostScope scope(host);
    CMessageBoxAnswers answers;
    EXPECT_EQ(ReportMessage("Overwrite?  \n", kBoxYesNo), 1);
    std::fclose(g_options.g_pErrorLog);
    g_options.g_pErrorLog = nullptr;
    EXPECT_EQ(testing_support::ReadFile(dir.File("error.log")), "Overwrite?\n");
    EXPECT_TRUE(answers.Shown().empty());
    testing_support::ResetGlobals();
}

}  // namespace
