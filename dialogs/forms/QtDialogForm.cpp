#include "dialogs/forms/QtDialogForm.h"

#include "dialogs/forms/ControlIds.h"
#include "ui/UiListCtrl.h"

QWidget* CQtDialogForm::GetControl(int id) {
    if (QWidget* plain = plainControl(id)) return plain;
    return GetListControl(id);
}

// The switches are the one list of a form's controls, so the identifiers are found by asking
// them over the range that identifiers take.
std::vector<int> CQtDialogForm::GetControlIds() const {
    std::vector<int> ids;
    for (int id = 1; id <= kLastControlId; ++id)
        if (plainControl(id) || GetListControl(id)) ids.push_back(id);
    return ids;
}

CUiListCtrl* CQtDialogForm::GetListControl(int) const {
    return nullptr;
}
