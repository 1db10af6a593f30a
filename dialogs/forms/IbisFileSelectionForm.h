#pragma once
// The IBIS file of each part number.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_IBIS_FILE_SELECTION : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_IBIS_FILE_SELECTION();
    ~CqtDialogRes_IDD_IBIS_FILE_SELECTION() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_IBIS_FILE_SELECTION"; }
    CUiListCtrl* GetListControl(int id) const override;

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
