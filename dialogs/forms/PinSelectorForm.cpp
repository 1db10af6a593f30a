#include "dialogs/forms/PinSelectorForm.h"

#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"
#include "ui/UiListCtrl.h"

struct CqtDialogRes_IDD_DIALOG_PIN_SELECTOR::Widgets {
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
    CUiListCtrl* IDC_LIST_CTRL_PIN_MAP_ = nullptr;
};

CqtDialogRes_IDD_DIALOG_PIN_SELECTOR::CqtDialogRes_IDD_DIALOG_PIN_SELECTOR() = default;
CqtDialogRes_IDD_DIALOG_PIN_SELECTOR::~CqtDialogRes_IDD_DIALOG_PIN_SELECTOR() = default;

void CqtDialogRes_IDD_DIALOG_PIN_SELECTOR::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 640, 371);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 450, 335, 85, 26);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 545, 335, 85, 26);
    w.IDC_LIST_CTRL_PIN_MAP_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_CTRL_PIN_MAP", 10, 10, 620, 315);

    dialog->setWindowTitle(FormText(form, "Dialog"));
    w.IDOK_->setText(FormText(form, "OK"));
    w.IDCANCEL_->setText(FormText(form, "Cancel"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_DIALOG_PIN_SELECTOR::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDOK:
            return m_ui->IDOK_;
        case IDCANCEL:
            return m_ui->IDCANCEL_;
        default:
            return nullptr;
    }
}

CUiListCtrl* CqtDialogRes_IDD_DIALOG_PIN_SELECTOR::GetListControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_LIST_CTRL_PIN_MAP:
            return m_ui->IDC_LIST_CTRL_PIN_MAP_;
        default:
            return nullptr;
    }
}
