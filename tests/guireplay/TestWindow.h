#pragma once
// A small dialog to record and play on: a name, an option, a list of nets to tick, a choice,
// tabs, and buttons that change what the dialog shows, one of them after a modal question. The
// renamed variant names its Apply button and handler anew, as a later version of a program would.
#include <QDialog>
#include <functional>

#include "ui/CmdTarget.h"

class QLabel;
class QLineEdit;
class QListWidget;

// Routes the Apply button as the program's dialogs route their buttons, so that a recording
// notes which handler a click ran.
class CApplyTarget : public CCmdTargetBase {
  public:
    const CClassFunctionCall* GetChainHead() const override;
    std::function<void()> apply;

  private:
    void OnApply() { apply(); }
    void OnApplyNow() { apply(); }
};

class TestWindow : public QDialog {
  public:
    explicit TestWindow(bool renamedApply = false);
    QLineEdit* nameEdit = nullptr;
    QLabel* result = nullptr;
    QListWidget* nets = nullptr;

  private:
    void Apply();
    CApplyTarget m_commands;
    unsigned m_applyId = 1;
    void Confirm();
};
