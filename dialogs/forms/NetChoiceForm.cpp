#include "dialogs/forms/NetChoiceForm.h"

#include <QLabel>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"
#include "ui/UiListCtrl.h"

struct CqtDialogRes_IDD_NET_CHOICE::Widgets {
    CUiListCtrl* IDC_NET_LIST_ = nullptr;
    QLabel* IDC_STATIC_0_ = nullptr;
    QLabel* IDC_STATIC_1_ = nullptr;
    CUiListCtrl* IDC_NET_CHOICE_ = nullptr;
};

CqtDialogRes_IDD_NET_CHOICE::CqtDialogRes_IDD_NET_CHOICE() = default;
CqtDialogRes_IDD_NET_CHOICE::~CqtDialogRes_IDD_NET_CHOICE() = default;

// All nets on the left, the chosen ones on the right, each under its label.
void CqtDialogRes_IDD_NET_CHOICE::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 468, 503);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    w.IDC_NET_LIST_ = NewControl<CUiListCtrl>(dialog, "IDC_NET_LIST", 10, 32, 220, 461);
    w.IDC_STATIC_0_ = NewControl<QLabel>(dialog, "IDC_STATIC_0", 10, 8, 220, 20);
    w.IDC_STATIC_1_ = NewControl<QLabel>(dialog, "IDC_STATIC_1", 238, 8, 220, 20);
    w.IDC_NET_CHOICE_ = NewControl<CUiListCtrl>(dialog, "IDC_NET_CHOICE", 238, 32, 220, 461);

    dialog->setWindowTitle(FormText(form, "Net Selection "));
    w.IDC_STATIC_0_->setText(FormText(form, "Nets Selecting :"));
    w.IDC_STATIC_1_->setText(FormText(form, "Nets Selected :"));
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_NET_CHOICE::plainControl(int) const {
    return nullptr;
}

CUiListCtrl* CqtDialogRes_IDD_NET_CHOICE::GetListControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_NET_LIST:
            return m_ui->IDC_NET_LIST_;
        case IDC_NET_CHOICE:
            return m_ui->IDC_NET_CHOICE_;
        default:
            return nullptr;
    }
}
