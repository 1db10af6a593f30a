// Drives the real program while it records, in place of a person, so that the sessions kept in
// tests/data/guireplay/ndd2qfx/ can be recorded again the same way:
//   NDD2QFX_DRIVE=<session> RECFIXPATH=<folder>/session QT_QPA_PLATFORM=offscreen
//   build/tests/ndd2qfx_session_driver
// started in a folder that holds the session's inputs. Each step waits for the window that holds
// a named control (the forms name theirs "ui_" and the symbol), then clicks, types or takes a check
// point as a user would; the recorder sees the events as it sees a person's.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QMessageBox>
#include <QTabBar>
#include <QTimer>
#include <QWidget>
#include <QtTest/QTest>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

struct DriveStep {
    const char* windowHolding;  // a control of the window the step acts on
    std::function<void(QWidget*)> act;
};

QWidget* Find(QWidget* window, const char* name) {
    auto* child = window->findChild<QWidget*>(QLatin1String(name));
    return child ? child : window->findChild<QWidget*>(QStringLiteral("ui_") + QLatin1String(name));
}

QWidget* Child(QWidget* window, const char* name) {
    QWidget* child = Find(window, name);
    if (!child) std::fprintf(stderr, "driver: no control %s\n", name);
    return child;
}

QWidget* WindowHolding(const char* name) {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    if (!window) return nullptr;
    // No control named: the step acts on a message box.
    if (!name) return qobject_cast<QMessageBox*>(window);
    return Find(window, name) ? window : nullptr;
}

DriveStep Click(const char* window, const char* control) {
    return {window,
            [control](QWidget* w) { QTest::mouseClick(Child(w, control), Qt::LeftButton); }};
}

DriveStep Type(const char* window, const char* control, const char* text) {
    return {window, [control, text](QWidget* w) {
                QWidget* edit = Child(w, control);
                QTest::mouseClick(edit, Qt::LeftButton);
                QTest::keyClicks(edit, QString::fromUtf8(text));
            }};
}

DriveStep Key(const char* window, const char* control, Qt::Key key) {
    return {window, [control, key](QWidget* w) { QTest::keyClick(Child(w, control), key); }};
}

// Clicks a row of a list in its middle, or near its top left corner where a list may keep a
// check box.
DriveStep ClickRow(const char* window, const char* list, int row, bool corner = false) {
    return {window, [list, row, corner](QWidget* w) {
                auto* view = qobject_cast<QAbstractItemView*>(Child(w, list));
                const QRect rect = view->visualRect(view->model()->index(row, 0));
                const QPoint at = corner ? rect.topLeft() + QPoint(4, 4) : rect.center();
                QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
            }};
}

DriveStep ClickTab(const char* window, int index) {
    return {window, [index](QWidget* w) {
                QTabBar* bar = w->findChild<QTabBar*>();
                QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
            }};
}

// Answers a message box with one of its buttons.
DriveStep Answer(QMessageBox::StandardButton button) {
    return {nullptr, [button](QWidget* w) {
                QTest::mouseClick(static_cast<QMessageBox*>(w)->button(button), Qt::LeftButton);
            }};
}

DriveStep CheckPoint(const char* window) {
    return {window, [](QWidget* w) {
                QTest::keyClick(w, Qt::Key_F12, Qt::ControlModifier | Qt::ShiftModifier);
            }};
}

const char* const kMain = "IDC_EDIT_INPUT";
const char* const kSettings = "IDC_NET_CHOICE";
const char* const kPicker = "IDC_COLOR_NAME";
const char* const kFileDialog = "fileNameEdit";
const char* const kIbisList = "IDC_CTRL_LIST_IBIS_FILE_SELECTION";
const char* const kPinMap = "IDC_LIST_CTRL_MAKE_GROUPS";

const std::map<std::string, std::vector<DriveStep>>& Sessions() {
    static const std::map<std::string, std::vector<DriveStep>> sessions = {
        {"translate",
         {Type(kMain, kMain, "board.ndd"), Type(kMain, "IDC_EDIT_OUTPUT", "board.qfx"),
          CheckPoint(kMain), Click(kMain, "IDOK"), Answer(QMessageBox::No)}},
        {"settings_colours",
         {Type(kMain, kMain, "board.ndd"), Type(kMain, "IDC_EDIT_OUTPUT", "board.qfx"),
          Click(kMain, "IDC_PROPERTY"), Click(kSettings, "IDC_APPEND_NET_NAME"),
          Click(kSettings, "IDC_ELIMINATE"), ClickTab(kSettings, 1),
          ClickRow(kSettings, "IDC_NET_LIST", 0), ClickRow(kSettings, "IDC_NET_CHOICE", 0),
          Key(kPicker, kPicker, Qt::Key_Down), Key(kPicker, kPicker, Qt::Key_Down),
          CheckPoint(kPicker), Click(kPicker, "IDOK"), CheckPoint(kSettings),
          Click(kSettings, "IDOK"), CheckPoint(kMain), Click(kMain, "IDCANCEL")}},
        {"ibis_pins",
         {Type(kMain, kMain, "board.ndd"), Type(kMain, "IDC_EDIT_OUTPUT", "board.qfx"),
          Click(kMain, "IDC_PROPERTY"), ClickTab(kSettings, 2),
          ClickRow(kSettings, kIbisList, 0, true),
          Type(kFileDialog, kFileDialog, "SN74LVC1G14.ibs"),
          Key(kFileDialog, kFileDialog, Qt::Key_Return), ClickRow(kSettings, kIbisList, 0),
          Click(kSettings, "IDC_BUTTON_EDIT_IBIS_FILE"), Click(kPinMap, "IDC_BUTTON_UNCHECK_ALL"),
          CheckPoint(kPinMap), Click(kPinMap, "IDOK"), Click(kSettings, "IDOK"),
          Click(kMain, "IDCANCEL")}},
        {"load_log",
         {Click(kMain, "IDC_LOAD_LOG"), Type(kFileDialog, kFileDialog, "rerun.log"),
          Key(kFileDialog, kFileDialog, Qt::Key_Return), Click(kMain, "IDC_PROPERTY"),
          CheckPoint(kSettings), Click(kSettings, "IDOK"), Click(kMain, "IDOK"),
          Answer(QMessageBox::No)}},
    };
    return sessions;
}

// Runs step `at` once its window is in front; the next step is due before this one acts, as
// an action may open a modal window whose loop the later steps run in.
void RunStep(const std::vector<DriveStep>* steps, size_t at) {
    if (at >= steps->size()) return;
    QWidget* window = WindowHolding((*steps)[at].windowHolding);
    if (!window) {
        QTimer::singleShot(100, [steps, at] { RunStep(steps, at); });
        return;
    }
    QTimer::singleShot(300, [steps, at] { RunStep(steps, at + 1); });
    (*steps)[at].act(window);
}

void StartDriving() {
    const char* name = std::getenv("NDD2QFX_DRIVE");
    if (!name) return;
    auto found = Sessions().find(name);
    if (found == Sessions().end()) {
        std::fprintf(stderr, "driver: no session %s\n", name);
        return;
    }
    const std::vector<DriveStep>* steps = &found->second;
    QTimer::singleShot(500, [steps] { RunStep(steps, 0); });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(StartDriving)
