#pragma once
// The net selection page: all nets on the left, the chosen ones on the right.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_NET_CHOICE : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_NET_CHOICE();
    ~CqtDialogRes_IDD_NET_CHOICE() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_NET_CHOICE"; }
    CUiListCtrl* GetListControl(int id) const override;

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
