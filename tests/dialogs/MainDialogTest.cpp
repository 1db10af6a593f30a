// The main window: its handler table, its opening, the two browsers, a loaded log, the
// Translate button's checks, the "More..." menu and the help, and what a dialog run leaves.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/OutputName.h"
#include "dialogs/TemporaryFiles.h"
#include "dialogs/forms/ControlIds.h"
#include "ibis/IbisReader.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/ScriptedModals.h"
#include "ui/MessageBox.h"

namespace {

using namespace testing_support;

// Writes a file of the scratch folder, with the folders it needs.
std::string Put(const ScratchDir& dir, const std::string& name, const std::string& text) {
    std::filesystem::create_directories(std::filesystem::path(dir.File(name)).parent_path());
    return dir.Write(name, text);
}

const std::vector<int> kPathControls = {IDC_EDIT_INPUT, IDC_EDIT_OUTPUT, IDC_BUTTON_INPUT,
                                        IDC_BUTTON_OUTPUT};

// A main window whose desktop is the test: file dialogs take the names of `chosen` in turn
// ("" cancels), the popup menu picks the entry captioned `menuChoice`, help pages are recorded.
class MainDialogTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }

    std::unique_ptr<CNdd2QfxDlg> Open() {
        DialogServices s;
        s.chooseFile = [this](QWidget*, const FileRequest& request) {
            requests.push_back(request);
            std::string file = chosen.empty() ? "" : chosen.front();
            if (!chosen.empty()) chosen.erase(chosen.begin());
            return file;
        };
        s.popupMenu = [this](QMenu& menu) -> QAction* {
            for (QAction* a : menu.actions())
                if (a->text().toStdString() == menuChoice) return a;
            return nullptr;
        };
        s.openUrl = [this](const std::string& url) {
            urls.push_back(url);
            return true;
        };
        s.endProcess = [this](int status) { endStatus = status; };
        s.someoneAnswers = [] { return true; };
        auto dialog = std::make_unique<CNdd2QfxDlg>(s);
        dialog->Create(IDD_Ndd2Qfx_DIALOG);
        return dialog;
    }

    static std::vector<bool> PathControlsEnabled(CNdd2QfxDlg& d) {
        std::vector<bool> enabled;
        for (int id : kPathControls) enabled.push_back(d.GetDlgItem(id)->IsWindowEnabled());
        return enabled;
    }

    // The Settings dialog that OnProperty opens is cancelled at once.
    ScriptedModals settings{
        std::vector<ScriptedModals::Script>(4, [](CUiDialog& d) { d.OnCancel(); })};
    std::vector<std::string> chosen;
    std::vector<FileRequest> requests;
    std::string menuChoice;
    std::vector<std::string> urls;
    int endStatus = -1;
    ScratchDir dir;
};

std::vector<std::string> Texts(const CMessageBoxAnswers& boxes) {
    std::vector<std::string> texts;
    for (const ShownMessageBox& b : boxes.Shown()) texts.push_back(b.text);
    return texts;
}

TEST_F(MainDialogTest, EveryCommandReachesItsHandler) {
    auto d = Open();
    struct Row {
        int id;
        const char* handler;
    };
    // The About entry opens a box of its own: it is only asked for.
    EXPECT_TRUE(d->OnCmdMsg(IDM_ABOUTBOX, kCodeClicked, nullptr, true));
    CMessageBoxAnswers boxes;
    for (Row row :
         {Row{IDC_BUTTON_INPUT, "OnButtonInput"}, Row{IDC_BUTTON_OUTPUT, "OnButtonOutput"},
          Row{IDC_PROPERTY, "OnProperty"}, Row{IDC_LOAD_LOG, "OnLoadLog"},
          Row{IDC_BUTTON_MORE, "HelperFunction"}, Row{ID_DOCUMENTS, "OnDocuments"}}) {
        ResetLastCommandName();
        EXPECT_TRUE(d->OnCmdMsg(row.id, kCodeClicked, nullptr, false)) << row.handler;
        EXPECT_EQ(LastCommandName(), row.handler);
    }
    EXPECT_FALSE(d->OnCmdMsg(IDC_MSG, kCodeClicked, nullptr, true));
}

