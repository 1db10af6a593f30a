#include "guireplay/WidgetPath.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QVariant>
#include <QWidget>

namespace guireplay {

QString DisplayText(const QWidget* w) {
    if (w->isWindow()) {
        if (auto menu = qobject_cast<const QMenu*>(w)) return menu->title();
        return w->windowTitle();
    }
    if (auto button = qobject_cast<const QAbstractButton*>(w)) return button->text();
    if (auto label = qobject_cast<const QLabel*>(w)) return label->text();
    if (auto box = qobject_cast<const QGroupBox*>(w)) return box->title();
    return QString();
}

bool HasFlag(const QWidget* widget, const char* property) {
    return widget->property(property).toBool();
}

WidgetLevel LevelOf(const QWidget* w) {
    WidgetLevel level;
    level.className = QString::fromLatin1(w->metaObject()->className());
    level.objectName = w->objectName();
    level.windowTitle = DisplayText(w);
    level.pos = w->isWindow() ? QPoint() : w->pos();
    level.keyTitle = w->isWindow() || HasFlag(w, "GUIRecKeyTitle");
    return level;
}

WidgetLocation LocationOf(const QWidget* widget, QPoint posInWidget) {
    WidgetLocation loc;
    const QWidget* top = widget->window();
    for (const QWidget* w = widget; w; w = w->isWindow() ? nullptr : w->parentWidget())
        loc.levels.prepend(LevelOf(w));
    loc.ptRefToTop = widget->mapTo(top, posInWidget);
    return loc;
}

QString ShortName(const QWidget* widget) {
    return QStringLiteral("%1[\"%2\"]")
        .arg(QString::fromLatin1(widget->metaObject()->className()),
             widget->objectName().isEmpty() ? DisplayText(widget) : widget->objectName());
}

}  // namespace guireplay
