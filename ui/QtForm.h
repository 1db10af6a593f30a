#pragma once
// A dialog form built in code: it makes the widgets of one dialog template and finds them by
// control identifier.
#include <vector>

class QWidget;

class IQtForm {
  public:
    virtual ~IQtForm() = default;
    // Builds the widgets into widget; skipScale keeps the sizes of the template unscaled.
    virtual void setupUi(QWidget* widget, bool skipScale) = 0;
    // The widget of a control identifier, or null when the form has no such control.
    virtual QWidget* GetControl(int id) = 0;
    // The identifiers of all controls of the form, so that their commands can be routed.
    virtual std::vector<int> GetControlIds() const = 0;
};
