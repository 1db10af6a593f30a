#include "dialogs/Ndd2QfxDlg.h"

#include <QCoreApplication>
#include <QDialog>
#include <QMenu>
#include <QProgressBar>
#include <QShortcut>

#include "app/LogLoader.h"
#include "app/SettingsPage.h"
#include "dialogs/AboutDialog.h"
#include "dialogs/HelpTopics.h"
#include "dialogs/OutputName.h"
#include "dialogs/SettingsStep.h"
#include "dialogs/TemporaryFiles.h"
#include "dialogs/forms/ControlIds.h"
#include "ibis/IbisReader.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ui/DataExchange.h"
#include "ui/MessageBox.h"

CNdd2QfxDlg::CNdd2QfxDlg(DialogServices services)
    : CUiDialog(IDD_Ndd2Qfx_DIALOG),
      m_services(std::move(services)),
      m_hostScope(*this),
      m_driver(*this),
      m_bHelpKey(g_options.g_nBatchMode == 0) {}

CNdd2QfxDlg::~CNdd2QfxDlg() = default;

const CClassFunctionCall* CNdd2QfxDlg::GetChainHead() const {
    static const CHandlerChain chain(
        CUiDialog::GetChainHead(), OnCommand(IDC_BUTTON_INPUT, UI_FN(&CNdd2QfxDlg::OnButtonInput)),
        OnCommand(IDC_BUTTON_OUTPUT, UI_FN(&CNdd2QfxDlg::OnButtonOutput)),
        OnCommand(IDC_PROPERTY, UI_FN(&CNdd2QfxDlg::OnProperty)),
        OnCommand(IDC_LOAD_LOG, UI_FN(&CNdd2QfxDlg::OnLoadLog)),
        OnCommand(IDC_BUTTON_MORE, UI_FN(&CNdd2QfxDlg::HelperFunction)),
        OnCommand(ID_DOCUMENTS, UI_FN(&CNdd2QfxDlg::OnDocuments)),
        OnCommand(IDM_ABOUTBOX, UI_FN(&CNdd2QfxDlg::OnAbout)),
        OnMessage(kMsgPaint, UI_FN(&CNdd2QfxDlg::OnPaint)),
        OnMessage(kMsgKickIdle, UI_FN(&CNdd2QfxDlg::OnKickIdle)));
    return chain.Head();
}

void CNdd2QfxDlg::DoDataExchange(CDataExchange* exchange) {
    CUiDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_EDIT_INPUT, m_strInputFile);
    DDX_Text(exchange, IDC_EDIT_OUTPUT, m_strOutputFile);
    DDX_Text(exchange, IDC_MSG, m_strMessage);
}

bool CNdd2QfxDlg::OnInitDialog() {
    ResetIbisModelProblems();
    CUiDialog::OnInitDialog();
    // The record is forced into what the Settings page allows, as a loaded log already did.
    if (!g_options.g_bLogLoaded) NormaliseTranslationOptions();
    if (!g_options.g_strCmdInputFile.empty()) m_strInputFile = g_options.g_strCmdInputFile;
    if (!g_options.g_strCmdOutputFile.empty()) m_strOutputFile = g_options.g_strCmdOutputFile;
    UpdateData(false);
    if (m_bHelpKey) InstallHelpKey();
    return true;
}

void CNdd2QfxDlg::InstallHelpKey() {
    if (!GetHandle()) return;
    auto* key = new QShortcut(QKeySequence::HelpContents, GetHandle());
    QObject::connect(key, &QShortcut::activated, [this] { OnHelp("", ""); });
}

// Nothing to draw beyond the form: the window manager draws the minimised window's icon.
void CNdd2QfxDlg::OnPaint() {}

LRESULT CNdd2QfxDlg::OnKickIdle(WPARAM, LPARAM) {
    if (!m_bFirstIdle) return 0;
    m_bFirstIdle = false;
    // Both names on the command line: the dialog translates of its own accord.
    if (!g_options.g_strCmdInputFile.empty() && !g_options.g_strCmdOutputFile.empty()) OnOK();
    // A window that no one can see or answer would wait for ever: it has done what it does by
    // itself, and ends (a successful translation has ended it already).
    if (!m_services.someoneAnswers() && IsWindowVisible()) OnCancel();
    return 0;
}

void CNdd2QfxDlg::SetPathControls(int locked) {
    for (int id : {IDC_EDIT_INPUT, IDC_EDIT_OUTPUT, IDC_BUTTON_INPUT, IDC_BUTTON_OUTPUT})
        if (CUiWnd* control = GetDlgItem(id)) control->EnableWindow(locked == 0);
}

void CNdd2QfxDlg::OnButtonInput() {
    m_driver.RereadInput();
    std::string file = m_services.chooseFile(
        GetHandle(), {false, "Select Input NDD File", "ndd Files (*.ndd)", "ndd"});
    if (file.empty()) return;
    UpdateData(true);
    m_strInputFile = file;
    // Another input: what the old one's run left goes (the new one is read afresh anyway).
    if (!m_strLastInput.empty() && m_strLastInput != file)
        DeleteTemporaryFiles(m_strLastInput, m_strOutputFile);
    m_strLastInput = file;
    m_strOutputFile = DeriveOutputName(file);
    UpdateData(false);
    SetPathControls(0);
}

