#pragma once
// The common face of the translator's forms: each builds the widgets of one dialog in code
// and finds them again by control identifier.

class QWidget;
class CUiListCtrl;

class CQtDialogForm {
  public:
    virtual ~CQtDialogForm() = default;

    // Builds the widgets into `dialog`; unless `skipScale`, the form grows by the screen's
    // dots per inch over 96.
    virtual void setupUi(QWidget* dialog, bool skipScale) = 0;
    // The widget of a control identifier, list controls included; null when the form holds
    // none (or is not built yet).
    virtual QWidget* control(int id) const;
    // The list controls alone, as the list class of the UI layer.
    virtual CUiListCtrl* listControl(int id) const;
    // The form's name, "dlg_IDD_..."; also the translation context of its texts.
    virtual const char* formName() const = 0;

  protected:
    // The switch of the plain controls; control() falls back to listControl().
    virtual QWidget* plainControl(int id) const = 0;
};
