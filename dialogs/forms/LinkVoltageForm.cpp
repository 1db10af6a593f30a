#include "dialogs/forms/LinkVoltageForm.h"

#include <QLabel>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"
#include "ui/UiListCtrl.h"

struct CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG::Widgets {
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
    CUiListCtrl* IDC_LIST_LINKAGE_ = nullptr;
    QPushButton* IDC_BUTTON_LINK_ = nullptr;
    QLabel* IDC_STATIC_COMPONENT_REFDES_ = nullptr;
    QLabel* IDC_STATIC_PACKAGE_NODE_ = nullptr;
    QLabel* IDC_STATIC_CIRCUIT_NODE_ = nullptr;
    QPushButton* IDC_BUTTON_DELETE_ = nullptr;
    CUiListCtrl* IDC_LIST_VOLTAGE_LEVELS_ = nullptr;
    CUiListCtrl* IDC_LIST_SIGNAL_NAMES_ = nullptr;
    CUiListCtrl* IDC_LIST_COMPONENT_REFDES_ = nullptr;
};

CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG::CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG() =
    default;
CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG::~CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG() =
    default;

// Three lists side by side (part numbers, circuit nodes, voltage levels), the Link and Delete
// buttons under them, and the links made below.
void CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 398, 300);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 208, 266, 85, 26);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 303, 266, 85, 26);
    w.IDC_LIST_LINKAGE_ = NewControl<CUiListCtrl>(dialog, "IDC_LIST_LINKAGE", 10, 186, 378, 72);
    w.IDC_BUTTON_LINK_ = NewControl<QPushButton>(dialog, "IDC_BUTTON_LINK", 10, 154, 85, 26);
    w.IDC_STATIC_COMPONENT_REFDES_ =
        NewControl<QLabel>(dialog, "IDC_STATIC_COMPONENT_REFDES", 10, 6, 120, 20);
    w.IDC_STATIC_PACKAGE_NODE_ =
        NewControl<QLabel>(dialog, "IDC_STATIC_PACKAGE_NODE", 138, 6, 120, 20);
    w.IDC_STATIC_CIRCUIT_NODE_ =
        NewControl<QLabel>(dialog, "IDC_STATIC_CIRCUIT_NODE", 266, 6, 122, 20);
    w.IDC_BUTTON_DELETE_ = NewControl<QPushButton>(dialog, "IDC_BUTTON_DELETE", 101, 154, 85, 26);
    w.IDC_LIST_VOLTAGE_LEVELS_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_VOLTAGE_LEVELS", 266, 28, 122, 118);
    w.IDC_LIST_SIGNAL_NAMES_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_SIGNAL_NAMES", 138, 28, 120, 118);
    w.IDC_LIST_COMPONENT_REFDES_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_COMPONENT_REFDES", 10, 28, 120, 118);

    dialog->setWindowTitle(FormText(form, "Dialog"));
    w.IDOK_->setText(FormText(form, "OK"));
    w.IDCANCEL_->setText(FormText(form, "Cancel"));
    w.IDC_BUTTON_LINK_->setText(FormText(form, "Link"));
    w.IDC_STATIC_COMPONENT_REFDES_->setText(FormText(form, "    Part No"));
    w.IDC_STATIC_PACKAGE_NODE_->setText(FormText(form, "Circuit Nodes"));
    w.IDC_STATIC_CIRCUIT_NODE_->setText(FormText(form, "Volage Levels"));
    w.IDC_BUTTON_DELETE_->setText(FormText(form, "Delete"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDOK:
            return m_ui->IDOK_;
        case IDCANCEL:
            return m_ui->IDCANCEL_;
        case IDC_BUTTON_LINK:
            return m_ui->IDC_BUTTON_LINK_;
        case IDC_STATIC_COMPONENT_REFDES:
            return m_ui->IDC_STATIC_COMPONENT_REFDES_;
        case IDC_STATIC_PACKAGE_NODE:
            return m_ui->IDC_STATIC_PACKAGE_NODE_;
        case IDC_STATIC_CIRCUIT_NODE:
            return m_ui->IDC_STATIC_CIRCUIT_NODE_;
        case IDC_BUTTON_DELETE:
            return m_ui->IDC_BUTTON_DELETE_;
        default:
            return nullptr;
    }
}

CUiListCtrl* CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG::GetListControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_LIST_LINKAGE:
            return m_ui->IDC_LIST_LINKAGE_;
        case IDC_LIST_VOLTAGE_LEVELS:
            return m_ui->IDC_LIST_VOLTAGE_LEVELS_;
        case IDC_LIST_SIGNAL_NAMES:
            return m_ui->IDC_LIST_SIGNAL_NAMES_;
        case IDC_LIST_COMPONENT_REFDES:
            return m_ui->IDC_LIST_COMPONENT_REFDES_;
        default:
            return nullptr;
    }
}
