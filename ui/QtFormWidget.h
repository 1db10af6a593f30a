#pragma once
// The widgets that forms are built into: a dialog whose close button reaches its handler chain
// as Cancel, and the holder that keeps the form object alive as long as its widget.
#include <QDialog>
#include <QObject>
#include <memory>

#include "ui/QtForm.h"

class CQtDialogWidget : public QDialog {
  public:
    using QDialog::QDialog;
    // The close button and the system's close request end the dialog through its Cancel.
    void reject() override;
};

class CQtFormHolder : public QObject {
  public:
    CQtFormHolder(QWidget* widget, std::unique_ptr<IQtForm> form);
    IQtForm* Form() const { return m_form.get(); }
    // The holder of a widget's form, or null.
    static CQtFormHolder* Of(QWidget* widget);

  private:
    std::unique_ptr<IQtForm> m_form;
};
