#include "guireplay/WidgetLocator.h"

#include <QApplication>
#include <QWidget>

#include "guireplay/WidgetPath.h"

namespace guireplay {

namespace {

bool SameKind(const QWidget* w, const WidgetLevel& level) {
    return QLatin1String(w->metaObject()->className()) == level.className &&
           w->objectName() == level.objectName;
}

QVector<QWidget*> ByTitle(const QVector<QWidget*>& in, const WidgetLevel& level) {
    QVector<QWidget*> out;
    for (QWidget* w : in)
        if (DisplayText(w) == level.windowTitle) out.push_back(w);
    return out;
}

QVector<QWidget*> Visible(const QVector<QWidget*>& in) {
    QVector<QWidget*> out;
    for (QWidget* w : in)
        if (w->isVisible()) out.push_back(w);
    return out.isEmpty() ? in : out;
}

// Narrows candidates by title and position; warns when several remain alike.
QWidget* Choose(QVector<QWidget*> candidates, const WidgetLevel& level, QString& messages) {
    if (candidates.isEmpty()) return nullptr;
    candidates = Visible(candidates);
    if (level.keyTitle || candidates.size() > 1) {
        const QVector<QWidget*> titled = ByTitle(candidates, level);
        if (level.keyTitle || !titled.isEmpty()) candidates = titled;
    }
    if (candidates.size() <= 1) return candidates.value(0);
    for (QWidget* w : candidates)
        if (!w->isWindow() && w->pos() == level.pos) return w;
    messages += QStringLiteral(
                    "\n\tWarning: There are %1 %2 objects sharing the same object name \"%3\" "
                    "and the same display text.")
                    .arg(candidates.size())
                    .arg(level.className, level.objectName);
    return candidates.first();
}

QWidget* FindTop(const WidgetLevel& level, QString& messages) {
    QVector<QWidget*> candidates;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && SameKind(w, level)) candidates.push_back(w);
    return Choose(candidates, level, messages);
}

QWidget* FindChildLevel(QWidget* parent, const WidgetLevel& level, bool deep, QString& messages) {
    QVector<QWidget*> candidates;
    const auto options = deep ? Qt::FindChildrenRecursively : Qt::FindDirectChildrenOnly;
    for (QWidget* w : parent->findChildren<QWidget*>(QString(), options))
        if (!w->isWindow() && SameKind(w, level)) candidates.push_back(w);
    return Choose(candidates, level, messages);
}

QString NameOf(const QWidget* w) {
    return w ? ShortName(w) : QString();
}

}  // namespace

QString LevelName(const WidgetLevel& level) {
    return QStringLiteral("%1[\"%2\"]")
        .arg(level.className, level.objectName.isEmpty() ? level.windowTitle : level.objectName);
}

bool TopMatches(const QWidget* window, const WidgetLevel& level) {
    return SameKind(window, level);
}

LocateResult Locate(const WidgetLocation& location) {
    LocateResult r;
    if (location.levels.isEmpty()) return r;
    r.top = FindTop(location.levels.first(), r.messages);
    QWidget* current = r.top;
    bool changed = false;
    for (int i = 1; current && i < location.levels.size(); ++i) {
        r.lastFound = current;
        QWidget* next = FindChildLevel(current, location.levels[i], false, r.messages);
        if (!next) {
            // A level that moved under a new parent is still found; the script should follow.
            next = FindChildLevel(current, location.levels[i], true, r.messages);
            changed = changed || next;
        }
        current = next;
    }
    r.widget = current;
    if (current) r.lastFound = current;
    if (changed) {
        r.messages += QStringLiteral(
            "\n\tInfo: The hierarchy of target widget has been changed, it is better to upgrade "
            "the script.");
    }
    return r;
}

QString LocateFailureText(const LocateResult& r) {
    QString text = QStringLiteral("\n\t");
    if (r.top) {
        text += QStringLiteral("The top level widget is %1. ").arg(NameOf(r.top));
    } else {
        text += QStringLiteral("The top level widget is not found.");
    }
    if (r.lastFound) {
        text += QStringLiteral("The last found level widget is %1.").arg(NameOf(r.lastFound));
    } else {
        text += QStringLiteral("The last found level widget is not found.");
    }
    QWidget* active = QApplication::activePopupWidget();
    if (!active) active = QApplication::activeModalWidget();
    if (!active) active = QApplication::activeWindow();
    if (active) text += QStringLiteral("\n\tCurrunt active widget is %1.").arg(NameOf(active));
    return text;
}

}  // namespace guireplay
