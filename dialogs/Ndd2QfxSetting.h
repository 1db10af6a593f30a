#pragma once
// The Settings dialog: a tab control with the "Translation Options" and "Net Selection" pages,
// and OK and Cancel below. OK hands over to each page's OK in turn; Cancel changes nothing.
#include "dialogs/DialogProperty.h"
#include "dialogs/DialogServices.h"
#include "dialogs/IBISFileSelector.h"
#include "dialogs/NetChoice.h"
#include "ui/UiDialog.h"

class QTabWidget;

class CNdd2QfxSetting : public CUiDialog {
  public:
    explicit CNdd2QfxSetting(QWidget* parent = nullptr,
                             DialogServices services = DesktopServices());

    // Builds the tab control with both pages and the two buttons.
    bool OnInitDialog() override;
    void OnOK() override;
    // Runs modally; when the run is over the pages are told that their windows go.
    int DoModal() override;

    // The help form of the page in front.
    std::string GetHelpFormName() const;

    CDialogProperty& PropertyPage() { return m_property; }
    CNetChoice& NetChoicePage() { return m_netChoice; }
    CIBISFileSelector& IbisPage() { return m_ibisFiles; }
    QTabWidget* TabControl() const { return m_hTabCtrl; }

  private:
    CDialogProperty m_property;
    CNetChoice m_netChoice;
    CIBISFileSelector m_ibisFiles;
    QTabWidget* m_hTabCtrl = nullptr;
};
