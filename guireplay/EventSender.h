#pragma once
// Sends a recorded event to a live widget as the window system would have delivered it.
#include <QPoint>

#include "guireplay/RecordModel.h"

class QWidget;

namespace guireplay {

// pos is where the event goes in receiver. Async posts the event instead of sending it.
// False for an event that cannot be played.
bool SendRecordedEvent(QWidget* receiver, const RecordedEvent& event, QPoint pos, bool async);

}  // namespace guireplay
