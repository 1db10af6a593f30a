#pragma once
// The colour picker: a combo box of colour names and a swatch.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_COLOR_PICKER : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_COLOR_PICKER();
    ~CqtDialogRes_IDD_COLOR_PICKER() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_COLOR_PICKER"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
