#pragma once
// Finding a recorded widget again, level by level from its top window, and saying why when it
// cannot be found.
#include <QString>

#include "guireplay/RecordModel.h"

class QWidget;

namespace guireplay {

struct LocateResult {
    QWidget* widget = nullptr;
    QWidget* top = nullptr;
    QWidget* lastFound = nullptr;
    QString messages;  // warnings and infos met on the way, each opened by "\n\t"
};

LocateResult Locate(const WidgetLocation& location);
// "\n\t" lines on the top level, the last found level and the active window.
QString LocateFailureText(const LocateResult& result);
// "QPushButton["okButton"]" for a recorded level.
QString LevelName(const WidgetLevel& level);
bool TopMatches(const QWidget* window, const WidgetLevel& level);

}  // namespace guireplay