TEST_F(MainDialogTest, OpeningNormalisesTheOptionsUnlessALogIsLoadedAndShowsTheCommandLine) {
    for (int logLoaded : {0, 1}) {
        ResetGlobals();
        g_options.g_bLogLoaded = logLoaded;
        g_options.g_strCmdInputFile = "/in/a.ndd";
        g_options.g_strCmdOutputFile = "/out/b.qfx";
        auto d = Open();
        // The via-void flag without an area is what the Settings page cannot show.
        EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, logLoaded) << logLoaded;
        EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_INPUT), "/in/a.ndd");
        EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), "/out/b.qfx");
        EXPECT_EQ(d->GetHandle()->windowTitle().toStdString(), "Lumora - NDD to QFX  Translator  ");
        EXPECT_EQ(d->GetHelpFormName(), "Ndd2QfxForm");
    }
    EXPECT_EQ(IbisModelProblemCount(), 0);
}

TEST_F(MainDialogTest, TranslateWithoutANameSaysWhichIsMissing) {
    struct Row {
        const char *input, *output, *message;
    };
    for (Row row : {Row{"", "b.qfx", "Please Enter Input File"},
                    Row{"a.ndd", "", "Please Enter Output File"}}) {
        auto d = Open();
        d->SetDlgItemText(IDC_EDIT_INPUT, row.input);
        d->SetDlgItemText(IDC_EDIT_OUTPUT, row.output);
        CMessageBoxAnswers boxes;
        d->OnOK();
        EXPECT_EQ(Texts(boxes), std::vector<std::string>{row.message});
        EXPECT_EQ(g_options.g_strInputFile, "");
    }
}

TEST(OutputNameTest, TheInputProposesItsOutput) {
    struct Row {
        const char *input, *output;
    };
    for (Row row : {Row{"x.y.ndd", "x.y.qfx"}, Row{"/d/board", "/d/board.qfx"},
                    Row{"/d.e/board", "/d.e/board.qfx"}, Row{"/d/.ndd", "/d/.ndd.qfx"},
                    Row{"/d/", "/d/ofile.qfx"}, Row{"", "ofile.qfx"}})
        EXPECT_EQ(DeriveOutputName(row.input), row.output) << row.input;
}

TEST_F(MainDialogTest, BrowsersAskForTheirFilesAndTheInputDerivesTheOutput) {
    auto d = Open();
    chosen = {"/d/x.y.ndd", "/e/out.qfx", ""};
    d->OnButtonInput();
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), "/d/x.y.qfx");
    d->OnButtonOutput();
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_INPUT), "/d/x.y.ndd");
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), "/e/out.qfx");
    d->OnButtonOutput();  // cancelled: nothing changes
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), "/e/out.qfx");
    ASSERT_EQ(requests.size(), 3u);
    EXPECT_FALSE(requests[0].save);
    EXPECT_EQ(requests[0].title, "Select Input NDD File");
    EXPECT_EQ(requests[0].filter, "ndd Files (*.ndd)");
    EXPECT_EQ(requests[0].defaultExtension, "ndd");
    EXPECT_TRUE(requests[1].save);
    EXPECT_EQ(requests[1].title, "Select Output QFX File");
    EXPECT_EQ(requests[1].filter, "qfx Files (*.qfx)");
    EXPECT_EQ(requests[1].defaultExtension, "qfx");
}

