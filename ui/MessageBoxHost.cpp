#include "ui/MessageBoxHost.h"

#include "model/ReportMessage.h"
#include "ui/MessageBox.h"

void CMessageBoxHost::ShowStage(const std::string&) {}

void CMessageBoxHost::SetProgress(int) {}

bool CMessageBoxHost::Ask(const std::string& question) {
    return UiMessageBox(question, kBoxYesNo) == kAnswerYes;
}

void CMessageBoxHost::RunSettingsStep() {}

void CMessageBoxHost::ShowMessage(const std::string& text, int boxType, int) {
    UiMessageBox(text, boxType);
}
