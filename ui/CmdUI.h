#pragma once
// The update request: a handler bound to an update entry sets the state of one control or menu
// item through it. CQtCmdUI applies the state to a toolkit widget.
#include <string>

class QWidget;

class CCmdUI {
  public:
    explicit CCmdUI(unsigned id) : m_nID(id) {}
    virtual ~CCmdUI() = default;

    virtual void Enable(bool on = true) { m_bEnabled = on; }
    virtual void SetCheck(int state = 1) { m_nCheck = state; }
    virtual void SetText(const std::string& text) { m_strText = text; }

    unsigned m_nID;
    bool m_bEnabled = true;
    int m_nCheck = 0;
    std::string m_strText;
};

class CQtCmdUI : public CCmdUI {
  public:
    CQtCmdUI(unsigned id, QWidget* widget) : CCmdUI(id), m_pWidget(widget) {}
    void Enable(bool on = true) override;
    void SetCheck(int state = 1) override;
    void SetText(const std::string& text) override;

  private:
    QWidget* m_pWidget;
};
