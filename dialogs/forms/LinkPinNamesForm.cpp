#include "dialogs/forms/LinkPinNamesForm.h"

#include <QLabel>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"
#include "ui/UiListCtrl.h"

struct CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES::Widgets {
    QPushButton* IDOK_ = nullptr;
    CUiListCtrl* IDC_LIST_PART_NO_ = nullptr;
    CUiListCtrl* IDC_LIST_CKT_NODES_ = nullptr;
    CUiListCtrl* IDC_LIST_PIN_NAMES_ = nullptr;
    CUiListCtrl* IDC_LIST_LINKAGES_ = nullptr;
    QLabel* IDC_STATIC_PART_NO_ = nullptr;
    QLabel* IDC_STATIC_PIN_NAME_ = nullptr;
    QLabel* IDC_STATIC_PART_NO3_ = nullptr;
};

CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES::CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES() =
    default;
CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES::~CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES() =
    default;

// Three lists side by side (part numbers, pin names, circuit nodes), the links below.
void CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 406, 361);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 311, 326, 85, 26);
    w.IDC_LIST_PART_NO_ = NewControl<CUiListCtrl>(dialog, "IDC_LIST_PART_NO", 10, 30, 124, 150);
    w.IDC_LIST_CKT_NODES_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_CKT_NODES", 272, 30, 124, 150);
    w.IDC_LIST_PIN_NAMES_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_PIN_NAMES", 141, 30, 124, 150);
    w.IDC_LIST_LINKAGES_ = NewControl<CUiListCtrl>(dialog, "IDC_LIST_LINKAGES", 10, 190, 386, 126);
    w.IDC_STATIC_PART_NO_ = NewControl<QLabel>(dialog, "IDC_STATIC_PART_NO", 10, 8, 124, 20);
    w.IDC_STATIC_PIN_NAME_ = NewControl<QLabel>(dialog, "IDC_STATIC_PIN_NAME", 141, 8, 124, 20);
    w.IDC_STATIC_PART_NO3_ = NewControl<QLabel>(dialog, "IDC_STATIC_PART_NO3", 272, 8, 124, 20);

    dialog->setWindowTitle(FormText(form, "Link Pin Names To Ckt Nodes"));
    w.IDOK_->setText(FormText(form, "OK"));
    w.IDC_STATIC_PART_NO_->setText(FormText(form, " Part Numbers"));
    w.IDC_STATIC_PIN_NAME_->setText(FormText(form, "Pin Names"));
    w.IDC_STATIC_PART_NO3_->setText(FormText(form, "Circuit Nodes"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDOK:
            return m_ui->IDOK_;
        case IDC_STATIC_PART_NO:
            return m_ui->IDC_STATIC_PART_NO_;
        case IDC_STATIC_PIN_NAME:
            return m_ui->IDC_STATIC_PIN_NAME_;
        case IDC_STATIC_PART_NO3:
            return m_ui->IDC_STATIC_PART_NO3_;
        default:
            return nullptr;
    }
}

CUiListCtrl* CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES::GetListControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_LIST_PART_NO:
            return m_ui->IDC_LIST_PART_NO_;
        case IDC_LIST_CKT_NODES:
            return m_ui->IDC_LIST_CKT_NODES_;
        case IDC_LIST_PIN_NAMES:
            return m_ui->IDC_LIST_PIN_NAMES_;
        case IDC_LIST_LINKAGES:
            return m_ui->IDC_LIST_LINKAGES_;
        default:
            return nullptr;
    }
}