TEST_F(MainDialogTest, ALoadedLogLocksThePathsAndACancelledOneLeavesItsFlag) {
    std::string log = Put(dir, "run.qfx.log",
                          "Ndd2Qfx Version 1.0.0.1\nFrom file : " + dir.File("a.ndd") +
                              "\nTo file : " + dir.File("run.qfx") + "\n");
    auto d = Open();
    chosen = {log};
    d->OnLoadLog();
    EXPECT_EQ(requests.at(0).title, "");
    EXPECT_EQ(requests.at(0).filter, "Log Files (*.log)");
    EXPECT_EQ(requests.at(0).defaultExtension, "log");
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_INPUT), dir.File("a.ndd"));
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), dir.File("run.qfx"));
    EXPECT_EQ(PathControlsEnabled(*d), std::vector<bool>(4, false));

    ResetGlobals();
    auto fresh = Open();
    chosen = {""};
    fresh->OnLoadLog();
    EXPECT_EQ(g_options.g_bLogLoaded, 1);
    EXPECT_EQ(PathControlsEnabled(*fresh), std::vector<bool>(4, true));
    // A new input unlocks them again.
    chosen = {dir.File("b.ndd")};
    d->OnButtonInput();
    EXPECT_EQ(PathControlsEnabled(*d), std::vector<bool>(4, true));
}

TEST_F(MainDialogTest, AnUnreadableInputStopsTheSettingsStep) {
    auto d = Open();
    d->SetDlgItemText(IDC_EDIT_INPUT, dir.File("missing.ndd"));
    CMessageBoxAnswers boxes;
    d->OnProperty();
    EXPECT_EQ(Texts(boxes), std::vector<std::string>{
                                "Unable To open The Input NDD File\nPlease Check the Permissions"});
    EXPECT_EQ(settings.Ran(), 0u);
}

TEST_F(MainDialogTest, MoreMenuLeadsToTheDocumentsAndHelpNamesToolAndTag) {
    g_options.g_strProgramFolder = dir.Path() + "/";
    Put(dir, "help/Translators/KnowledgeResources.html", "<p>Resources</p>");
    Put(dir, "help/Translators/UserGuide.html", "<p>Guide</p>");
    auto d = Open();
    menuChoice = "Documents";
    setenv("VTR_LUMORA_HELP_DEBUG", "1", 1);
    CMessageBoxAnswers boxes;
    d->HelperFunction();
    d->OnHelp("", "");
    unsetenv("VTR_LUMORA_HELP_DEBUG");
    d->OnHelp("Other", "Missing");
    std::vector<std::string> captions;
    for (QAction* a : d->MoreMenu()->actions())
        captions.push_back(a->isSeparator() ? "-" : a->text().toStdString());
    EXPECT_EQ(captions, (std::vector<std::string>{"Documents", "-", "&About Ndd2Qfx..."}));
    EXPECT_EQ(urls, (std::vector<std::string>{
                        "file://" + dir.File("help/Translators/KnowledgeResources.html"),
                        "file://" + dir.File("help/Translators/UserGuide.html")}));
    EXPECT_EQ(Texts(boxes),
              (std::vector<std::string>{
                  "ToolName: Translators\t\t\t\t\t\t\t\t\t\nTagName: KnowledgeResources\n",
                  "ToolName: Translators\t\t\t\t\t\t\t\t\t\nTagName: UserGuide\n",
                  "Cannot open the help page : " + dir.File("help/Other/Missing.html")}));
}

TEST_F(MainDialogTest, LeavingDeletesTheTemporaryFilesAndKeepsTheResults) {
    for (const char* name : {"in/a.ndd", "in/temp.log", "out/b.qfx", "out/b.qfx.log",
                             "out/b.qfxtemp.log", "out/b.log", "out/b", "out/c.log"})
        Put(dir, name, "x");
    Put(dir, "out/b.d/keep", "x");
    DeleteTemporaryFiles(dir.File("in/a.ndd"), dir.File("out/b.qfx"));
    for (const char* name : {"in/a.ndd", "out/b.qfx", "out/b.qfx.log", "out/c.log"})
        EXPECT_EQ(ReadFile(dir.File(name)), "x") << name;
    for (const char* name : {"in/temp.log", "out/b.qfxtemp.log", "out/b.log", "out/b"})
        EXPECT_FALSE(std::ifstream(dir.File(name)).good()) << name;
}

}  // namespace
