#include "ui/CmdUI.h"

#include <QAbstractButton>
#include <QWidget>

#include "ui/UiWnd.h"

void CQtCmdUI::Enable(bool on) {
    CCmdUI::Enable(on);
    if (m_pWidget) m_pWidget->setEnabled(on);
}

void CQtCmdUI::SetCheck(int state) {
    CCmdUI::SetCheck(state);
    if (CUiWnd* wrapper = CUiWnd::FromHandle(m_pWidget))
        wrapper->SetCheck(state);
    else if (auto* button = qobject_cast<QAbstractButton*>(m_pWidget))
        button->setChecked(state != 0);
}

void CQtCmdUI::SetText(const std::string& text) {
    CCmdUI::SetText(text);
    if (CUiWnd* wrapper = CUiWnd::FromHandle(m_pWidget)) wrapper->SetWindowText(text);
}
