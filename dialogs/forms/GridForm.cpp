#include "dialogs/forms/GridForm.h"

#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"

struct CqtDialogRes_IDD_GRID::Widgets {
    QPushButton* IDC_NEXT_ = nullptr;
};

CqtDialogRes_IDD_GRID::CqtDialogRes_IDD_GRID() = default;
CqtDialogRes_IDD_GRID::~CqtDialogRes_IDD_GRID() = default;

void CqtDialogRes_IDD_GRID::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 582, 334);
    m_ui = std::make_unique<Widgets>();
    m_ui->IDC_NEXT_ = NewControl<QPushButton>(dialog, "IDC_NEXT", 487, 298, 85, 26);

    dialog->setWindowTitle(FormText(form, "Grid"));
    m_ui->IDC_NEXT_->setText(FormText(form, "Next"));
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_GRID::plainControl(int id) const {
    if (!m_ui) return nullptr;
    switch (id) {
        case IDC_NEXT:
            return m_ui->IDC_NEXT_;
        default:
            return nullptr;
    }
}
