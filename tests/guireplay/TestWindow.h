#pragma once
// A small dialog to record and play on: a name, an option, a list of nets to tick, a choice,
// tabs, and buttons that change what the dialog shows, one of them after a modal question. Variants
// change one control, as a later version of a program would.
#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;

enum class TestWindowVariant { Normal, RenamedOption, NoApplyButton, RenamedApplyButton };

class TestWindow : public QDialog {
  public:
    explicit TestWindow(TestWindowVariant variant = TestWindowVariant::Normal);
    QLineEdit* nameEdit = nullptr;
    QLabel* result = nullptr;
    QListWidget* nets = nullptr;

  private:
    void Apply();
    void Confirm();
};
