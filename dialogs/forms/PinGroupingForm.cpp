#include "dialogs/forms/PinGroupingForm.h"

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"
#include "ui/UiListCtrl.h"

struct CqtDialogRes_IDD_DIALOG_PIN_GROUPING::Widgets {
    QGroupBox* IDC_STATIC_0_ = nullptr;
    QGroupBox* IDC_STATIC_1_ = nullptr;
    CUiListCtrl* IDC_LIST_CTRL_MAKE_GROUPS_ = nullptr;
    QPushButton* IDC_BUTTON_ADD_GROUP_ = nullptr;
    QPushButton* IDC_BUTTON_ADD_GND_GROUP_ = nullptr;
    QPushButton* IDC_BUTTON_DELETE_GROUP_ = nullptr;
    CUiListCtrl* IDC_LIST_LINKAGE_CREATOR_ = nullptr;
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
    QPushButton* IDC_BUTTON_PIN_PROPERTIES_ = nullptr;
    QComboBox* IDC_SORT_COMBO_ = nullptr;
    QPushButton* IDC_BUTTON_ADD_PC_GROUP_ = nullptr;
    QPushButton* IDC_BUTTON_ADD_GC_GROUP_ = nullptr;
    QPushButton* IDC_BUTTON_CHECK_ALL_ = nullptr;
    QPushButton* IDC_BUTTON_UNCHECK_ALL_ = nullptr;
    QPushButton* IDC_BUTTON_RESET_ALL_ = nullptr;
    QPushButton* IDC_BUTTON_DELETE_ROW_ = nullptr;
    QPushButton* IDC_BUTTON_LINK_GROUPS_ = nullptr;
};

CqtDialogRes_IDD_DIALOG_PIN_GROUPING::CqtDialogRes_IDD_DIALOG_PIN_GROUPING() = default;
CqtDialogRes_IDD_DIALOG_PIN_GROUPING::~CqtDialogRes_IDD_DIALOG_PIN_GROUPING() = default;

