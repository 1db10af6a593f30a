#include "dialogs/forms/QtDialogForm.h"

#include "ui/UiListCtrl.h"

QWidget* CQtDialogForm::control(int id) const {
    if (QWidget* plain = plainControl(id)) return plain;
    return listControl(id);
}

CUiListCtrl* CQtDialogForm::listControl(int) const {
    return nullptr;
}
