#pragma once
// The base of every dialog: binds a form to a class of message handlers, owns the wrappers of
// the form's controls, exchanges data between controls and members, and runs modally.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ui/UiWnd.h"

class CDataExchange;

class CUiDialog : public CUiWnd {
  public:
    explicit CUiDialog(int templateId = 0, QWidget* parent = nullptr)
        : m_nTemplateId(templateId), m_pParent(parent) {}
    ~CUiDialog() override;

    // Updates the members and ends a modal form with kIdOk.
    virtual void OnOK();
    // Ends a modal form with kIdCancel.
    virtual void OnCancel();
    // The result with which the form was ended.
    virtual int DoModal();
    // Loads the controls, notes idle and mouse handlers, hands the chain to the toolkit.
    virtual bool OnInitDialog();
    // The wrapper of a control, made on demand; null when the form has no such control.
    virtual CUiWnd* GetDlgItem(int id);
    virtual int UpdateData(bool save = true);
    virtual void DoDataExchange(CDataExchange* exchange);

    // Makes the form once; true when it exists. className null means "QDialog". A form that
    // is not modal is initialised at once; a modal one when its run starts.
    bool Create(int templateId, QWidget* parent = nullptr, bool modal = false,
                const char* className = nullptr);
    // Ends a modal form with result; a form shown as a page stays open.
    void EndDialog(int result);

    void SetDlgItemText(int id, const std::string& text);
    std::string GetDlgItemText(int id);
    void CheckDlgButton(int id, int state);
    int IsDlgButtonChecked(int id);

    int GetTemplateId() const { return m_nTemplateId; }
    bool HasIdleHandler() const { return m_bHasIdleHandler; }
    QWidget* GetParentHandle() const { return m_pParent; }
    const std::map<int, CUiWnd*>& Controls() const { return m_controls; }

    const CClassFunctionCall* GetChainHead() const override;

  protected:
    std::map<int, CUiWnd*> m_controls;
    bool m_bHasIdleHandler = false;
    int m_nTemplateId = 0;
    QWidget* m_pParent = nullptr;

  private:
    void FilterComboBoxes();
    // The wrappers that GetDlgItem made; a dialog's member wrappers are not among them.
    std::vector<std::unique_ptr<CUiWnd>> m_ownedControls;
};

// The dialog whose modal run is going on, or null.
extern CUiDialog* g_pModalDialog;
