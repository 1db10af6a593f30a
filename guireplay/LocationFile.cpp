#include "guireplay/LocationFile.h"

#include <QFile>
#include <QSettings>

namespace guireplay {

namespace {

struct LevelRule {
    WidgetLevel old;
    WidgetLevel now;
    bool compareTitle = false;
    bool comparePos = false;
    bool matchTitle = false;
};

WidgetLevel ReadLevel(QSettings& ini, const QString& group) {
    WidgetLevel level;
    ini.beginGroup(group);
    level.className = ini.value(QStringLiteral("classname")).toString();
    level.objectName = ini.value(QStringLiteral("objectname")).toString();
    level.windowTitle = ini.value(QStringLiteral("title")).toString();
    const QStringList pos = ini.value(QStringLiteral("pos")).toString().split(QLatin1Char(','));
    if (pos.size() == 2) level.pos = QPoint(pos[0].toInt(), pos[1].toInt());
    ini.endGroup();
    return level;
}

bool Matches(const WidgetLevel& level, const LevelRule& rule) {
    return level.className == rule.old.className && level.objectName == rule.old.objectName &&
           (!rule.compareTitle || level.windowTitle == rule.old.windowTitle) &&
           (!rule.comparePos || level.pos == rule.old.pos);
}

}  // namespace

int ApplyLocationFile(const QString& path, Session& session) {
    if (!QFile::exists(path)) return -1;
    QSettings ini(path, QSettings::IniFormat);
    if (ini.status() != QSettings::NoError) return -1;
    LevelRule rule;
    rule.old = ReadLevel(ini, QStringLiteral("GUIOld"));
    rule.now = ReadLevel(ini, QStringLiteral("GUINew"));
    rule.compareTitle = ini.value(QStringLiteral("GUIOld/comparetitle")).toBool();
    rule.comparePos = ini.value(QStringLiteral("GUIOld/comparepos")).toBool();
    rule.matchTitle = ini.value(QStringLiteral("GUINew/matchtitle")).toBool();
    int changed = 0;
    for (Step& step : session.steps) {
        for (WidgetLevel& level : step.location.levels) {
            if (!Matches(level, rule)) continue;
            level.className = rule.now.className;
            level.objectName = rule.now.objectName;
            level.windowTitle = rule.now.windowTitle;
            level.keyTitle = level.keyTitle || rule.matchTitle;
            ++changed;
        }
    }
    QFile::remove(path + QStringLiteral(".used"));
    QFile::rename(path, path + QStringLiteral(".used"));
    return changed;
}

}  // namespace guireplay
