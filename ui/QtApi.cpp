#include "ui/QtApi.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <cstring>

#include "model/ReportMessage.h"
#include "ui/ComboBoxMsgEx.h"
#include "ui/EscapeKeyFilter.h"
#include "ui/QtEventBridge.h"
#include "ui/QtFormWidget.h"
#include "ui/QtResourceMgr.h"
#include "ui/UiDialog.h"

QWidget* CQtApi::CreateFormWidget(const char* className, QWidget* parent, bool modal,
                                  int templateId) {
    CEscapeKeyFilter::Install();
    QWidget* widget;
    if (className && std::strcmp(className, "QWidget") == 0) {
        widget = new QWidget(parent);
    } else {
        auto* dialog = new CQtDialogWidget(parent);
        dialog->setModal(modal);
        widget = dialog;
    }
    IQtResourceMgr* resources = RegisteredResourceMgr();
    std::unique_ptr<IQtForm> form = resources ? resources->CreateForm(templateId) : nullptr;
    if (form) {
        form->setupUi(widget, false);
        new CQtFormHolder(widget, std::move(form));
    }
    return widget;
}

IQtForm* CQtApi::GetForm(QWidget* form) {
    CQtFormHolder* holder = CQtFormHolder::Of(form);
    return holder ? holder->Form() : nullptr;
}

QWidget* CQtApi::GetFormControl(QWidget* form, int id) {
    IQtForm* f = GetForm(form);
    return f ? f->GetControl(id) : nullptr;
}

std::vector<int> CQtApi::GetFormControlIds(QWidget* form) {
    IQtForm* f = GetForm(form);
    return f ? f->GetControlIds() : std::vector<int>();
}

int CQtApi::RunModal(QWidget* form) {
    auto* dialog = qobject_cast<QDialog*>(form);
    if (!dialog) return -1;
    auto* owner = dynamic_cast<CUiDialog*>(CUiWnd::FromHandle(form));
    if (owner) {
        owner->OnInitDialog();
        if (owner->HasIdleHandler()) CQtEventBridge::Of(form)->StartIdle();
    }
    return dialog->exec();
}

void CQtApi::EndForm(QWidget* form, int result) {
    auto* dialog = qobject_cast<QDialog*>(form);
    if (dialog && dialog->isWindow()) dialog->done(result);
}

void CQtApi::DestroyForm(QWidget* form) {
    delete form;
}

void CQtApi::SetMouseTracking(QWidget* form, bool on) {
    form->setMouseTracking(on);
}

void CQtApi::SetCommandTarget(QWidget* form, CCmdTargetBase* target) {
    CQtEventBridge::Of(form)->SetTarget(target);
}

void CQtApi::InstallComboBoxFilter(QWidget* combo, CCmdTargetBase* target, int id) {
    if (auto* box = qobject_cast<QComboBox*>(combo)) new _QComboBoxMsgEx(box, target, id);
}

bool CQtApi::PreTranslateMessage(CCmdTargetBase*, unsigned, WPARAM, LPARAM) {
    return false;
}

int CQtApi::MessageBox(const std::string& title, const std::string& text, int type) {
    QWidget* owner = g_pModalDialog ? g_pModalDialog->GetHandle() : QApplication::activeWindow();
    QMessageBox box(owner);
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(QString::fromStdString(text));
    if (type == kBoxYesNo) {
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes ? kAnswerYes : kAnswerNo;
    }
    box.setIcon(type == kBoxWarning ? QMessageBox::Warning : QMessageBox::NoIcon);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return 1;
}
