#include "dialogs/ColorPicker.h"

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/NetColorTable.h"
#include "model/TranslationOptions.h"
#include "ui/DataExchange.h"

CColorPicker::CColorPicker(int colourIndex, QWidget* parent)
    : CUiDialog(IDD_COLOR_PICKER, parent),
      m_nColorIndex(colourIndex >= 0 && colourIndex <= kNetColorCount ? colourIndex : 0) {}

const CClassFunctionCall* CColorPicker::GetChainHead() const {
    static const CHandlerChain chain(
        CUiDialog::GetChainHead(),
        OnControl(kCodeSelChange, IDC_COLOR_NAME, UI_FN(&CColorPicker::OnSelChangeColorName)),
        OnCommand(IDC_COLOR_SHOWER, UI_FN(&CColorPicker::OnColorShower)));
    return chain.Head();
}

void CColorPicker::DoDataExchange(CDataExchange* exchange) {
    CUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COLOR_SHOWER, m_swatch);
    DDX_Control(exchange, IDC_COLOR_NAME, m_comboColor);
}

bool CColorPicker::OnInitDialog() {
    CUiDialog::OnInitDialog();
    m_comboColor.ResetContent();
    m_comboColor.AddString("default");
    for (int i = 1; i <= kNetColorCount; ++i) m_comboColor.AddString(NetColorName(i));
    m_comboColor.SetCurSel(m_nColorIndex);
    ShowColor();
    return true;
}

void CColorPicker::OnSelChangeColorName() {
    const int index = m_comboColor.GetCurSel();
    m_nColorIndex = index >= 0 ? index : 0;
    ShowColor();
}

// A click on the swatch takes the colour that it shows.
void CColorPicker::OnColorShower() {
    OnOK();
}

void CColorPicker::ShowColor() {
    m_swatch.SetColor(NetColorValue(m_nColorIndex), m_nColorIndex == 0);
}
