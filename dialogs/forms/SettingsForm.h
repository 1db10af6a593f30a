#pragma once
// The translation options page.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_SETTINGS : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_SETTINGS();
    ~CqtDialogRes_IDD_SETTINGS() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_SETTINGS"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    void retranslateUi(QWidget* dialog);

    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
