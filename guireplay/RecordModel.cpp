#include "guireplay/RecordModel.h"

#include <QEvent>

namespace guireplay {

EventKind KindOf(int eventType) {
    switch (eventType) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            return EventKind::Mouse;
        case QEvent::Wheel:
            return EventKind::Wheel;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return EventKind::Key;
        case QEvent::ContextMenu:
            return EventKind::ContextMenu;
        case QEvent::InputMethod:
            return EventKind::InputMethod;
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            return EventKind::Focus;
        default:
            return EventKind::Other;
    }
}

}  // namespace guireplay
