#include "ui/DataExchange.h"

#include <cstdio>
#include <cstdlib>

#include "base/ScopedClassicLocale.h"
#include "ui/UiApi.h"
#include "ui/UiDialog.h"

namespace {

// Writes into a control with its change notifications blocked, and puts their old state back.
template <class Write>
void Quietly(CUiWnd& control, Write write) {
    QWidget* widget = control.GetHandle();
    bool wasBlocked = widget && widget->blockSignals(true);
    write();
    if (widget) widget->blockSignals(wasBlocked);
}

std::string FormatDouble(double value) {
    base::ScopedClassicLocale classic;
    char text[64];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

// Reads as far as the text is a number; a text that is none gives 0.0.
double ParseDouble(const std::string& text) {
    base::ScopedClassicLocale classic;
    return std::strtod(text.c_str(), nullptr);
}

}  // namespace

void DDX_Control(CDataExchange* dx, int id, CUiWnd& control) {
    if (control.GetHandle()) return;
    QWidget* form = dx->m_pDlgWnd->GetHandle();
    QWidget* widget = form ? UiApi().GetFormControl(form, id) : nullptr;
    if (!widget) return;
    control.Attach(widget);
    control.SetDlgCtrlID(id);
}

void DDX_Check(CDataExchange* dx, int id, int& value) {
    CUiWnd* control = dx->m_pDlgWnd->GetDlgItem(id);
    if (!control) return;
    if (dx->m_bSaveAndValidate)
        value = control->GetCheck() == 1 ? 1 : 0;
    else
        Quietly(*control, [&] { control->SetCheck(value != 0 ? 1 : 0); });
}

void DDX_Text(CDataExchange* dx, int id, std::string& value) {
    CUiWnd* control = dx->m_pDlgWnd->GetDlgItem(id);
    if (!control) return;
    if (dx->m_bSaveAndValidate)
        value = control->GetWindowText();
    else
        Quietly(*control, [&] { control->SetWindowText(value); });
}

void DDX_Text(CDataExchange* dx, int id, double& value) {
    CUiWnd* control = dx->m_pDlgWnd->GetDlgItem(id);
    if (!control) return;
    if (dx->m_bSaveAndValidate)
        value = ParseDouble(control->GetWindowText());
    else
        Quietly(*control, [&] { control->SetWindowText(FormatDouble(value)); });
}
