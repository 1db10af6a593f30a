#include "SampleSession.h"

#include <QEvent>

using namespace guireplay;

namespace {

WidgetLocation Location(const QString& target) {
    WidgetLocation loc;
    loc.topIsMain = true;
    loc.levels.push_back({"QDialog", "sampleDialog", "Sample\nTwo lines", QPoint(), true});
    loc.levels.push_back({"QWidget", "", "", QPoint(9, 9), false});
    loc.levels.push_back({"QPushButton", target, "OK\r", QPoint(20, 30), false});
    loc.ptRefToTop = QPoint(40, 50);
    return loc;
}

Step MakeStep(int type, const QString& target) {
    Step s;
    s.location = Location(target);
    s.event.type = type;
    return s;
}

}  // namespace

Session SampleSession() {
    Session session;
    SystemInfo& sys = session.system;
    sys = {6,
           "Debian GNU/Linux 12",
           2,
           8589934592ULL,
           QPoint(96, 96),
           QSize(1920, 1080),
           "RECPATH=/tmp",
           "ndd2qfx 1.0.0",
           QSize(640, 480)};
    Step press = MakeStep(QEvent::MouseButtonPress, "okButton");
    press.event.pos = QPointF(5, 6);
    press.event.wndPos = QPointF(45, 56);
    press.event.globalPos = QPointF(145, 156);
    press.event.button = press.event.buttons = 1;
    press.event.timestamp = 1000;
    press.delay = 3500;
    press.hasRealPos = true;
    press.realPos = QPointF(1.5, -2.25);
    Step release = press;
    release.event.type = QEvent::MouseButtonRelease;
    release.event.buttons = 0;
    release.delay = 80;
    Step wheel = MakeStep(QEvent::Wheel, "okButton");
    wheel.event.pos = QPointF(1, 2);
    wheel.event.angleDelta = QPoint(0, 120);
    wheel.event.delta = 120;
    wheel.event.orientation = 2;
    Step key = MakeStep(QEvent::KeyPress, "nameEdit");
    key.event.key = 'A';
    key.event.text = "a\nb";
    key.event.nativeScanCode = 38;
    key.hasExtraInfo = true;
    key.extraInfo = "InitialText=first\nsecond";
    Step keyUp = key;
    keyUp.event.type = QEvent::KeyRelease;
    keyUp.hasExtraInfo = false;
    keyUp.extraInfo.clear();
    Step menu = MakeStep(QEvent::ContextMenu, "okButton");
    menu.event.pos = QPointF(3, 4);
    menu.event.reason = 1;
    menu.async = true;
    Step im = MakeStep(QEvent::InputMethod, "nameEdit");
    im.event.attributes.push_back({1, 0, 2, "u"});
    im.event.preedit = "pre";
    im.event.commit = "done";
    Step focus = MakeStep(QEvent::FocusIn, "nameEdit");
    focus.event.focusReason = 7;
    Step check = MakeStep(QEvent::KeyPress, "okButton");
    check.checkPoint = true;
    check.event.key = Qt::Key_F12;
    check.event.modifiers = Qt::ControlModifier | Qt::ShiftModifier;
    session.steps = {press, release, wheel, key, keyUp, menu, im, focus, check};
    return session;
}
