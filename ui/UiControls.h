#pragma once
// Wrappers by widget class: push buttons and check boxes, combo boxes, line edits, labels.
#include <cstdint>
#include <string>

#include "ui/UiWnd.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;

class CUiButton : public CUiWnd {
  public:
    using CUiWnd::CUiWnd;
    // Presses the button as a user would: its command reaches the dialog.
    void Click();
};

class CUiComboBox : public CUiWnd {
  public:
    using CUiWnd::CUiWnd;
    // Index of the new item.
    int AddString(const std::string& text);
    int InsertString(int index, const std::string& text);
    void DeleteString(int index);
    void ResetContent();
    int GetCount() const;
    // -1 when nothing is selected.
    int GetCurSel() const;
    // Selects without a selection notification; -1 clears the selection.
    void SetCurSel(int index);
    std::string GetLBText(int index) const;
    // Index of the item whose text equals text, searched behind start; -1 when none.
    int FindStringExact(int start, const std::string& text) const;
    void SetItemData(int index, std::uintptr_t data);
    std::uintptr_t GetItemData(int index) const;
    bool GetDroppedState() const;
    void ShowDropDown(bool show = true);

  private:
    QComboBox* Combo() const;
};

class CUiEdit : public CUiWnd {
  public:
    using CUiWnd::CUiWnd;
    void SetReadOnly(bool readOnly = true);
    void LimitText(int length);
    void SetSel(int start, int end);

  private:
    QLineEdit* Edit() const;
};

class CUiStatic : public CUiWnd {
  public:
    using CUiWnd::CUiWnd;
};
