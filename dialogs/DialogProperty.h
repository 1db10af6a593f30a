#pragma once
// The "Translation Options" page of the Settings dialog. Its fields are the core's settings
// page (app/SettingsPage.h): the constructor loads them from the option record, OK applies
// them, and the controls are bound to them by data exchange, so the dialog, the normalising
// round trip and a log load share one load and one apply.
#include <string>

#include "app/SettingsPage.h"
#include "dialogs/DialogServices.h"
#include "ui/UiControls.h"
#include "ui/UiDialog.h"

class CDialogProperty : public CUiDialog {
  public:
    explicit CDialogProperty(DialogServices services = DesktopServices());

    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    // The page's OK: reads the controls, applies the page, then takes the two side files.
    void OnOK() override;
    const CClassFunctionCall* GetChainHead() const override;

    // Handlers.
    void OnBoundaryLimit();
    void OnExcludeVoidShapeEncloseAVia();
    void OnBnClickedButtonTraceFileBrowse();
    void OnBnClickedButtonHkpFileBrowse();

    const SettingsPage& Page() const { return m_page; }

  private:
    void EnableAreaEdits(bool enable);

    DialogServices m_services;
    SettingsPage m_page;
    CUiEdit m_editViaVoidArea;
    CUiEdit m_editVoidAreaLimit;
    CUiEdit m_editTraceUnionLength;
    CUiEdit m_editArcLength;
    CUiEdit m_editTraceGap;
    CUiEdit m_editValueField;
    CUiEdit m_editAffix;
    CUiEdit m_editMinX;
    CUiEdit m_editMinY;
    CUiEdit m_editMaxX;
    CUiEdit m_editMaxY;
};
