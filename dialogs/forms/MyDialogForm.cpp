#include "dialogs/forms/MyDialogForm.h"

#include "dialogs/forms/FormBuilder.h"

struct CqtDialogRes_IDD_DIALOG_MY_DIALOG::Widgets {};

CqtDialogRes_IDD_DIALOG_MY_DIALOG::CqtDialogRes_IDD_DIALOG_MY_DIALOG() = default;
CqtDialogRes_IDD_DIALOG_MY_DIALOG::~CqtDialogRes_IDD_DIALOG_MY_DIALOG() = default;

void CqtDialogRes_IDD_DIALOG_MY_DIALOG::setupUi(QWidget* dialog, bool skipScale) {
    BeginForm(dialog, formName(), 299, 160);
    m_ui = std::make_unique<Widgets>();
    dialog->setWindowTitle(FormText(formName(), "Dialog"));
    EndForm(dialog, skipScale);
}

QWidget* CqtDialogRes_IDD_DIALOG_MY_DIALOG::plainControl(int) const {
    return nullptr;
}
