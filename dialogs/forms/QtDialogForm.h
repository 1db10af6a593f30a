#pragma once
// The common face of the translator's forms: each builds the widgets of one dialog in code
// and finds them again by control identifier, through a switch per form.
#include <vector>

#include "ui/QtForm.h"

class CUiListCtrl;

class CQtDialogForm : public IQtForm {
  public:
    // The widget of a control identifier, list controls included; null when the form holds
    // none (or is not built yet).
    QWidget* GetControl(int id) override;
    // The identifiers that GetControl answers, rising.
    std::vector<int> GetControlIds() const override;
    // The list controls alone, as the list class of the UI layer.
    virtual CUiListCtrl* GetListControl(int id) const;
    // The form's name, "dlg_IDD_..."; also the translation context of its texts.
    virtual const char* formName() const = 0;

  protected:
    // The switch of the plain controls; GetControl falls back to GetListControl.
    virtual QWidget* plainControl(int id) const = 0;
};
