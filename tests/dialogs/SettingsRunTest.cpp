// The Settings dialog inside a dialog run: what the main window's opening leaves, Settings
// without an input, and a whole run through the real dialogs: nets and a colour chosen, side
// files named, translated, and the log loaded again in a new run.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "Fixtures.h"
#include "TestSupport.h"
#include "app/Ndd2QfxApp.h"
#include "base/Platform.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/Ndd2QfxSetting.h"
#include "dialogs/forms/ControlIds.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/ScriptedModals.h"
#include "ui/MessageBox.h"
#include "ui/UiControls.h"
#include "ui/UiListCtrl.h"

namespace {

using namespace testing_support;

std::unique_ptr<CNdd2QfxDlg> OpenMainDialog(AnsweredServices& answers) {
    auto dialog = std::make_unique<CNdd2QfxDlg>(answers.Make());
    dialog->Create(IDD_Ndd2Qfx_DIALOG);
    return dialog;
}

void Press(CUiDialog& d, int id) {
    d.OnCmdMsg(static_cast<unsigned>(id), kCodeClicked, nullptr, false);
}

TEST(SettingsRun, TheMainWindowsOpeningClearsTheViaVoidFlagABatchRunKeepsIt) {
    ResetGlobals();
    ScratchDir dir;
    AnsweredServices answers;
    auto d = OpenMainDialog(answers);
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 0);
    d.reset();
    ResetGlobals();
    const std::string start = base::CurrentFolder();
    std::string board = dir.Write("b.ndd", ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    CNdd2QfxApp app({"ndd2qfx", "-NoUI", board, dir.File("b.qfx")});
    app.InitInstance();
    base::ChangeFolder(start);
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 1);
}

TEST(SettingsRun, SettingsWithAnEmptyInputOpensWithNoNets) {
    ResetGlobals();
    fixtures::MakeNets({"A", "B"});
    AnsweredServices answers;
    auto d = OpenMainDialog(answers);
    int rows = -1;
    ScriptedModals modals({[&](CUiDialog& s) {
        rows = static_cast<CNdd2QfxSetting&>(s).NetChoicePage().NetList()->GetItemCount();
        Press(s, kIdCancel);
    }});
    d->OnProperty();
    EXPECT_EQ(modals.Ran(), 1u);
    EXPECT_EQ(rows, 0);
}

// "NAME:colour" of the chosen nets.
std::vector<std::string> Chosen(CNetChoice& page) {
    std::vector<std::string> rows;
    CUiListCtrl* list = page.ChoiceList();
    for (int r = 0; r < list->GetItemCount(); ++r)
        rows.push_back(list->GetItemText(r, 0).toStdString() + ":" +
                       std::to_string(list->GetItemImage(r)));
    return rows;
}

// The nets that name objects of a deck, and the colour of each net's traces.
std::set<std::string> NetsAndTraceColours(const std::string& deck) {
    std::set<std::string> found;
    const std::regex net("::(\\w+)"), trace("^Trace\\d+::(\\w+) .*Color = (\\w+)$");
    for (const std::string& line : SplitLines(deck)) {
        std::smatch m;
        for (auto it = std::sregex_iterator(line.begin(), line.end(), net);
             it != std::sregex_iterator(); ++it)
            found.insert((*it)[1]);
        if (std::regex_search(line, m, trace)) found.insert(m[1].str() + " " + m[2].str());
    }
    return found;
}

class SettingsRunTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        start = base::CurrentFolder();
        board = Copy("examples/board.ndd", "board.ndd");
        traces = Copy("examples/traces", "traces");
        hkp = Copy("examples/layout.hkp", "layout.hkp");
        output = dir.File("board.qfx");
    }
    void TearDown() override { base::ChangeFolder(start); }
    std::string Copy(const std::string& from, const std::string& name) {
        return dir.Write(name, ReadFile(std::string(NDD2QFX_SOURCE_DIR "/") + from));
    }
    // The Settings step of a window: the script chooses, the side files are named by the
    // browsers, and OK.
    void Settings(CNdd2QfxDlg& d, const std::function<void(CNetChoice&)>& choose) {
        ScriptedModals modals({[&](CUiDialog& s) {
            auto& settings = static_cast<CNdd2QfxSetting&>(s);
            choose(settings.NetChoicePage());
            for (int id : {IDC_BUTTON_TRACE_FILE_BROWSE, IDC_BUTTON_HKP_FILE_BROWSE})
                static_cast<CUiButton*>(settings.PropertyPage().GetDlgItem(id))->Click();
            Press(s, kIdOk);
        }});
        d.OnProperty();
        ASSERT_EQ(modals.Ran(), 1u);
    }

    ScratchDir dir;
    std::string start, board, traces, hkp, output;
};

TEST_F(SettingsRunTest, ChosenNetsAndColourReachTheDeckAndTheLogAndComeBackFromTheLog) {
    AnsweredServices first;
    first.files = {traces, hkp};
    first.colours = {10};
    auto d = OpenMainDialog(first);
    d->SetDlgItemText(IDC_EDIT_INPUT, board);
    d->SetDlgItemText(IDC_EDIT_OUTPUT, output);
    Settings(*d, [](CNetChoice& page) {
        CUiListCtrl* all = page.NetList();
        for (const char* name : {"VCC", "CLK", "GND"})
            all->SetItemSelected(all->FindItem(name), true);
        QCoreApplication::processEvents();
        EXPECT_EQ(Chosen(page), (std::vector<std::string>{"CLK:1", "GND:3", "VCC:4"}));
        emit page.ChoiceList()->itemClicked(0, 0, QPoint());
    });
    EXPECT_EQ(g_options.g_strTraceFile, traces);
    EXPECT_EQ(g_options.g_strHkpFile, hkp);
    {
        // With a traces file named, the run asks nothing.
        CMessageBoxAnswers boxes;
        d->OnOK();
        EXPECT_TRUE(boxes.Shown().empty());
    }
    const std::string deck = ReadFile(output);
    EXPECT_EQ(
        NetsAndTraceColours(deck),
        (std::set<std::string>{"CLK", "GND", "VCC", "CLK darkmagenta", "GND blue", "VCC yellow"}));
    const std::string log = ReadFile(output + ".log");
    EXPECT_NE(log.find("\nNets Translated : \n\tCLK\tdarkmagenta\n\tGND\tblue\n\tVCC\tyellow\n\n"),
              std::string::npos);
    d.reset();

    // A new run: the log restores paths, nets and colours; the side files are named again.
    ResetGlobals();
    AnsweredServices second;
    second.files = {output + ".log", traces, hkp};
    auto again = OpenMainDialog(second);
    again->OnLoadLog();
    EXPECT_EQ(again->GetDlgItemText(IDC_EDIT_INPUT), board);
    Settings(*again, [](CNetChoice& page) {
        EXPECT_EQ(Chosen(page), (std::vector<std::string>{"CLK:10", "GND:3", "VCC:4"}));
    });
    {
        CMessageBoxAnswers boxes;  // yes, replace the deck of the first run
        again->OnOK();
    }
    EXPECT_EQ(ReadFile(output), deck);
}

}  // namespace
