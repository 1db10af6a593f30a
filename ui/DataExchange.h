#pragma once
// Data exchange between a dialog's controls and its members. A dialog lists its pairs in
// DoDataExchange; UpdateData(false) loads the controls, UpdateData(true) saves them.
#include <string>

class CUiDialog;
class CUiWnd;

class CDataExchange {
  public:
    CDataExchange(CUiDialog* dialog, bool save) : m_bSaveAndValidate(save), m_pDlgWnd(dialog) {}
    bool m_bSaveAndValidate;
    CUiDialog* m_pDlgWnd;
};

// Attaches control to the dialog's control id when it has no widget yet.
void DDX_Control(CDataExchange* dx, int id, CUiWnd& control);
// A check box: 1 when checked, else 0.
void DDX_Check(CDataExchange* dx, int id, int& value);
void DDX_Text(CDataExchange* dx, int id, std::string& value);
// Shown with "%g"; a text that does not parse saves 0.0.
void DDX_Text(CDataExchange* dx, int id, double& value);
