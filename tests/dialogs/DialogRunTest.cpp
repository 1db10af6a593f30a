// A translation run by the main window: the stages it shows while the one thread translates,
// the questions it asks, and an Exit while it runs. The start routine's dialog run, which
// translates on its first idle moment, is a batch case (dialog_run_translates_on_first_idle).
#include <gtest/gtest.h>

#include <QProgressBar>
#include <QTimer>
#include <cstdio>

#include "base/Platform.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/DialogTestSupport.h"

namespace {

using namespace testing_support;

class DialogRunTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        board = CopyExamples(dir, {"board.ndd"});
        start = base::CurrentFolder();
    }
    void TearDown() override { base::ChangeFolder(start); }

    ScratchDir dir;
    std::string board, start, qfx = dir.File("board.qfx");
    AnsweredServices answers;
};

TEST_F(DialogRunTest, TheWindowShowsEachStageWhileTheTranslationRuns) {
    auto d = OpenMainDialog(answers, board, qfx);
    auto* bar = qobject_cast<QProgressBar*>(d->GetDlgItem(IDC_PROGRESS1)->GetHandle());
    ASSERT_TRUE(bar);
    bar->setValue(70);
    // What the window would paint whenever the translation lets it. The shape pass passes its
    // 150th line; the trace pass starts again at 10.
    std::string seen, last;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        std::string now = d->GetDlgItemText(IDC_MSG) + " | " + std::to_string(bar->value()) + "\n";
        if (now != last) seen += now;
        last = now;
    });
    look.start(0);
    CMessageBoxAnswers boxes({kAnswerNo});
    d->OnOK();
    look.stop();
    EXPECT_EQ(Texts(boxes), std::vector<std::string>{DataFile("dialogs/traces_question.txt")});
    EXPECT_EQ(seen, DataFile("dialogs/translation_stages.txt"));
}

// The window repaints between stages; an Exit that arrives then must not close the output
// under the translation.
TEST_F(DialogRunTest, ExitDuringATranslationLeavesItToFinish) {
    {
        CMessageBoxAnswers boxes({kAnswerNo});
        OpenMainDialog(answers, board, qfx)->OnOK();
    }
    std::string whole = ReadFile(qfx);
    std::remove(qfx.c_str());
    std::remove((qfx + ".log").c_str());
    auto again = OpenMainDialog(answers, board, qfx);
    QTimer exit;
    QObject::connect(&exit, &QTimer::timeout, [&] {
        if (again->GetDlgItemText(IDC_MSG) == "Writing Title ...") again->OnCancel();
    });
    exit.start(0);
    CMessageBoxAnswers boxes({kAnswerNo});
    again->OnOK();
    exit.stop();
    EXPECT_EQ(ReadFile(qfx), whole);
}

TEST_F(DialogRunTest, ARefusedReplacementEndsTheProgramBeforeAnythingIsWritten) {
    dir.Write("board.qfx", "kept");
    CMessageBoxAnswers boxes({kAnswerNo});
    OpenMainDialog(answers, board, qfx)->OnOK();
    EXPECT_EQ(Texts(boxes), std::vector<std::string>{
                                "Target qfx file already exists, \n Do you want to replace it?"});
    EXPECT_EQ(answers.endStatus, 0);
    EXPECT_EQ(ReadFile(qfx), "kept");
}

}  // namespace
