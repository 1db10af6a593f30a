#pragma once
// The bridge events: toolkit events of user-defined types that carry commands, control
// notifications, update requests and other messages to a handler chain. Each carries the
// identifier first.
#include <QEvent>

#include "ui/UiTypes.h"

class CqtMfcUpdateCmdUIEvent : public QEvent {
  public:
    static constexpr int kType = 1001;
    explicit CqtMfcUpdateCmdUIEvent(unsigned id) : QEvent(QEvent::Type(kType)), m_nID(id) {}
    unsigned m_nID;
};

class CqtMfcCommandEvent : public QEvent {
  public:
    static constexpr int kType = 1002;
    explicit CqtMfcCommandEvent(unsigned id) : QEvent(QEvent::Type(kType)), m_nID(id) {}
    unsigned m_nID;
};

// A control's notification: identifier, notification code and a value.
class CqtMfcCtrlCmdEvent : public QEvent {
  public:
    static constexpr int kType = 1003;
    CqtMfcCtrlCmdEvent(unsigned id, int code, LPARAM value)
        : QEvent(QEvent::Type(kType)), m_nID(id), m_nCode(code), m_value(value) {}
    unsigned m_nID;
    int m_nCode;
    LPARAM m_value;
};

// Any other message: its number and its two words.
class CqtMfcCustomEvent : public QEvent {
  public:
    static constexpr int kType = 1100;
    CqtMfcCustomEvent(unsigned message, WPARAM wParam, LPARAM lParam)
        : QEvent(QEvent::Type(kType)), m_nID(message), m_wParam(wParam), m_lParam(lParam) {}
    unsigned m_nID;
    WPARAM m_wParam;
    LPARAM m_lParam;
};
