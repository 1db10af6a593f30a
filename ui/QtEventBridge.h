#pragma once
// Carries the toolkit events of a form and its controls to a handler chain: button presses,
// combo-box choices and edit changes become bridge events, and the bridge events become
// commands and messages of the chain. Paint and mouse moves of the form, and the idle beat of
// a dialog with idle handlers, reach the chain as their messages.
#include <QObject>
#include <QTimer>

class CCmdTargetBase;
class QWidget;

class CQtEventBridge : public QObject {
  public:
    // The bridge of a form, made on first use.
    static CQtEventBridge* Of(QWidget* form);
    void SetTarget(CCmdTargetBase* target) { m_pTarget = target; }
    // Sends kick-idle and idle-update messages while the form runs.
    void StartIdle();

    bool event(QEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* e) override;

  private:
    explicit CQtEventBridge(QWidget* form);
    void ConnectControls(QWidget* form);
    void SendIdle();
    CCmdTargetBase* m_pTarget = nullptr;
    QTimer m_idle;
};
