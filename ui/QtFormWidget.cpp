#include "ui/QtFormWidget.h"

#include "ui/UiWnd.h"

namespace {

const char* const kHolderName = "ndd2qfx_form";

}  // namespace

void CQtDialogWidget::reject() {
    CUiWnd* owner = CUiWnd::FromHandle(this);
    if (!owner || !owner->OnCmdMsg(kIdCancel, kCodeClicked, nullptr, false)) QDialog::reject();
}

CQtFormHolder::CQtFormHolder(QWidget* widget, std::unique_ptr<IQtForm> form)
    : QObject(widget), m_form(std::move(form)) {
    setObjectName(kHolderName);
}

CQtFormHolder* CQtFormHolder::Of(QWidget* widget) {
    if (!widget) return nullptr;
    for (QObject* child : widget->children())
        if (child->objectName() == kHolderName) return static_cast<CQtFormHolder*>(child);
    return nullptr;
}
