#pragma once
// A window as the dialogs see it: a wrapper around one toolkit widget, reached by control
// identifier. Text, enabling, showing and check state are forwarded to the widget.
#include <QPointer>
#include <QWidget>
#include <string>

#include "ui/CmdTarget.h"

class IHelpTopics {
  public:
    virtual ~IHelpTopics() = default;
    // The help topic of the window; 0 when it has none.
    virtual int GetHelpTopic() const { return 0; }
};

class CUiWnd : public IHelpTopics, public CCmdTargetBase {
  public:
    CUiWnd() = default;
    explicit CUiWnd(QWidget* widget) { Attach(widget); }
    ~CUiWnd() override;
    CUiWnd(const CUiWnd&) = delete;
    CUiWnd& operator=(const CUiWnd&) = delete;

    // The widget, null until the window exists (or after the toolkit destroyed it).
    QWidget* GetHandle() const { return m_handle.data(); }
    bool IsCreated() const { return m_created != 0; }

    // Binds the wrapper to a widget, so that FromHandle finds it.
    void Attach(QWidget* widget);
    QWidget* Detach();
    // The wrapper bound to a widget, or null.
    static CUiWnd* FromHandle(const QWidget* widget);

    int GetDlgCtrlID() const { return m_nCtrlId; }
    void SetDlgCtrlID(int id) { m_nCtrlId = id; }

    virtual void SetWindowText(const std::string& text);
    virtual std::string GetWindowText() const;
    void EnableWindow(bool enable = true);
    bool IsWindowEnabled() const;
    void ShowWindow(bool show);
    bool IsWindowVisible() const;
    // 1 checked, 0 not (2 partly, for three-state boxes); 0 for a widget with no check.
    virtual int GetCheck() const;
    virtual void SetCheck(int state);
    void SetFocus();
    void Invalidate();

  protected:
    QPointer<QWidget> m_handle;
    int m_created = 0;
    int m_nCtrlId = 0;
};
