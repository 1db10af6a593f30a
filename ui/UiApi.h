#pragma once
// The UI interface between the dialog classes and the toolkit: the dialog base asks it to make,
// run, end and destroy forms, and to route the toolkit's events to a handler chain. CQtApi is
// its implementation over Qt widgets.
#include <string>
#include <vector>

#include "ui/UiTypes.h"

class QWidget;
class IQtForm;
class CCmdTargetBase;

class IUiApi {
  public:
    virtual ~IUiApi() = default;

    // A widget of class className ("QDialog" or "QWidget"; null means "QDialog") under parent,
    // filled from the form templateId. An unknown template gives an empty form.
    virtual QWidget* CreateFormWidget(const char* className, QWidget* parent, bool modal,
                                      int templateId) = 0;
    // The form that filled a widget, or null.
    virtual IQtForm* GetForm(QWidget* form) = 0;
    virtual QWidget* GetFormControl(QWidget* form, int id) = 0;
    virtual std::vector<int> GetFormControlIds(QWidget* form) = 0;
    // Runs the form's own event loop until it ends; its result.
    virtual int RunModal(QWidget* form) = 0;
    // Ends a modal form; a form that is a page of another stays open.
    virtual void EndForm(QWidget* form, int result) = 0;
    virtual void DestroyForm(QWidget* form) = 0;
    virtual void SetMouseTracking(QWidget* form, bool on) = 0;
    // Routes the toolkit events of the form and its controls to target's handler chain.
    virtual void SetCommandTarget(QWidget* form, CCmdTargetBase* target) = 0;
    // Makes the list of a combo box report its opening and closing as commands.
    virtual void InstallComboBoxFilter(QWidget* combo, CCmdTargetBase* target, int id) = 0;
    // Offered every window message first; true when it took the message.
    virtual bool PreTranslateMessage(CCmdTargetBase* target, unsigned message, WPARAM wParam,
                                     LPARAM lParam) = 0;
    // Shows a message box of type 0, 4 or 48; returns 1, 6 or 7.
    virtual int MessageBox(const std::string& title, const std::string& text, int type) = 0;
};

// The interface in use: a CQtApi unless another was installed.
IUiApi& UiApi();
// Installs another interface (tests); null puts the Qt one back. Not owned.
void SetUiApi(IUiApi* api);
