#include "dialogs/forms/ColorPickerForm.h"

#include <QComboBox>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"

struct CqtDialogRes_IDD_COLOR_PICKER::Widgets {
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
    QPushButton* IDC_COLOR_SHOWER_ = nullptr;
    QComboBox* IDC_COLOR_NAME_ = nullptr;
};

CqtDialogRes_IDD_COLOR_PICKER::CqtDialogRes_IDD_COLOR_PICKER() = default;
CqtDialogRes_IDD_COLOR_PICKER::~CqtDialogRes_IDD_COLOR_PICKER() = default;

void CqtDialogRes_IDD_COLOR_PICKER::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 211, 91);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 16, 56, 85, 26);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 110, 56, 85, 26);
    w.IDC_COLOR_SHOWER_ = NewControl<QPushButton>(dialog, "IDC_COLOR_SHOWER", 140, 12, 55, 26);
    w.IDC_COLOR_NAME_ = NewControl<QComboBox>(dialog, "IDC_COLOR_NAME", 16, 14, 115, 24);

    dialog->setWindowTitle(FormText(form, "Color Selector"));
    w.IDOK_->setText(FormText(form, "OK"));
    w.IDCANCEL_->setText(FormText(form, "Cancel"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_COLOR_PICKER::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDOK:
            return m_ui->IDOK_;
        case IDCANCEL:
            return m_ui->IDCANCEL_;
        case IDC_COLOR_SHOWER:
            return m_ui->IDC_COLOR_SHOWER_;
        case IDC_COLOR_NAME:
            return m_ui->IDC_COLOR_NAME_;
        default:
            return nullptr;
    }
}
