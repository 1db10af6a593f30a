#pragma once
// Part numbers, pin names and circuit nodes, and the links made of them.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES();
    ~CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_LINK_PIN_NAMES_TO_CKT_NODES"; }
    CUiListCtrl* GetListControl(int id) const override;

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
