#include "dialogs/forms/GroupSelectorForm.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"

struct CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR::Widgets {
    QLabel* IDC_STATIC_0_ = nullptr;
    QLabel* IDC_STATIC_1_ = nullptr;
    QLabel* IDC_STATIC_2_ = nullptr;
    QLabel* IDC_STATIC_3_ = nullptr;
    QFrame* IDC_STATIC_4_ = nullptr;
    QFrame* IDC_STATIC_5_ = nullptr;
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
    QComboBox* IDC_COMBO_PULL_UP_ = nullptr;
    QComboBox* IDC_COMBO_GROUND_CLAMP_ = nullptr;
    QComboBox* IDC_COMBO_POWER_CLAMP_ = nullptr;
    QComboBox* IDC_COMBO_PULL_DOWN_ = nullptr;
};

CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR::CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR() = default;
CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR::~CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR() = default;

// Four label-and-combo pairs stacked in a frame: pull up, pull down, power clamp, gnd clamp.
void CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 422, 345);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDC_STATIC_0_ = NewControl<QLabel>(dialog, "IDC_STATIC_0", 30, 30, 360, 20);
    w.IDC_STATIC_1_ = NewControl<QLabel>(dialog, "IDC_STATIC_1", 30, 92, 360, 20);
    w.IDC_STATIC_2_ = NewControl<QLabel>(dialog, "IDC_STATIC_2", 30, 154, 360, 20);
    w.IDC_STATIC_3_ = NewControl<QLabel>(dialog, "IDC_STATIC_3", 30, 216, 360, 20);
    w.IDC_STATIC_4_ = NewFrame<QFrame>(dialog, "IDC_STATIC_4", 15, 15, 392, 265);
    w.IDC_STATIC_4_->setFrameShape(QFrame::StyledPanel);
    w.IDC_STATIC_5_ = NewFrame<QFrame>(dialog, "IDC_STATIC_5", 15, 292, 392, 3);
    w.IDC_STATIC_5_->setFrameShape(QFrame::HLine);
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 222, 305, 85, 26);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 317, 305, 85, 26);
    w.IDC_COMBO_PULL_UP_ = NewControl<QComboBox>(dialog, "IDC_COMBO_PULL_UP", 30, 52, 360, 26);
    w.IDC_COMBO_GROUND_CLAMP_ =
        NewControl<QComboBox>(dialog, "IDC_COMBO_GROUND_CLAMP", 30, 238, 360, 26);
    w.IDC_COMBO_POWER_CLAMP_ =
        NewControl<QComboBox>(dialog, "IDC_COMBO_POWER_CLAMP", 30, 176, 360, 26);
    w.IDC_COMBO_PULL_DOWN_ = NewControl<QComboBox>(dialog, "IDC_COMBO_PULL_DOWN", 30, 114, 360, 26);

    dialog->setWindowTitle(FormText(form, "Dialog"));
    w.IDC_STATIC_0_->setText(FormText(form, "Choose Pull Up Group"));
    w.IDC_STATIC_1_->setText(FormText(form, "Choose Pull Down Group"));
    w.IDC_STATIC_2_->setText(FormText(form, "Choose Power Clamp Group"));
    w.IDC_STATIC_3_->setText(FormText(form, "Choose Gnd Clamp Group"));
    w.IDOK_->setText(FormText(form, "OK"));
    w.IDCANCEL_->setText(FormText(form, "Cancel"));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDOK:
            return m_ui->IDOK_;
        case IDCANCEL:
            return m_ui->IDCANCEL_;
        case IDC_COMBO_PULL_UP:
            return m_ui->IDC_COMBO_PULL_UP_;
        case IDC_COMBO_GROUND_CLAMP:
            return m_ui->IDC_COMBO_GROUND_CLAMP_;
        case IDC_COMBO_POWER_CLAMP:
            return m_ui->IDC_COMBO_POWER_CLAMP_;
        case IDC_COMBO_PULL_DOWN:
            return m_ui->IDC_COMBO_PULL_DOWN_;
        default:
            return nullptr;
    }
}