void CNdd2QfxDlg::OnButtonOutput() {
    std::string file = m_services.chooseFile(
        GetHandle(), {true, "Select Output QFX File", "qfx Files (*.qfx)", "qfx"});
    if (file.empty()) return;
    UpdateData(true);
    m_strOutputFile = file;
    UpdateData(false);
}

void CNdd2QfxDlg::OnLoadLog() {
    // Set before the user has chosen: a cancelled choice leaves the log flag standing.
    m_driver.RereadInput();
    g_options.g_bLogLoaded = 1;
    std::string file = m_services.chooseFile(GetHandle(), {false, "", "Log Files (*.log)", "log"});
    if (file.empty()) return;
    UpdateData(true);
    LoadLogFile(file, m_strInputFile, m_strOutputFile);
    UpdateData(false);
    SetPathControls(g_options.g_bLogLoaded);
}

void CNdd2QfxDlg::OnProperty() {
    UpdateData(true);
    m_strOutputFile = GetDlgItemText(IDC_EDIT_OUTPUT);
    m_driver.ForgetInput();
    if (!m_strInputFile.empty() && !LoadNddInput(m_strInputFile)) {
        UiMessageBox("Unable To open The Input NDD File\nPlease Check the Permissions", kBoxOk);
        return;
    }
    m_driver.ReadForSettings(m_strInputFile, m_strOutputFile);
    RunSettingsDialog(*this, m_services, m_driver.Models());
}

void CNdd2QfxDlg::OnOK() {
    UpdateData(true);
    if (g_options.g_nQuiet == 0) {
        if (GetDlgItemText(IDC_EDIT_INPUT).empty()) {
            UiMessageBox("Please Enter Input File", kBoxOk);
            return;
        }
        if (GetDlgItemText(IDC_EDIT_OUTPUT).empty()) {
            UiMessageBox("Please Enter Output File", kBoxOk);
            return;
        }
    }
    SetPathControls(g_options.g_bLogLoaded);
    g_options.g_strInputFile = m_strInputFile;
    g_options.g_strOutputFile = m_strOutputFile;
    if (Translate(m_strInputFile, m_strOutputFile)) CUiDialog::OnOK();
}

void CNdd2QfxDlg::OnCancel() {
    if (m_bTranslating) return;
    DeleteTempFiles();
    CUiDialog::OnCancel();
}

int CNdd2QfxDlg::Translate(std::string inputFile, std::string outputFile) {
    m_bTranslating = true;
    TranslateStatus status = m_driver.Translate(std::move(inputFile), std::move(outputFile));
    m_bTranslating = false;
    // A refused replacement ends the program; the window does not come back.
    if (status == TranslateStatus::Declined) m_services.endProcess(0);
    return status == TranslateStatus::Done ? 1 : 0;
}

void CNdd2QfxDlg::DeleteTempFiles() {
    DeleteTemporaryFiles(m_strInputFile, m_strOutputFile);
}

void CNdd2QfxDlg::BuildMoreMenu() {
    m_hMoreMenu = std::make_unique<QMenu>();
    m_hMoreMenu->addAction(QStringLiteral("Documents"))->setData(ID_DOCUMENTS);
    m_hMoreMenu->addSeparator();
    std::string about = AboutEntryCaption();
    if (!about.empty())
        m_hMoreMenu->addAction(QString::fromStdString(about))->setData(IDM_ABOUTBOX);
}

void CNdd2QfxDlg::HelperFunction() {
    if (!m_hMoreMenu) BuildMoreMenu();
    QAction* chosen = m_services.popupMenu(*m_hMoreMenu);
    if (chosen) OnCmdMsg(chosen->data().toUInt(), kCodeClicked, nullptr, false);
}

void CNdd2QfxDlg::OnDocuments() {
    OpenHelpTopic(m_services, "Translators", "KnowledgeResources");
}

void CNdd2QfxDlg::OnHelp(const std::string& tool, const std::string& tag) {
    OpenHelpTopic(m_services, tool, tag);
}

void CNdd2QfxDlg::OnAbout() {
    MakeAboutDialog(GetHandle())->exec();
}

void CNdd2QfxDlg::Refresh() {
    // Only painting and the window system's own events: a click cannot start a second
    // translation inside the first, and there is nothing to cancel with.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void CNdd2QfxDlg::ShowStage(const std::string& text) {
    m_strMessage = text;
    SetDlgItemText(IDC_MSG, text);
    Refresh();
}

void CNdd2QfxDlg::SetProgress(int position) {
    CUiWnd* bar = GetDlgItem(IDC_PROGRESS1);
    if (auto* progress = bar ? qobject_cast<QProgressBar*>(bar->GetHandle()) : nullptr)
        progress->setValue(position);
    Refresh();
}

bool CNdd2QfxDlg::Ask(const std::string& question) {
    return UiMessageBox(question, kBoxYesNo) == kAnswerYes;
}

void CNdd2QfxDlg::RunSettingsStep() {
    // No one could close the Settings dialog: the run goes on as without a traces file.
    if (m_services.someoneAnswers()) OnProperty();
}

void CNdd2QfxDlg::ShowMessage(const std::string& text, int boxType, int) {
    UiMessageBox(text, boxType);
}

int RunMainDialog() {
    CNdd2QfxDlg dialog;
    g_options.g_pMainDialog = &dialog;
    int result = dialog.DoModal();
    dialog.DeleteTempFiles();
    g_options.g_pMainDialog = nullptr;
    return result;
}
