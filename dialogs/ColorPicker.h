#pragma once
// A small dialog that chooses the colour of a net by name: a combo box with "default" and the
// eleven colour names, and a swatch that shows the choice.
#include "dialogs/ColorButton.h"
#include "ui/UiDialog.h"

class CColorPicker : public CUiDialog {
  public:
    // `colourIndex`: 0 for default, 1 to 11 for the named colours.
    explicit CColorPicker(int colourIndex = 0, QWidget* parent = nullptr);

    int GetColorIndex() const { return m_nColorIndex; }

    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    const CClassFunctionCall* GetChainHead() const override;

    void OnSelChangeColorName();
    void OnColorShower();

  private:
    void ShowColor();

    int m_nColorIndex = 0;
    CColorButton m_swatch;
    CUiComboBox m_comboColor;
};
