// The Settings dialog inside a dialog run: what a batch run leaves of the options, Settings
// without an input, and a whole run through the real dialogs: nets and a colour chosen, side
// files named, translated, and the log loaded again in a new run.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <regex>
#include <set>

#include "Fixtures.h"
#include "app/Ndd2QfxApp.h"
#include "base/Platform.h"
#include "dialogs/Ndd2QfxSetting.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/DialogTestSupport.h"
#include "ui/UiControls.h"

namespace {

using namespace testing_support;

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
        board = CopyExamples(dir, {"board.ndd"});
        traces = CopyExamples(dir, {"traces"});
        hkp = CopyExamples(dir, {"layout.hkp"});
    }
    void TearDown() override { base::ChangeFolder(start); }

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
    std::string start, board, traces, hkp, output = dir.File("board.qfx");
};

// The main window's opening clears the flag (see MainDialogTest); a batch run keeps it.
TEST_F(SettingsRunTest, ABatchRunKeepsTheViaVoidFlag) {
    CNdd2QfxApp app({"ndd2qfx", "-NoUI", board, output});
    app.InitInstance();
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 1);
}

TEST_F(SettingsRunTest, SettingsWithAnEmptyInputOpensWithNoNets) {
    fixtures::MakeNets({"A", "B"});
    AnsweredServices answers;
    int rows = -1;
    ScriptedModals modals({[&](CUiDialog& s) {
        rows = static_cast<CNdd2QfxSetting&>(s).NetChoicePage().NetList()->GetItemCount();
        Press(s, kIdCancel);
    }});
    OpenMainDialog(answers)->OnProperty();
    EXPECT_EQ(modals.Ran(), 1u);
    EXPECT_EQ(rows, 0);
}

TEST_F(SettingsRunTest, ChosenNetsAndColourReachTheDeckAndTheLogAndComeBackFromTheLog) {
    AnsweredServices first;
    first.files = {traces, hkp};
    first.colours = {10};
    auto d = OpenMainDialog(first, board, output);
    Settings(*d, [](CNetChoice& page) {
        CUiListCtrl* all = page.NetList();
        for (const char* name : {"VCC", "CLK", "GND"})
            all->SetItemSelected(all->FindItem(name), true);
        QCoreApplication::processEvents();
        EXPECT_EQ(Rows(page.ChoiceList()), (std::vector<std::string>{"CLK:1", "GND:3", "VCC:4"}));
        emit page.ChoiceList()->itemClicked(0, 0, QPoint());
    });
    EXPECT_EQ(g_options.g_strTraceFile + " " + g_options.g_strHkpFile, traces + " " + hkp);
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
        EXPECT_EQ(Rows(page.ChoiceList()), (std::vector<std::string>{"CLK:10", "GND:3", "VCC:4"}));
    });
    {
        CMessageBoxAnswers boxes;  // yes, replace the deck of the first run
        again->OnOK();
    }
    EXPECT_EQ(ReadFile(output), deck);
}

}  // namespace
