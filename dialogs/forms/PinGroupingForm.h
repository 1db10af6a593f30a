#pragma once
// Pin mapping: signal pins on the left, power and ground groups on the right.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_DIALOG_PIN_GROUPING : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_DIALOG_PIN_GROUPING();
    ~CqtDialogRes_IDD_DIALOG_PIN_GROUPING() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_DIALOG_PIN_GROUPING"; }
    CUiListCtrl* GetListControl(int id) const override;

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
