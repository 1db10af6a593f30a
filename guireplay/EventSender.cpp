#include "guireplay/EventSender.h"

#include <QtTest/qtestspontaneevent.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>
#include <memory>

// The toolkit's own hook that offers a key press to the shortcuts first, as a real key does.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* o, ulong timestamp, int k,
                                               Qt::KeyboardModifiers mods, const QString& text,
                                               bool autorep, ushort count);

namespace guireplay {

namespace {

std::unique_ptr<QEvent> MakeMouse(QWidget* receiver, const RecordedEvent& e, QPoint pos) {
    const QPointF local(pos);
    return std::make_unique<QMouseEvent>(
        QEvent::Type(e.type), local, QPointF(receiver->mapTo(receiver->window(), pos)),
        QPointF(receiver->mapToGlobal(pos)), Qt::MouseButton(e.button), Qt::MouseButtons(e.buttons),
        Qt::KeyboardModifiers(e.modifiers), Qt::MouseEventSource(e.source));
}

std::unique_ptr<QEvent> MakeWheel(QWidget* receiver, const RecordedEvent& e, QPoint pos) {
    return std::make_unique<QWheelEvent>(
        QPointF(pos), QPointF(receiver->mapToGlobal(pos)), e.pixelDelta, e.angleDelta,
        Qt::MouseButtons(e.buttons), Qt::KeyboardModifiers(e.modifiers), Qt::ScrollPhase(e.phase),
        false, Qt::MouseEventSource(e.source));
}

std::unique_ptr<QEvent> MakeKey(const RecordedEvent& e) {
    return std::make_unique<QKeyEvent>(
        QEvent::Type(e.type), e.key, Qt::KeyboardModifiers(e.modifiers), e.nativeScanCode,
        e.nativeVirtualKey, e.nativeModifiers, e.text, e.autoRepeat, ushort(e.count));
}

std::unique_ptr<QEvent> MakeInputMethod(const RecordedEvent& e) {
    QList<QInputMethodEvent::Attribute> attributes;
    for (const ImAttribute& a : e.attributes)
        attributes << QInputMethodEvent::Attribute(QInputMethodEvent::AttributeType(a.type),
                                                   a.start, a.length, a.value);
    auto im = std::make_unique<QInputMethodEvent>(e.preedit, attributes);
    im->setCommitString(e.commit, e.replaceStart, e.replaceLength);
    return im;
}

std::unique_ptr<QEvent> Make(QWidget* receiver, const RecordedEvent& e, QPoint pos) {
    switch (KindOf(e.type)) {
        case EventKind::Mouse:
            return MakeMouse(receiver, e, pos);
        case EventKind::Wheel:
            return MakeWheel(receiver, e, pos);
        case EventKind::Key:
            return MakeKey(e);
        case EventKind::ContextMenu:
            return std::make_unique<QContextMenuEvent>(QContextMenuEvent::Reason(e.reason), pos,
                                                       receiver->mapToGlobal(pos),
                                                       Qt::KeyboardModifiers(e.modifiers));
        case EventKind::InputMethod:
            return MakeInputMethod(e);
        default:
            return nullptr;
    }
}

}  // namespace

bool SendRecordedEvent(QWidget* receiver, const RecordedEvent& e, QPoint pos, bool async) {
    if (KindOf(e.type) == EventKind::Focus) {
        if (e.type == QEvent::FocusIn) receiver->setFocus(Qt::FocusReason(e.focusReason));
        return true;
    }
    std::unique_ptr<QEvent> event = Make(receiver, e, pos);
    if (!event) return false;
    QSpontaneKeyEvent::setSpontaneous(event.get());
    if (e.type == QEvent::KeyPress) {
        if (receiver->focusPolicy() != Qt::NoFocus && !receiver->hasFocus())
            receiver->setFocus(Qt::OtherFocusReason);
        if (qt_sendShortcutOverrideEvent(receiver, ulong(e.timestamp), e.key,
                                         Qt::KeyboardModifiers(e.modifiers), e.text, e.autoRepeat,
                                         ushort(e.count)))
            return true;
    }
    if (async) {
        QCoreApplication::postEvent(receiver, event.release());
    } else {
        QApplication::instance()->notify(receiver, event.get());
    }
    return true;
}

}  // namespace guireplay
