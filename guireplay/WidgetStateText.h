#pragma once
// The text of a window's state kept in a check point: one line per control, with the items of
// lists, combo boxes and tab bars below their control, and a "--------" line before each group.
#include <QString>

class QWidget;

namespace guireplay {

QString WidgetStateText(const QWidget* window);

}  // namespace guireplay
