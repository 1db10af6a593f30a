#include "ui/ComboBoxMsgEx.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>

#include "ui/CmdTarget.h"

_QComboBoxMsgEx::_QComboBoxMsgEx(QComboBox* combo, CCmdTargetBase* target, int id)
    : QObject(combo), m_pTarget(target), m_nID(id) {
    // The list's container is the popup window that shows and hides.
    if (QWidget* popup = combo->view()->parentWidget()) popup->installEventFilter(this);
}

bool _QComboBoxMsgEx::eventFilter(QObject*, QEvent* e) {
    int code = e->type() == QEvent::Show   ? kCodeDropDown
               : e->type() == QEvent::Hide ? kCodeCloseUp
                                           : -1;
    if (code >= 0)
        m_pTarget->OnWndMsg(kMsgCommand, MakeWParam(static_cast<unsigned>(m_nID), code), 0);
    return false;
}
