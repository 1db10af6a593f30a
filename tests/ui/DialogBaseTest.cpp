// The dialog base on a small form: making the form once, wrappers on demand, the exchange
// rules, commands from the controls, and the ends of a modal run.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <string>

#include "TestForm.h"
#include "ui/BridgeEvents.h"
#include "ui/CmdUI.h"
#include "ui/DataExchange.h"
#include "ui/QtEventBridge.h"
#include "ui/UiControls.h"
#include "ui/UiDialog.h"

namespace {

class CTestDlg : public CUiDialog {
  public:
    CTestDlg() : CUiDialog(kTestFormId) {}
    const CClassFunctionCall* GetChainHead() const override {
        static const CHandlerChain chain(
            CUiDialog::GetChainHead(),
            OnControl(kCodeEditChange, kEditText, UI_FN(&CTestDlg::OnEditChange)),
            OnCommand(kCheck, UI_FN(&CTestDlg::OnCheck)),
            OnControl(kCodeDropDown, kCombo, UI_FN(&CTestDlg::OnDropDown)),
            OnControl(kCodeCloseUp, kCombo, UI_FN(&CTestDlg::OnCloseUp)),
            OnMessage(kMsgKickIdle, UI_FN(&CTestDlg::OnKickIdle)),
            OnUpdateCommandUI(kLabel, UI_FN(&CTestDlg::OnUpdateLabel)));
        return chain.Head();
    }
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Control(dx, kCombo, m_combo);
        DDX_Text(dx, kEditText, m_strText);
        DDX_Text(dx, kEditNumber, m_dbNumber);
        DDX_Check(dx, kCheck, m_nCheck);
    }
    QLineEdit* Edit(int id) { return static_cast<QLineEdit*>(GetDlgItem(id)->GetHandle()); }

    std::string m_strText;
    double m_dbNumber = 0.0;
    int m_nCheck = 0;
    int m_nChanges = 0;
    int m_nChecks = 0;
    std::string m_strList;
    CUiComboBox m_combo;
    CUiDialog* m_pModalSeen = nullptr;

  private:
    void OnEditChange() { ++m_nChanges; }
    void OnDropDown() { m_strList += "open;"; }
    void OnCloseUp() { m_strList += "close;"; }
    void OnKickIdle() { m_strList += "idle;"; }
    void OnUpdateLabel(CCmdUI* ui) { ui->Enable(false); }
    void OnCheck() {
        ++m_nChecks;
        m_pModalSeen = g_pModalDialog;
    }
};

struct DialogBase : testing::Test {
    TestResources resources;
    CTestDlg dlg;
};

TEST_F(DialogBase, TheFormIsMadeOnceAndWrappedByWidgetClass) {
    ASSERT_TRUE(dlg.Create(kTestFormId));
    QWidget* form = dlg.GetHandle();
    EXPECT_TRUE(dlg.Create(kTestFormId, nullptr, true, "QWidget"));
    EXPECT_EQ(dlg.GetHandle(), form);
    EXPECT_TRUE(form->inherits("QDialog"));
    size_t before = dlg.Controls().size();
    EXPECT_EQ(dlg.GetDlgItem(4711), nullptr);
    EXPECT_EQ(dlg.Controls().size(), before);
    EXPECT_NE(dynamic_cast<CUiEdit*>(dlg.GetDlgItem(kEditText)), nullptr);
    for (int id : {kCheck, kIdOk}) EXPECT_NE(dynamic_cast<CUiButton*>(dlg.GetDlgItem(id)), nullptr);
    EXPECT_NE(dynamic_cast<CUiStatic*>(dlg.GetDlgItem(kLabel)), nullptr);
    // The combo box is bound to the dialog's member by the exchange.
    EXPECT_EQ(dlg.GetDlgItem(kCombo), &dlg.m_combo);
    EXPECT_EQ(dlg.GetDlgItem(kEditText), dlg.GetDlgItem(kEditText));
}