// Left box: the signal pins with the buttons that edit their references. Right box: the power
// and ground groups with the buttons that make and delete groups. Save and Close below.
void CqtDialogRes_IDD_DIALOG_PIN_GROUPING::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 780, 393);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    // The two boxes first, so that the lists and buttons lie above them.
    w.IDC_STATIC_0_ = NewFrame<QGroupBox>(dialog, "IDC_STATIC_0", 540, 8, 230, 342);
    w.IDC_STATIC_1_ = NewFrame<QGroupBox>(dialog, "IDC_STATIC_1", 10, 8, 520, 342);
    w.IDC_LIST_CTRL_MAKE_GROUPS_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_CTRL_MAKE_GROUPS", 550, 30, 210, 220);
    w.IDC_BUTTON_ADD_GROUP_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_ADD_GROUP", 550, 256, 102, 26);
    w.IDC_BUTTON_ADD_GND_GROUP_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_ADD_GND_GROUP", 658, 256, 102, 26);
    w.IDC_BUTTON_DELETE_GROUP_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_DELETE_GROUP", 550, 316, 210, 26);
    w.IDC_LIST_LINKAGE_CREATOR_ =
        NewControl<CUiListCtrl>(dialog, "IDC_LIST_LINKAGE_CREATOR", 20, 62, 500, 188);
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 590, 358, 85, 26);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 685, 358, 85, 26);
    w.IDC_BUTTON_PIN_PROPERTIES_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_PIN_PROPERTIES", 20, 316, 92, 26);
    w.IDC_SORT_COMBO_ = NewControl<QComboBox>(dialog, "IDC_SORT_COMBO", 20, 30, 160, 24);
    w.IDC_BUTTON_ADD_PC_GROUP_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_ADD_PC_GROUP", 550, 286, 102, 26);
    w.IDC_BUTTON_ADD_GC_GROUP_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_ADD_GC_GROUP", 658, 286, 102, 26);
    w.IDC_BUTTON_CHECK_ALL_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_CHECK_ALL", 20, 256, 92, 26);
    w.IDC_BUTTON_UNCHECK_ALL_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_UNCHECK_ALL", 122, 256, 92, 26);
    w.IDC_BUTTON_RESET_ALL_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_RESET_ALL", 224, 256, 92, 26);
    w.IDC_BUTTON_DELETE_ROW_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_DELETE_ROW", 326, 256, 92, 26);
    w.IDC_BUTTON_LINK_GROUPS_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_LINK_GROUPS", 428, 256, 92, 26);

    dialog->setWindowTitle(FormText(form, "IBIS Pin Mapping"));
    w.IDC_BUTTON_ADD_GROUP_->setText(FormText(form, "Add Pwr Grp"));
    w.IDC_BUTTON_ADD_GND_GROUP_->setText(FormText(form, "Add Gnd Grp"));
    w.IDC_BUTTON_DELETE_GROUP_->setText(FormText(form, "Delete Grp"));
    w.IDOK_->setText(FormText(form, "Save File"));
    w.IDCANCEL_->setText(FormText(form, "Close"));
    w.IDC_BUTTON_PIN_PROPERTIES_->setText(FormText(form, "Properties"));
    w.IDC_STATIC_0_->setTitle(FormText(form, "Create Pwr-Gnd Groups"));
    w.IDC_STATIC_1_->setTitle(FormText(form, "Create Pin Mapping "));
    w.IDC_BUTTON_ADD_PC_GROUP_->setText(FormText(form, "Add PC Grp"));
    w.IDC_BUTTON_ADD_GC_GROUP_->setText(FormText(form, "Add GC Grp"));
    w.IDC_BUTTON_CHECK_ALL_->setText(FormText(form, "Check All"));
    w.IDC_BUTTON_UNCHECK_ALL_->setText(FormText(form, "Uncheck All"));
    w.IDC_BUTTON_RESET_ALL_->setText(FormText(form, "Reset All"));
    w.IDC_BUTTON_DELETE_ROW_->setText(FormText(form, "Delete Rows"));
    w.IDC_BUTTON_LINK_GROUPS_->setText(FormText(form, "Link Groups"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_DIALOG_PIN_GROUPING::plainControl(int id) const {
    if (!m_ui) return nullptr;
    const Widgets& w = *m_ui;
    switch (id) {
        case IDC_BUTTON_ADD_GROUP:
            return w.IDC_BUTTON_ADD_GROUP_;
        case IDC_BUTTON_ADD_GND_GROUP:
            return w.IDC_BUTTON_ADD_GND_GROUP_;
        case IDC_BUTTON_DELETE_GROUP:
            return w.IDC_BUTTON_DELETE_GROUP_;
        case IDOK:
            return w.IDOK_;
        case IDCANCEL:
            return w.IDCANCEL_;
        case IDC_BUTTON_PIN_PROPERTIES:
            return w.IDC_BUTTON_PIN_PROPERTIES_;
        case IDC_SORT_COMBO:
            return w.IDC_SORT_COMBO_;
        case IDC_BUTTON_ADD_PC_GROUP:
            return w.IDC_BUTTON_ADD_PC_GROUP_;
        case IDC_BUTTON_ADD_GC_GROUP:
            return w.IDC_BUTTON_ADD_GC_GROUP_;
        case IDC_BUTTON_CHECK_ALL:
            return w.IDC_BUTTON_CHECK_ALL_;
        case IDC_BUTTON_UNCHECK_ALL:
            return w.IDC_BUTTON_UNCHECK_ALL_;
        case IDC_BUTTON_RESET_ALL:
            return w.IDC_BUTTON_RESET_ALL_;
        case IDC_BUTTON_DELETE_ROW:
            return w.IDC_BUTTON_DELETE_ROW_;
        case IDC_BUTTON_LINK_GROUPS:
            return w.IDC_BUTTON_LINK_GROUPS_;
        default:
            return nullptr;
    }
}

CUiListCtrl* CqtDialogRes_IDD_DIALOG_PIN_GROUPING::GetListControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_LIST_CTRL_MAKE_GROUPS:
            return m_ui->IDC_LIST_CTRL_MAKE_GROUPS_;
        case IDC_LIST_LINKAGE_CREATOR:
            return m_ui->IDC_LIST_LINKAGE_CREATOR_;
        default:
            return nullptr;
    }
}
