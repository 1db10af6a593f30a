#pragma once
// The main window: input and output files, message line, progress and the buttons.
#include <memory>

#include "dialogs/forms/QtDialogForm.h"

class CqtDialogRes_IDD_Ndd2Qfx_DIALOG : public CQtDialogForm {
  public:
    CqtDialogRes_IDD_Ndd2Qfx_DIALOG();
    ~CqtDialogRes_IDD_Ndd2Qfx_DIALOG() override;
    void setupUi(QWidget* dialog, bool skipScale) override;
    const char* formName() const override { return "dlg_IDD_Ndd2Qfx_DIALOG"; }

  protected:
    QWidget* plainControl(int id) const override;

  private:
    struct Widgets;
    std::unique_ptr<Widgets> m_ui;
};
