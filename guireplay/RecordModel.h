#pragma once
// What a recorded session holds: the machine it was recorded on and its steps, each a located
// widget with one event. The XML record stores exactly this; the script is derived from it.
#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

namespace guireplay {

// The record's root and header versions.
constexpr int kRecordVersion = 5;

// The machine and program a session was recorded (or is played) on.
struct SystemInfo {
    int osVersion = 0;
    QString osPrettyName;
    int cpuCount = 0;
    quint64 physicalMemory = 0;
    QPoint dpi;
    QSize resolution{0, 0};
    QString envVarList;
    QString toolVersion;
    QSize mainWindowSize{0, 0};
};

// One level of a widget's path from its top window down.
struct WidgetLevel {
    QString className;
    QString objectName;
    QString windowTitle;
    QPoint pos;
    bool keyTitle = false;
};

struct WidgetLocation {
    bool topIsMain = false;
    QVector<WidgetLevel> levels;
    QPoint ptRefToTop;
    QString extraIndex;
};

// One attribute of an input method event.
struct ImAttribute {
    int type = 0;
    int start = 0;
    int length = 0;
    QString value;
};

enum class EventKind { Mouse, Wheel, Key, ContextMenu, InputMethod, Focus, Other };

// The fields of every kind of recorded event; a kind uses its own subset.
struct RecordedEvent {
    int type = 0;
    // Mouse, wheel, context menu.
    QPointF pos;
    QPointF wndPos;
    QPointF globalPos;
    int button = 0;
    int buttons = 0;
    int modifiers = 0;
    int source = 0;
    quint64 timestamp = 0;
    // Wheel.
    QPoint pixelDelta;
    QPoint angleDelta;
    int delta = 0;
    int orientation = 0;
    int phase = 0;
    // Key.
    int key = 0;
    quint32 nativeScanCode = 0;
    quint32 nativeVirtualKey = 0;
    quint32 nativeModifiers = 0;
    QString text;
    bool autoRepeat = false;
    int count = 1;
    // Context menu.
    int reason = 0;
    // Input method.
    QVector<ImAttribute> attributes;
    QString preedit;
    QString commit;
    int replaceStart = 0;
    int replaceLength = 0;
    // Focus.
    int focusReason = 0;
};

// One recorded event on one widget; a check point has the same form.
struct Step {
    bool checkPoint = false;
    WidgetLocation location;
    RecordedEvent event;
    int delay = 0;  // milliseconds since the step before
    bool hasExtraInfo = false;
    QString extraInfo;
    bool hasRealPos = false;
    QPointF realPos;
    bool async = false;
};

struct Session {
    SystemInfo system;
    QVector<Step> steps;
};

EventKind KindOf(int eventType);

}  // namespace guireplay
