#pragma once
// An empty dialog.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_DIALOG_MY_DIALOG : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_DIALOG_MY_DIALOG();
    ~CqtDialogRes_IDD_DIALOG_MY_DIALOG() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_DIALOG_MY_DIALOG"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
