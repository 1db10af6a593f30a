#include "dialogs/forms/MainForm.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"

struct CqtDialogRes_IDD_Ndd2Qfx_DIALOG::Widgets {
    QGroupBox* IDC_STATIC_0_ = nullptr;
    QLabel* IDC_STATIC_1_ = nullptr;
    QGroupBox* IDC_STATIC_2_ = nullptr;
    QLabel* IDC_STATIC_3_ = nullptr;
    QPushButton* IDC_PROPERTY_ = nullptr;
    QPushButton* IDC_LOAD_LOG_ = nullptr;
    QLineEdit* IDC_EDIT_INPUT_ = nullptr;
    QPushButton* IDC_BUTTON_INPUT_ = nullptr;
    QLineEdit* IDC_EDIT_OUTPUT_ = nullptr;
    QPushButton* IDC_BUTTON_OUTPUT_ = nullptr;
    QLabel* IDC_MSG_ = nullptr;
    QProgressBar* IDC_PROGRESS1_ = nullptr;
    QPushButton* IDOK_ = nullptr;
    QPushButton* IDCANCEL_ = nullptr;
    QPushButton* IDC_BUTTON_MORE_ = nullptr;
};

CqtDialogRes_IDD_Ndd2Qfx_DIALOG::CqtDialogRes_IDD_Ndd2Qfx_DIALOG() = default;
CqtDialogRes_IDD_Ndd2Qfx_DIALOG::~CqtDialogRes_IDD_Ndd2Qfx_DIALOG() = default;

// An "Input" and an "Output" box, each with a label, the file's field and its browse button;
// the message line and the progress bar; a row of buttons at the foot.
void CqtDialogRes_IDD_Ndd2Qfx_DIALOG::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 690, 280);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDC_STATIC_0_ = NewFrame<QGroupBox>(dialog, "IDC_STATIC_0", 10, 8, 670, 64);
    w.IDC_STATIC_1_ = NewControl<QLabel>(dialog, "IDC_STATIC_1", 22, 34, 120, 24);
    w.IDC_STATIC_2_ = NewFrame<QGroupBox>(dialog, "IDC_STATIC_2", 10, 78, 670, 64);
    w.IDC_STATIC_3_ = NewControl<QLabel>(dialog, "IDC_STATIC_3", 22, 104, 120, 24);
    w.IDC_PROPERTY_ = NewControl<QPushButton>(dialog, "IDC_PROPERTY", 10, 234, 110, 28);
    w.IDC_LOAD_LOG_ = NewControl<QPushButton>(dialog, "IDC_LOAD_LOG", 128, 234, 120, 28);
    w.IDC_EDIT_INPUT_ = NewControl<QLineEdit>(dialog, "IDC_EDIT_INPUT", 145, 34, 360, 24);
    w.IDC_BUTTON_INPUT_ = NewControl<QPushButton>(dialog, "IDC_BUTTON_INPUT", 515, 32, 155, 28);
    w.IDC_EDIT_OUTPUT_ = NewControl<QLineEdit>(dialog, "IDC_EDIT_OUTPUT", 145, 104, 360, 24);
    w.IDC_BUTTON_OUTPUT_ = NewControl<QPushButton>(dialog, "IDC_BUTTON_OUTPUT", 515, 102, 155, 28);
    w.IDC_MSG_ = NewControl<QLabel>(dialog, "IDC_MSG", 12, 154, 666, 24);
    w.IDC_PROGRESS1_ = NewControl<QProgressBar>(dialog, "IDC_PROGRESS1", 10, 186, 670, 22);
    w.IDC_PROGRESS1_->setValue(0);
    w.IDOK_ = NewControl<QPushButton>(dialog, "IDOK", 462, 234, 105, 28);
    w.IDCANCEL_ = NewControl<QPushButton>(dialog, "IDCANCEL", 575, 234, 105, 28);
    w.IDC_BUTTON_MORE_ = NewControl<QPushButton>(dialog, "IDC_BUTTON_MORE", 256, 234, 100, 28);

    dialog->setWindowTitle(FormText(form, "Lumora - NDD to QFX  Translator  "));
    w.IDC_STATIC_0_->setTitle(FormText(form, "Input"));
    w.IDC_PROPERTY_->setText(FormText(form, "&Settings"));
    w.IDC_LOAD_LOG_->setText(FormText(form, "&Load Log File"));
    w.IDC_STATIC_1_->setText(FormText(form, "Mentor NDD file:"));
    w.IDC_BUTTON_INPUT_->setText(FormText(form, "&Input File Browser"));
    w.IDC_STATIC_2_->setTitle(FormText(form, "Output"));
    w.IDC_STATIC_3_->setText(FormText(form, "Lumora QFX file:"));
    w.IDC_BUTTON_OUTPUT_->setText(FormText(form, "&Output File Browser"));
    w.IDOK_->setText(FormText(form, "&Translate"));
    w.IDCANCEL_->setText(FormText(form, "&Exit"));
    w.IDC_BUTTON_MORE_->setText(FormText(form, "&More..."));
    MakeDefault(w.IDOK_);
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_Ndd2Qfx_DIALOG::plainControl(int id) const {
    if (!m_ui) return nullptr;
    const Widgets& w = *m_ui;
    switch (id) {
        case IDC_PROPERTY:
            return w.IDC_PROPERTY_;
        case IDC_LOAD_LOG:
            return w.IDC_LOAD_LOG_;
        case IDC_EDIT_INPUT:
            return w.IDC_EDIT_INPUT_;
        case IDC_BUTTON_INPUT:
            return w.IDC_BUTTON_INPUT_;
        case IDC_EDIT_OUTPUT:
            return w.IDC_EDIT_OUTPUT_;
        case IDC_BUTTON_OUTPUT:
            return w.IDC_BUTTON_OUTPUT_;
        case IDC_MSG:
            return w.IDC_MSG_;
        case IDC_PROGRESS1:
            return w.IDC_PROGRESS1_;
        case IDOK:
            return w.IDOK_;
        case IDCANCEL:
            return w.IDCANCEL_;
        case IDC_BUTTON_MORE:
            return w.IDC_BUTTON_MORE_;
        default:
            return nullptr;
    }
}
