#pragma once
// Where inside a widget an event went, when the widget holds items that may move: a menu
// action, a menu bar entry, a tab, a header section, or an item view's cell (a "GUI_Locate"
// text). Recording describes the spot; playing finds it again and logs what changed.
#include <QPoint>
#include <QString>

class QWidget;

namespace guireplay {

// Empty when the widget has no items at pos.
QString DescribeSpot(const QWidget* receiver, QPoint pos);
// A short form for the script, such as {"Settings"} or {"GND"/"U1"}.
QString SpotSummary(const QString& extraIndex);

struct SpotResult {
    bool ok = true;    // false: the event cannot be sent
    QPoint pos;        // where to send it in the receiver
    QString messages;  // warnings and errors, each opened by "\n\t"
};

// Finds the described spot in receiver; pos is the recorded position.
SpotResult FindSpot(QWidget* receiver, const QString& extraIndex, QPoint pos);

}  // namespace guireplay
