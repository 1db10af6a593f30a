#pragma once
// One list of pins with OK and Cancel.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_DIALOG_PIN_SELECTOR : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_DIALOG_PIN_SELECTOR();
    ~CqtDialogRes_IDD_DIALOG_PIN_SELECTOR() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_DIALOG_PIN_SELECTOR"; }
    CUiListCtrl* GetListControl(int id) const override;

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
