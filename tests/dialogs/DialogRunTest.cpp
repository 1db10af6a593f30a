// A translation run by the main window: the stages it shows while the one thread translates,
// the questions it asks in their order, and the start routine's dialog run, which translates
// on its first idle moment and leaves the QFX file of a batch run.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QProgressBar>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "app/Ndd2QfxApp.h"
#include "app/ProcessHooks.h"
#include "base/Platform.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/forms/ControlIds.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ui/MessageBox.h"

namespace {

using namespace testing_support;

const char kTracesQuestion[] =
    "Do you wish to include information in the\"traces\"file?\r\n"
    "If Yes, please select the latest version of the \"traces\" file\r\n"
    "   that is usually found in the layout's \"PCB\" folder.\r\n"
    "\r\nNote: The \"traces\" file contains additional information \r\n"
    "   that is not contained within the ndd file.\r\n"
    "   The translation is usually more accurate \r\n"
    "   when this file is used in conjunction with the ndd file.\r\n"
    "\r\nIt is highly recommended.";
const char kReplaceQuestion[] = "Target qfx file already exists, \n Do you want to replace it?";

class DialogRunTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        board = dir.Write("board.ndd", ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
        start = base::CurrentFolder();
    }
    void TearDown() override {
        base::ChangeFolder(start);
        ResetProcessHooks();
    }

    std::unique_ptr<CNdd2QfxDlg> Open() {
        DialogServices s = DesktopServices();
        s.endProcess = [this](int status) { endStatus = status; };
        auto dialog = std::make_unique<CNdd2QfxDlg>(s);
        dialog->Create(IDD_Ndd2Qfx_DIALOG);
        return dialog;
    }

    // The start routine of a run with these arguments, as the program runs it.
    void RunProgram(std::vector<std::string> args) {
        args.insert(args.begin(), "ndd2qfx");
        CNdd2QfxApp app(args);
        EXPECT_EQ(app.InitInstance(), -1);
        base::ChangeFolder(start);
    }

    ScratchDir dir;
    std::string board, start;
    int endStatus = -1;
};

std::vector<std::string> Texts(const CMessageBoxAnswers& boxes) {
    std::vector<std::string> texts;
    for (const ShownMessageBox& b : boxes.Shown()) texts.push_back(b.text);
    return texts;
}

TEST_F(DialogRunTest, TheWindowShowsEachStageWhileTheTranslationRuns) {
    auto d = Open();
    d->SetDlgItemText(IDC_EDIT_INPUT, board);
    d->SetDlgItemText(IDC_EDIT_OUTPUT, dir.File("board.qfx"));
    ASSERT_TRUE(d->GetDlgItem(IDC_PROGRESS1));
    auto* bar = qobject_cast<QProgressBar*>(d->GetDlgItem(IDC_PROGRESS1)->GetHandle());
    ASSERT_TRUE(bar);
    bar->setValue(70);
    // What the window would paint whenever the translation lets it.
    std::vector<std::string> seen;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        std::string now = d->GetDlgItemText(IDC_MSG) + " | " + std::to_string(bar->value());
        if (seen.empty() || seen.back() != now) seen.push_back(now);
    });
    look.start(0);
    CMessageBoxAnswers boxes({kAnswerNo});
    d->OnOK();
    look.stop();
    EXPECT_EQ(Texts(boxes), std::vector<std::string>{kTracesQuestion});
    EXPECT_EQ(
        seen,
        (std::vector<std::string>{
            " | 0", "Begin ... | 0", "Processing Layer Info ... | 0", "Processing Via Info ... | 0",
            "Processing Via Info ... | 10", "Processing Trace Info... | 10",
            "Processing Shape Info... | 10",
            // The shape pass passes its 150th line; the trace pass starts again at 10.
            "Processing Shape Info... | 15", "Processing Shape Info... | 10",
            "Writing Title ... | 10", "Writing Transient ... | 10", "Writing Mesh ... | 10",
            "Writing PKG header ... | 10", "Writing Via Info... | 10", "Writing Shape Info... | 10",
            "Writing Layer Info... | 10", "Writing Node Info... | 10", "Writing Trace Info... | 10",
            "Writing PKG End... | 10", "Translation completed | 10"}));
}

// The window repaints between stages; an Exit that arrives then must not close the output
// under the translation.
TEST_F(DialogRunTest, ExitDuringATranslationLeavesItToFinish) {
    std::string qfx = dir.File("board.qfx");
    auto d = Open();
    d->SetDlgItemText(IDC_EDIT_INPUT, board);
    d->SetDlgItemText(IDC_EDIT_OUTPUT, qfx);
    {
        CMessageBoxAnswers boxes({kAnswerNo});
        d->OnOK();
    }
    std::string whole = ReadFile(qfx);
    std::remove(qfx.c_str());
    std::remove((qfx + ".log").c_str());
    auto again = Open();
    again->SetDlgItemText(IDC_EDIT_INPUT, board);
    again->SetDlgItemText(IDC_EDIT_OUTPUT, qfx);
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
    auto d = Open();
    d->SetDlgItemText(IDC_EDIT_INPUT, board);
    d->SetDlgItemText(IDC_EDIT_OUTPUT, dir.File("board.qfx"));
    CMessageBoxAnswers boxes({kAnswerNo});
    d->OnOK();
    EXPECT_EQ(Texts(boxes), std::vector<std::string>{kReplaceQuestion});
    EXPECT_EQ(endStatus, 0);
    EXPECT_EQ(ReadFile(dir.File("board.qfx")), "kept");
}

TEST_F(DialogRunTest, TheCommandLinesPairTranslatesOnFirstIdleAsABatchRunDoes) {
    SetMainDialogRunner(RunMainDialog);
    {
        CMessageBoxAnswers boxes({kAnswerNo});
        RunProgram({board, dir.File("dialog.qfx")});
        EXPECT_EQ(Texts(boxes), std::vector<std::string>{kTracesQuestion});
    }
    ResetGlobals();
    RunProgram({"-NoUI", board, dir.File("batch.qfx")});
    std::string dialogDeck = ReadFile(dir.File("dialog.qfx"));
    EXPECT_NE(dialogDeck.find(".EndPackage"), std::string::npos);
    EXPECT_EQ(dialogDeck, ReadFile(dir.File("batch.qfx")));
}

}  // namespace
