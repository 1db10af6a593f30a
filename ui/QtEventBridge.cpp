#include "ui/QtEventBridge.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWidget>

#include "ui/BridgeEvents.h"
#include "ui/CmdTarget.h"
#include "ui/CmdUI.h"
#include "ui/UiApi.h"

namespace {

const char* const kBridgeName = "ndd2qfx_bridge";
constexpr int kIdleMilliseconds = 100;

}  // namespace

CQtEventBridge::CQtEventBridge(QWidget* form) : QObject(form) {
    setObjectName(kBridgeName);
    form->installEventFilter(this);
    ConnectControls(form);
    connect(&m_idle, &QTimer::timeout, this, [this] { SendIdle(); });
}

CQtEventBridge* CQtEventBridge::Of(QWidget* form) {
    for (QObject* child : form->children())
        if (child->objectName() == kBridgeName) return static_cast<CQtEventBridge*>(child);
    return new CQtEventBridge(form);
}

void CQtEventBridge::ConnectControls(QWidget* form) {
    for (int id : UiApi().GetFormControlIds(form)) {
        QWidget* w = UiApi().GetFormControl(form, id);
        const unsigned uid = static_cast<unsigned>(id);
        auto send = [this](QEvent* e) {
            QCoreApplication::sendEvent(this, e);
            delete e;
        };
        if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            connect(button, &QAbstractButton::clicked, this,
                    [send, uid] { send(new CqtMfcCommandEvent(uid)); });
        } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
            connect(combo, QOverload<int>::of(&QComboBox::activated), this,
                    [send, uid](int i) { send(new CqtMfcCtrlCmdEvent(uid, kCodeSelChange, i)); });
        } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
            connect(edit, &QLineEdit::textChanged, this,
                    [send, uid] { send(new CqtMfcCtrlCmdEvent(uid, kCodeEditChange, 0)); });
        }
    }
}

void CQtEventBridge::StartIdle() {
    m_idle.start(kIdleMilliseconds);
}

// Each beat runs the idle handlers, then the update handlers of the form's controls.
void CQtEventBridge::SendIdle() {
    if (!m_pTarget) return;
    m_pTarget->OnWndMsg(kMsgIdleUpdateCmdUI, 1, 0);
    m_pTarget->OnWndMsg(kMsgKickIdle, 0, 0);
    for (int id : UiApi().GetFormControlIds(static_cast<QWidget*>(parent()))) {
        const unsigned uid = static_cast<unsigned>(id);
        if (!m_pTarget->OnCmdMsg(uid, kCodeUpdateCommandUI, nullptr, true)) continue;
        CqtMfcUpdateCmdUIEvent update(uid);
        QCoreApplication::sendEvent(this, &update);
    }
}

bool CQtEventBridge::event(QEvent* e) {
    const int type = e->type();
    if (type < CqtMfcUpdateCmdUIEvent::kType || type > CqtMfcCustomEvent::kType)
        return QObject::event(e);
    if (!m_pTarget) return true;
    if (type == CqtMfcUpdateCmdUIEvent::kType) {
        auto* u = static_cast<CqtMfcUpdateCmdUIEvent*>(e);
        CQtCmdUI cmdUI(u->m_nID, UiApi().GetFormControl(static_cast<QWidget*>(parent()),
                                                        static_cast<int>(u->m_nID)));
        m_pTarget->OnCmdMsg(u->m_nID, kCodeUpdateCommandUI, &cmdUI, false);
    } else if (type == CqtMfcCommandEvent::kType) {
        auto* c = static_cast<CqtMfcCommandEvent*>(e);
        m_pTarget->OnWndMsg(kMsgCommand, MakeWParam(c->m_nID, kCodeClicked), 0);
    } else if (type == CqtMfcCtrlCmdEvent::kType) {
        auto* c = static_cast<CqtMfcCtrlCmdEvent*>(e);
        m_pTarget->OnWndMsg(kMsgCommand, MakeWParam(c->m_nID, static_cast<unsigned>(c->m_nCode)),
                            c->m_value);
    } else if (type == CqtMfcCustomEvent::kType) {
        auto* c = static_cast<CqtMfcCustomEvent*>(e);
        m_pTarget->OnWndMsg(c->m_nID, c->m_wParam, c->m_lParam);
    }
    return true;
}

bool CQtEventBridge::eventFilter(QObject* watched, QEvent* e) {
    if (!m_pTarget || watched != parent()) return false;
    if (e->type() == QEvent::Paint) {
        m_pTarget->OnWndMsg(kMsgPaint, 0, 0);
    } else if (e->type() == QEvent::MouseMove) {
        auto* m = static_cast<QMouseEvent*>(e);
        m_pTarget->OnWndMsg(kMsgMouseMove, static_cast<WPARAM>(m->buttons()),
                            MakeLParam(m->pos().x(), m->pos().y()));
    }
    return false;
}
