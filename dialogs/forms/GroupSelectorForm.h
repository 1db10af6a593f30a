#pragma once
// Four combo boxes that assign power and ground groups to signal pins.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR();
    ~CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_DIALOG_GROUP_SELECTOR"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
