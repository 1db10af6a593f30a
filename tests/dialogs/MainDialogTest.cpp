// The main window: its handler table, its opening, the two browsers, a loaded log, the
// Translate button's checks, the "More..." menu and the help, and what a dialog run leaves.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "dialogs/OutputName.h"
#include "dialogs/TemporaryFiles.h"
#include "ibis/IbisReader.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/DialogTestSupport.h"

namespace {

using namespace testing_support;

// Writes a file of the scratch folder, with the folders it needs.
std::string Put(const ScratchDir& dir, const std::string& name, const std::string& text) {
    std::filesystem::create_directories(std::filesystem::path(dir.File(name)).parent_path());
    return dir.Write(name, text);
}

// Whether the two path boxes and their browse buttons are enabled, as "1111".
std::string PathControlsEnabled(CNdd2QfxDlg& d) {
    std::string enabled;
    for (int id : {IDC_EDIT_INPUT, IDC_EDIT_OUTPUT, IDC_BUTTON_INPUT, IDC_BUTTON_OUTPUT})
        enabled += d.GetDlgItem(id)->IsWindowEnabled() ? "1" : "0";
    return enabled;
}

class MainDialogTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }

    // The Settings dialog that OnProperty opens is cancelled at once.
    ScriptedModals settings{
        std::vector<ScriptedModals::Script>(4, [](CUiDialog& d) { d.OnCancel(); })};
    AnsweredServices answers;
    ScratchDir dir;
};

TEST_F(MainDialogTest, EveryCommandReachesItsHandler) {
    auto d = OpenMainDialog(answers);
    // The About entry opens a box of its own: it is only asked for.
    EXPECT_TRUE(d->OnCmdMsg(IDM_ABOUTBOX, kCodeClicked, nullptr, true));
    CMessageBoxAnswers boxes;
    const std::pair<int, const char*> rows[] = {
        {IDC_BUTTON_INPUT, "OnButtonInput"}, {IDC_BUTTON_OUTPUT, "OnButtonOutput"},
        {IDC_PROPERTY, "OnProperty"},        {IDC_LOAD_LOG, "OnLoadLog"},
        {IDC_BUTTON_MORE, "HelperFunction"}, {ID_DOCUMENTS, "OnDocuments"}};
    for (const auto& [id, handler] : rows) {
        ResetLastCommandName();
        EXPECT_TRUE(d->OnCmdMsg(id, kCodeClicked, nullptr, false)) << handler;
        EXPECT_EQ(LastCommandName(), handler);
    }
    EXPECT_FALSE(d->OnCmdMsg(IDC_MSG, kCodeClicked, nullptr, true));
}

TEST_F(MainDialogTest, OpeningNormalisesTheOptionsUnlessALogIsLoadedAndShowsTheCommandLine) {
    for (int logLoaded : {0, 1}) {
        ResetGlobals();
        g_options.g_bLogLoaded = logLoaded;
        g_options.g_strCmdInputFile = "/in/a.ndd";
        g_options.g_strCmdOutputFile = "/out/b.qfx";
        auto d = OpenMainDialog(answers);
        // The via-void flag without an area is what the Settings page cannot show.
        EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, logLoaded) << logLoaded;
        EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_INPUT) + " " + d->GetDlgItemText(IDC_EDIT_OUTPUT),
                  "/in/a.ndd /out/b.qfx");
        EXPECT_EQ(d->GetHandle()->windowTitle().toStdString(), "Lumora - NDD to QFX  Translator  ");
        EXPECT_EQ(d->GetHelpFormName(), "Ndd2QfxForm");
    }
    EXPECT_EQ(IbisModelProblemCount(), 0);
}

TEST_F(MainDialogTest, TranslateWithoutANameSaysWhichIsMissing) {
    const char* const rows[][3] = {{"", "b.qfx", "Please Enter Input File"},
                                   {"a.ndd", "", "Please Enter Output File"}};
    for (const auto& row : rows) {
        auto d = OpenMainDialog(answers, row[0], row[1]);
        CMessageBoxAnswers boxes;
        d->OnOK();
        EXPECT_EQ(Texts(boxes), std::vector<std::string>{row[2]});
        EXPECT_EQ(g_options.g_strInputFile, "");
    }
}

TEST(OutputNameTest, TheInputProposesItsOutput) {
    const char* const rows[][2] = {{"x.y.ndd", "x.y.qfx"},           {"/d/board", "/d/board.qfx"},
                                   {"/d.e/board", "/d.e/board.qfx"}, {"/d/.ndd", "/d/.ndd.qfx"},
                                   {"/d/", "/d/ofile.qfx"},          {"", "ofile.qfx"}};
    for (const auto& row : rows) EXPECT_EQ(DeriveOutputName(row[0]), row[1]) << row[0];
}

TEST_F(MainDialogTest, BrowsersAskForTheirFilesAndTheInputDerivesTheOutput) {
    auto d = OpenMainDialog(answers);
    answers.files = {"/d/x.y.ndd", "/e/out.qfx", ""};
    d->OnButtonInput();
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), "/d/x.y.qfx");
    d->OnButtonOutput();
    d->OnButtonOutput();  // cancelled: nothing changes
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_INPUT) + " " + d->GetDlgItemText(IDC_EDIT_OUTPUT),
              "/d/x.y.ndd /e/out.qfx");
    EXPECT_EQ(answers.Requests(),
              (std::vector<std::string>{"open Select Input NDD File|ndd Files (*.ndd)|ndd",
                                        "save Select Output QFX File|qfx Files (*.qfx)|qfx",
                                        "save Select Output QFX File|qfx Files (*.qfx)|qfx"}));
}

TEST_F(MainDialogTest, ALoadedLogLocksThePathsAndACancelledOneLeavesItsFlag) {
    std::string log = Put(dir, "run.qfx.log",
                          "Ndd2Qfx Version 1.0.0.1\nFrom file : " + dir.File("a.ndd") +
                              "\nTo file : " + dir.File("run.qfx") + "\n");
    auto d = OpenMainDialog(answers);
    answers.files = {log, ""};
    d->OnLoadLog();
    EXPECT_EQ(answers.Requests(), std::vector<std::string>{"open |Log Files (*.log)|log"});
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_INPUT), dir.File("a.ndd"));
    EXPECT_EQ(d->GetDlgItemText(IDC_EDIT_OUTPUT), dir.File("run.qfx"));
    EXPECT_EQ(PathControlsEnabled(*d), "0000");

    ResetGlobals();
    auto fresh = OpenMainDialog(answers);
    fresh->OnLoadLog();
    EXPECT_EQ(g_options.g_bLogLoaded, 1);
    EXPECT_EQ(PathControlsEnabled(*fresh), "1111");
    // A new input unlocks them again.
    answers.files = {dir.File("b.ndd")};
    d->OnButtonInput();
    EXPECT_EQ(PathControlsEnabled(*d), "1111");
}

TEST_F(MainDialogTest, AnUnreadableInputStopsTheSettingsStep) {
    auto d = OpenMainDialog(answers, dir.File("missing.ndd"));
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
    auto d = OpenMainDialog(answers);
    answers.menuChoice = "Documents";
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
    EXPECT_EQ(answers.urls, (std::vector<std::string>{
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
