// Command and window-message dispatch over handler chains: matching by identifier range and
// code, the test-only mode, the last-command record and the base chain as the last link.
#include <gtest/gtest.h>

#include <string>

#include "ui/CmdTarget.h"
#include "ui/CmdUI.h"

namespace {

class CBase : public CCmdTargetBase {
  public:
    const CClassFunctionCall* GetChainHead() const override {
        static const CHandlerChain chain(CCmdTargetBase::GetChainHead(),
                                         OnCommand(10, UI_FN(&CBase::OnFoo)),
                                         OnCommandRange(20, 29, UI_FN(&CBase::OnRange)),
                                         OnCommandArg(30, 5, UI_FN(&CBase::OnArg)),
                                         OnUpdateCommandUI(10, UI_FN(&CBase::OnUpdateFoo)),
                                         OnControl(kCodeSelChange, 40, UI_FN(&CBase::OnSel)),
                                         OnCommand(41, &CBase::OnTaken, "CBase::OnTaken"));
        return chain.Head();
    }
    std::string calls;

  protected:
    void OnFoo() { calls += "OnFoo;"; }
    void OnRange(unsigned id) { calls += "OnRange " + std::to_string(id) + ";"; }
    void OnArg(void* arg) { calls += "OnArg " + *static_cast<std::string*>(arg) + ";"; }
    void OnUpdateFoo(CCmdUI* ui) {
        ui->Enable(false);
        calls += "OnUpdateFoo;";
    }
    void OnSel() { calls += "OnSel;"; }
    bool OnTaken() {
        calls += "OnTaken;";
        return true;
    }
};

class CDerived : public CBase {
  public:
    const CClassFunctionCall* GetChainHead() const override {
        static const CHandlerChain chain(
            CBase::GetChainHead(), OnCommand(21, UI_FN(&CDerived::OnOwn)),
            OnMessage(kMsgPaint, UI_FN(&CDerived::OnPaint)),
            OnMessage(kMsgMouseMove, UI_FN(&CDerived::OnMouseMove)),
            OnMessage(513, UI_FN(&CDerived::OnWords)), OnMessage(600, UI_FN(&CDerived::OnTwoWords)),
            OnMessage(601, UI_FN(&CDerived::OnWord)),
            OnNotify(kNotifyClick, 70, UI_FN(&CDerived::OnClick)));
        return chain.Head();
    }
    LRESULT DefWindowProc(unsigned message, WPARAM, LPARAM) override {
        calls += "default " + std::to_string(message) + ";";
        return 0;
    }

  private:
    void OnOwn() { calls += "OnOwn;"; }
    void OnPaint() { calls += "OnPaint;"; }
    void OnMouseMove(unsigned flags, CPoint p) {
        calls += "move " + std::to_string(flags) + " " + std::to_string(p.x) + " " +
                 std::to_string(p.y) + ";";
    }
    void OnWords(unsigned low, unsigned high, CPoint p) {
        calls += "words " + std::to_string(low) + " " + std::to_string(high) + " " +
                 std::to_string(p.x) + ";";
    }
    LRESULT OnTwoWords(WPARAM w, LPARAM l) { return static_cast<LRESULT>(w) + l; }
    void OnWord(WPARAM w) { calls += "word " + std::to_string(w) + ";"; }
    void OnClick(NMHDR* n, LRESULT* result) {
        calls += "click " + std::to_string(n->idFrom) + ";";
        *result = 9;
    }
};

struct CommandCase {
    unsigned id;
    int code;
    bool testOnly;
    bool handled;
    const char* calls;
    const char* lastCommand;
};

TEST(CmdRouting, CommandAndUpdateDispatchByIdentifierAndCode) {
    const CommandCase cases[] = {
        {10, kCodeClicked, false, true, "OnFoo;", "OnFoo"},
        {21, kCodeClicked, false, true, "OnOwn;", "OnOwn"},  // the class's own entry first
        {25, kCodeClicked, false, true, "OnRange 25;", "OnRange"},
        {29, kCodeClicked, false, true, "OnRange 29;", "OnRange"},
        {30, 5, false, true, "OnArg x;", ""},  // not a plain command: no record
        {30, kCodeClicked, false, false, "", ""},
        {40, kCodeSelChange, false, true, "OnSel;", ""},
        {41, kCodeClicked, false, true, "OnTaken;", "CBase::OnTaken"},  // no "&": kept whole
        {99, kCodeClicked, false, false, "", ""},
        {10, kCodeClicked, true, true, "", ""},
        {99, kCodeClicked, true, false, "", ""},
    };
    for (const CommandCase& c : cases) {
        SCOPED_TRACE(std::to_string(c.id) + " code " + std::to_string(c.code));
        CDerived target;
        ResetLastCommandName();
        std::string arg = "x";
        EXPECT_EQ(target.OnCmdMsg(c.id, c.code, &arg, c.testOnly), c.handled);
        EXPECT_EQ(target.calls, c.calls);
        EXPECT_EQ(LastCommandName(), c.lastCommand);
    }
    // An update request reaches its handler with the update object.
    CDerived target;
    CCmdUI ui(10);
    EXPECT_TRUE(target.OnCmdMsg(10, kCodeUpdateCommandUI, &ui, false));
    EXPECT_EQ(target.calls, "OnUpdateFoo;");
    EXPECT_FALSE(ui.m_bEnabled);
}

struct MessageCase {
    unsigned message;
    WPARAM wParam;
    LPARAM lParam;
    bool handled;
    const char* calls;
    LRESULT result;
};

TEST(CmdRouting, WindowMessageDispatchBySignature) {
    NMHDR click{nullptr, 70, kNotifyClick};
    NMHDR otherControl{nullptr, 71, kNotifyClick};
    const MessageCase cases[] = {
        {kMsgPaint, 0, 0, true, "OnPaint;", 0},
        {kMsgMouseMove, 1, MakeLParam(-3, 7), true, "move 1 -3 7;", 0},
        {513, MakeWParam(2, 3), MakeLParam(4, 5), true, "words 2 3 4;", 0},
        {600, 2, 3, true, "", 5},
        {601, 0x12345678, 0, true, "word 305419896;default 601;", 0},
        {kMsgNotify, 0, reinterpret_cast<LPARAM>(&click), true, "click 70;", 9},
        {kMsgNotify, 0, reinterpret_cast<LPARAM>(&otherControl), false, "", 0},
        {kMsgCommand, MakeWParam(10, kCodeClicked), 0, true, "OnFoo;", 0},
        {999, 0, 0, false, "", 0},
    };
    for (const MessageCase& c : cases) {
        SCOPED_TRACE(c.message);
        CDerived target;
        LRESULT result = 0;
        EXPECT_EQ(target.OnWndMsg(c.message, c.wParam, c.lParam, &result), c.handled);
        EXPECT_EQ(target.calls, c.calls);
        EXPECT_EQ(result, c.result);
        EXPECT_EQ(GetCurrentMessage(), nullptr);
    }
}

}  // namespace
