#pragma once
// The swatch of the colour picker: a button that shows a net's colour, or the plain button face
// for "default", the colour that a net has when none was chosen.
#include <cstdint>
#include <memory>

#include "ui/UiControls.h"

class CColorButton : public CUiButton {
  public:
    CColorButton();
    ~CColorButton() override;

    // The colour as 0x00BBGGRR; `isDefault` shows the plain button instead. Repaints.
    void SetColor(uint32_t colour, bool isDefault);
    uint32_t GetColor() const { return m_colour; }
    bool IsDefault() const { return m_bDefault; }

  private:
    class Painter;
    void Repaint();

    uint32_t m_colour = 0;
    bool m_bDefault = true;
    std::unique_ptr<Painter> m_painter;
};
