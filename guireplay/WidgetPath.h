#pragma once
// Describing a live widget the way a record names it: its levels from the top window down,
// each with class, object name and display text.
#include <QString>

#include "guireplay/RecordModel.h"

class QWidget;

namespace guireplay {

// The text a person sees on a widget: a window's title, a button's or label's text.
QString DisplayText(const QWidget* widget);
// A dynamic property that steers recording, true when set on the widget.
bool HasFlag(const QWidget* widget, const char* property);
WidgetLevel LevelOf(const QWidget* widget);
// The levels from widget->window() to widget; posInWidget is mapped to the top window.
WidgetLocation LocationOf(const QWidget* widget, QPoint posInWidget);
// "QPushButton["OK"]" in the play log's words.
QString ShortName(const QWidget* widget);

}  // namespace guireplay
