// Drives the real program while it records, in place of a person, so that the sessions kept in
// tests/data/guireplay/ndd2qfx/ can be recorded again the same way:
//   NDD2QFX_DRIVE=<session folder>/drive.txt RECFIXPATH=<folder>/session
//   QT_QPA_PLATFORM=offscreen build/tools/ndd2qfx_session_driver
// started in a folder that holds the session's inputs. drive.txt holds one step a line,
// "VERB WINDOW ARGS...", WINDOW being a control of the window the step acts on ("-" for a
// message box; the forms name their controls "ui_" and the symbol):
//   click W CONTROL | type W CONTROL TEXT | key W CONTROL Down|Return | tab W INDEX
//   row W LIST ROW [corner] | answer - Yes|No | checkpoint W
// Each step waits for its window, then clicks, types or takes a check point as a user would;
// the recorder sees the events as it sees a person's.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTabBar>
#include <QTimer>
#include <QWidget>
#include <QtTest/QTest>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

struct DriveStep {
    QString windowHolding;  // empty: a message box
    std::function<void(QWidget*)> act;
};

QWidget* Find(QWidget* window, const QString& name) {
    auto* child = window->findChild<QWidget*>(name);
    return child ? child : window->findChild<QWidget*>(QStringLiteral("ui_") + name);
}

QWidget* Child(QWidget* window, const QString& name) {
    QWidget* child = Find(window, name);
    if (!child) std::fprintf(stderr, "driver: no control %s\n", qPrintable(name));
    return child;
}

QWidget* WindowHolding(const QString& name) {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    if (!window) return nullptr;
    if (name.isEmpty()) return qobject_cast<QMessageBox*>(window);
    return Find(window, name) ? window : nullptr;
}

// Clicks a row of a list in its middle, or near its top left corner where a list may keep a
// check box.
void ClickRow(QWidget* w, const QString& list, int row, bool corner) {
    auto* view = qobject_cast<QAbstractItemView*>(Child(w, list));
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      corner ? rect.topLeft() + QPoint(4, 4) : rect.center());
}

DriveStep ParseStep(const QStringList& w) {
    const QString verb = w.value(0), control = w.value(2), arg = w.value(3);
    DriveStep step{w.value(1) == "-" ? QString() : w.value(1), {}};
    if (verb == "click") {
        step.act = [=](QWidget* win) { QTest::mouseClick(Child(win, control), Qt::LeftButton); };
    } else if (verb == "type") {
        step.act = [=](QWidget* win) {
            QTest::mouseClick(Child(win, control), Qt::LeftButton);
            QTest::keyClicks(Child(win, control), arg);
        };
    } else if (verb == "key") {
        const Qt::Key key = arg == "Down" ? Qt::Key_Down : Qt::Key_Return;
        step.act = [=](QWidget* win) { QTest::keyClick(Child(win, control), key); };
    } else if (verb == "row") {
        const bool corner = w.value(4) == "corner";
        step.act = [=](QWidget* win) { ClickRow(win, control, arg.toInt(), corner); };
    } else if (verb == "tab") {
        step.act = [=](QWidget* win) {
            QTabBar* bar = win->findChild<QTabBar*>();
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(control.toInt()).center());
        };
    } else if (verb == "answer") {
        const auto button = control == "Yes" ? QMessageBox::Yes : QMessageBox::No;
        step.act = [=](QWidget* win) {
            QTest::mouseClick(static_cast<QMessageBox*>(win)->button(button), Qt::LeftButton);
        };
    } else if (verb == "checkpoint") {
        step.act = [](QWidget* win) {
            QTest::keyClick(win, Qt::Key_F12, Qt::ControlModifier | Qt::ShiftModifier);
        };
    } else {
        std::fprintf(stderr, "driver: no step %s\n", qPrintable(verb));
    }
    return step;
}

std::vector<DriveStep>& Steps() {
    static std::vector<DriveStep> steps;
    return steps;
}

// Runs step `at` once its window is in front; the next step is due before this one acts, as
// an action may open a modal window whose loop the later steps run in.
void RunStep(size_t at) {
    if (at >= Steps().size()) return;
    QWidget* window = WindowHolding(Steps()[at].windowHolding);
    if (!window) {
        QTimer::singleShot(100, [at] { RunStep(at); });
        return;
    }
    QTimer::singleShot(300, [at] { RunStep(at + 1); });
    if (Steps()[at].act) Steps()[at].act(window);
}

void StartDriving() {
    const char* path = std::getenv("NDD2QFX_DRIVE");
    if (!path) return;
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        std::fprintf(stderr, "driver: cannot read %s\n", path);
        return;
    }
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
        Steps().push_back(ParseStep(line.split(' ', Qt::SkipEmptyParts)));
    QTimer::singleShot(500, [] { RunStep(0); });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(StartDriving)
