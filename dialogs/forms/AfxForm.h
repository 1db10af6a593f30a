#pragma once
// The plain dialog with OK and Cancel.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_AFX_DIALOG : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_AFX_DIALOG();
    ~CqtDialogRes_IDD_AFX_DIALOG() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_AFX_DIALOG"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