TEST_F(DialogBase, NumbersShowWithPercentGAndUnreadableTextSavesZero) {
    ASSERT_TRUE(dlg.Create(kTestFormId));
    const std::pair<double, const char*> loads[] = {
        {0.1, "0.1"}, {1000000.0, "1e+06"}, {-2.5, "-2.5"}, {0.0, "0"}};
    for (const auto& [value, shown] : loads) {
        dlg.m_dbNumber = value;
        dlg.UpdateData(false);
        EXPECT_EQ(dlg.GetDlgItemText(kEditNumber), shown);
    }
    const std::pair<const char*, double> saves[] = {
        {"abc", 0.0}, {"2.5", 2.5}, {"1e+06", 1000000.0}, {"", 0.0}};
    for (const auto& [text, saved] : saves) {
        dlg.m_dbNumber = 7.0;
        dlg.SetDlgItemText(kEditNumber, text);
        dlg.UpdateData(true);
        EXPECT_EQ(dlg.m_dbNumber, saved) << text;
    }
}

TEST_F(DialogBase, LoadRaisesNoChangeNotificationButTheUserDoes) {
    ASSERT_TRUE(dlg.Create(kTestFormId));  // not modal: initialised, commands routed
    dlg.m_strText = "board.ndd";
    dlg.m_nCheck = 1;
    dlg.UpdateData(false);
    EXPECT_EQ(dlg.m_nChanges, 0);
    EXPECT_FALSE(dlg.Edit(kEditText)->signalsBlocked());
    EXPECT_EQ(dlg.IsDlgButtonChecked(kCheck), 1);
    dlg.Edit(kEditText)->setText("other.ndd");
    EXPECT_EQ(dlg.m_nChanges, 1);
    static_cast<CUiButton*>(dlg.GetDlgItem(kCheck))->Click();
    dlg.UpdateData(true);
    EXPECT_EQ(dlg.m_strText, "other.ndd");
    EXPECT_EQ(dlg.m_nCheck, 0);
    EXPECT_EQ(dlg.m_nChecks, 1);
}

TEST_F(DialogBase, ComboBoxListAndBridgeEventsReachTheChain) {
    ASSERT_TRUE(dlg.Create(kTestFormId));
    EXPECT_TRUE(dlg.HasIdleHandler());
    dlg.m_combo.AddString("red");
    dlg.m_combo.ShowDropDown(true);
    dlg.m_combo.ShowDropDown(false);
    QObject* bridge = CQtEventBridge::Of(dlg.GetHandle());
    CqtMfcUpdateCmdUIEvent update(kLabel);
    CqtMfcCustomEvent idle(kMsgKickIdle, 0, 0);
    QApplication::sendEvent(bridge, &update);
    QApplication::sendEvent(bridge, &idle);
    EXPECT_FALSE(dlg.GetDlgItem(kLabel)->IsWindowEnabled());
    EXPECT_EQ(dlg.m_strList, "open;close;idle;");
}

// Runs the dialog modally while action plays the user.
template <class Action>
int RunWhile(CTestDlg& dlg, Action action) {
    QTimer::singleShot(0, [&] { action(); });
    return dlg.DoModal();
}

TEST_F(DialogBase, EscapeEndsTheDialogThroughItsCancelControl) {
    for (bool cancelEnabled : {true, false}) {
        CTestDlg modal;
        ResetLastCommandName();
        int result = RunWhile(modal, [&] {
            modal.GetDlgItem(kIdCancel)->EnableWindow(cancelEnabled);
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QApplication::sendEvent(modal.GetDlgItem(kEditText)->GetHandle(), &escape);
        });
        EXPECT_EQ(result, kIdCancel);  // a top-level form ends even with Cancel disabled
        EXPECT_EQ(LastCommandName(), "OnCancel");
    }
    EXPECT_EQ(g_pModalDialog, nullptr);
}

TEST_F(DialogBase, OkSavesTheControlsAndEndsTheRun) {
    dlg.m_dbNumber = 0.5;
    int result = RunWhile(dlg, [&] {
        static_cast<CUiButton*>(dlg.GetDlgItem(kCheck))->Click();
        dlg.SetDlgItemText(kEditNumber, "3.25");
        static_cast<CUiButton*>(dlg.GetDlgItem(kIdOk))->Click();
    });
    EXPECT_EQ(result, kIdOk);
    EXPECT_EQ(dlg.m_dbNumber, 3.25);
    EXPECT_EQ(dlg.m_nCheck, 1);
    EXPECT_EQ(dlg.m_pModalSeen, &dlg);
    EXPECT_EQ(g_pModalDialog, nullptr);
}

}  // namespace
