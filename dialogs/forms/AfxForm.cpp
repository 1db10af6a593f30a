#include "dialogs/forms/AfxForm.h"

#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"

struct CqtDialogRes_IDD_AFX_DIALOG::Widgets {
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
};

CqtDialogRes_IDD_AFX_DIALOG::CqtDialogRes_IDD_AFX_DIALOG() = default;
CqtDialogRes_IDD_AFX_DIALOG::~CqtDialogRes_IDD_AFX_DIALOG() = default;

void CqtDialogRes_IDD_AFX_DIALOG::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 299, 156);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 46, 110, 80, 22);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 145, 108, 80, 22);

    dialog->setWindowTitle(FormText(form, "Dialog"));
    w.IDOK_->setText(FormText(form, "OK"));
    w.IDCANCEL_->setText(FormText(form, "Cancel"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_AFX_DIALOG::plainControl(int id) const {
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
