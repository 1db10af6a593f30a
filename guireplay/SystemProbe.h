#pragma once
// The header of a record and the system block of a script and play log, taken from this
// machine and the running application.
#include "guireplay/RecordModel.h"

class QWidget;

namespace guireplay {

// mainWindow may be null; its size is then 0x0.
SystemInfo ProbeSystem(const QWidget* mainWindow);

}  // namespace guireplay
