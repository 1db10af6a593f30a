#pragma once
// The main window of a dialog run: the input and output fields, the buttons that lead to the
// file browsers, the Settings, a loaded log and the "More..." menu, and the message line and
// progress bar of a running translation. It is the host of that translation: the single
// thread translates and the window shows its stages and answers its questions as it goes.
#include <memory>
#include <string>

#include "app/TranslationDriver.h"
#include "dialogs/DialogServices.h"
#include "model/TranslationHost.h"
#include "ui/UiDialog.h"

class QMenu;

class CNdd2QfxDlg : public CUiDialog, public TranslationHost {
  public:
    explicit CNdd2QfxDlg(DialogServices services = DesktopServices());
    ~CNdd2QfxDlg() override;

    // The translation of the two names (see TranslationDriver); non-zero on success.
    int Translate(std::string inputFile, std::string outputFile);
    // Deletes what a run leaves beside the named input and output (TemporaryFiles.h).
    void DeleteTempFiles();

    // The name under which the help knows this window.
    std::string GetHelpFormName() const { return "Ndd2QfxForm"; }

    // Handlers.
    void OnButtonInput();
    void OnButtonOutput();
    void OnProperty();
    void OnLoadLog();
    void HelperFunction();
    void OnDocuments();
    void OnAbout();
    void OnPaint();
    LRESULT OnKickIdle(WPARAM, LPARAM);
    // F1: the help at tool and tag, empty ones standing for the user guide.
    void OnHelp(const std::string& tool, const std::string& tag);

    bool OnInitDialog() override;
    // The Translate button.
    void OnOK() override;
    // The Exit button.
    void OnCancel() override;
    void DoDataExchange(CDataExchange* exchange) override;
    const CClassFunctionCall* GetChainHead() const override;

    // TranslationHost.
    void ShowStage(const std::string& text) override;
    void SetProgress(int position) override;
    bool Ask(const std::string& question) override;
    void RunSettingsStep() override;
    void ShowMessage(const std::string& text, int boxType, int helpId) override;

    const std::string& InputFile() const { return m_strInputFile; }
    const std::string& OutputFile() const { return m_strOutputFile; }
    // The "More..." menu, once it has been shown.
    QMenu* MoreMenu() const { return m_hMoreMenu.get(); }

  private:
    // Enables the four path controls when locked is 0, disables them when it is 1.
    void SetPathControls(int locked);
    // Lets the window show what changed while the translation keeps the thread.
    void Refresh();
    void BuildMoreMenu();
    void InstallHelpKey();

    DialogServices m_services;
    // While the window lives it is the host of everything said to the user.
    HostScope m_hostScope;
    TranslationDriver m_driver;
    std::string m_strInputFile;
    std::string m_strOutputFile;
    std::string m_strMessage;
    std::string m_strLastInput;
    bool m_bFirstIdle = true;
    // A translation is running: the window repaints between stages, but it must not close
    // under the translation, which still holds its open output and log.
    bool m_bTranslating = false;
    // A dialog run has the F1 help; a batch run's dialog object is never shown.
    bool m_bHelpKey = false;
    std::unique_ptr<QMenu> m_hMoreMenu;
};

// Runs the main dialog of a dialog run modally, with g_pMainDialog set, and deletes the
// temporary files when it has ended. Returns the dialog's result.
int RunMainDialog();
