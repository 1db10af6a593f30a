#include "dialogs/forms/IbisFileSelectionForm.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"
#include "ui/UiListCtrl.h"

struct CqtDialogRes_IDD_IBIS_FILE_SELECTION::Widgets {
    CUiListCtrl* IDC_CTRL_LIST_IBIS_FILE_SELECTION_ = nullptr;
    QCheckBox* IDC_CHECK_BOX_APPLY_TO_ALL_ = nullptr;
    QPushButton* IDC_BUTTON_EDIT_IBIS_FILE_ = nullptr;
    QLabel* IDC_STATIC_REFDES_LIST_ = nullptr;
};

CqtDialogRes_IDD_IBIS_FILE_SELECTION::CqtDialogRes_IDD_IBIS_FILE_SELECTION() = default;
CqtDialogRes_IDD_IBIS_FILE_SELECTION::~CqtDialogRes_IDD_IBIS_FILE_SELECTION() = default;

void CqtDialogRes_IDD_IBIS_FILE_SELECTION::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 480, 523);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDC_CTRL_LIST_IBIS_FILE_SELECTION_ =
        NewControl<CUiListCtrl>(dialog, "IDC_CTRL_LIST_IBIS_FILE_SELECTION", 10, 10, 460, 400);
    w.IDC_CHECK_BOX_APPLY_TO_ALL_ =
        NewControl<QCheckBox>(dialog, "IDC_CHECK_BOX_APPLY_TO_ALL", 10, 420, 300, 24);
    w.IDC_BUTTON_EDIT_IBIS_FILE_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_EDIT_IBIS_FILE", 370, 419, 100, 26);
    w.IDC_STATIC_REFDES_LIST_ =
        NewControl<QLabel>(dialog, "IDC_STATIC_REFDES_LIST", 10, 455, 460, 58);
    w.IDC_STATIC_REFDES_LIST_->setWordWrap(true);
    w.IDC_STATIC_REFDES_LIST_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    dialog->setWindowTitle(FormText(form, "Select IBIS Files"));
    w.IDC_CHECK_BOX_APPLY_TO_ALL_->setText(FormText(form, "Apply Directory Path To All"));
    w.IDC_BUTTON_EDIT_IBIS_FILE_->setText(FormText(form, "Edit  File"));
    w.IDC_STATIC_REFDES_LIST_->setText(FormText(form, "Static"));
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_IBIS_FILE_SELECTION::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_CHECK_BOX_APPLY_TO_ALL:
            return m_ui->IDC_CHECK_BOX_APPLY_TO_ALL_;
        case IDC_BUTTON_EDIT_IBIS_FILE:
            return m_ui->IDC_BUTTON_EDIT_IBIS_FILE_;
        case IDC_STATIC_REFDES_LIST:
            return m_ui->IDC_STATIC_REFDES_LIST_;
        default:
            return nullptr;
    }
}

CUiListCtrl* CqtDialogRes_IDD_IBIS_FILE_SELECTION::GetListControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_CTRL_LIST_IBIS_FILE_SELECTION:
            return m_ui->IDC_CTRL_LIST_IBIS_FILE_SELECTION_;
        default:
            return nullptr;
    }
}
