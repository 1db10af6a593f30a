#pragma once
// An empty page with a Next button.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_GRID : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_GRID();
    ~CqtDialogRes_IDD_GRID() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_GRID"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
