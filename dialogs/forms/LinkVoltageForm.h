#pragma once
// Part numbers, circuit nodes and voltage levels, and the links made of them.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG();
    ~CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_LINK_VOLTAGE_TO_PINS_DIALOG"; }
    CUiListCtrl* GetListControl(int id) const override;

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
