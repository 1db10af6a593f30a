#include "guireplay/ReplaySettings.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <cfloat>
#include <cmath>

namespace guireplay {

namespace {

QString Env(const char* name) {
    return qEnvironmentVariable(name);
}

QString TrimRight(const QString& text) {
    int end = text.size();
    while (end > 0 && text.at(end - 1).isSpace()) --end;
    return text.left(end);
}

QString WithoutSessionExtension(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("brf") || suffix == QLatin1String("xml"))
        return path.left(path.size() - suffix.size() - 1);
    return path;
}

}  // namespace

ReplaySettings SettingsFromEnvironment() {
    ReplaySettings s;
    s.recPath = Env("RECPATH");
    s.recFixPath = WithoutSessionExtension(TrimRight(Env("RECFIXPATH")));
    s.manual = qEnvironmentVariableIsSet("LUSHL_GUIREPLAY_MANUAL");
    s.fullLog = qEnvironmentVariableIntValue("LUSHL_GUIREPLAY_FULLLOG") != 0;
    s.snapCheck = qEnvironmentVariableIntValue("LUSHL_GUIREPLAY_SNAPCHK");
    const double timeout = Env("LUSHL_GUIREPLAY_STEP_TIMEOUT").toDouble();
    if (timeout >= DBL_EPSILON) s.stepTimeoutMs = int(std::lround(timeout * 1000.0));
    s.qtLogPath = Env("LUSHL_GUIREPLAY_QTLOGPATH");
    s.checkNoOrder = qEnvironmentVariableIsSet("LUSHL_GUIREPLAY_CHKNOORDER");
    s.playPath = Env("LUSHL_GUIREPLAY_PLAY");
    s.upgrade = qEnvironmentVariableIntValue("LUSHL_GUIREPLAY_UPGRADE") != 0;
    return s;
}

QString ReplaySettings::SessionBase(const QString& stamp) const {
    if (!recFixPath.isEmpty()) return recFixPath;
    return QDir(recPath).filePath(QStringLiteral("GUIReplay_") + stamp);
}

QString ReplaySettings::RecordingFolder() const {
    if (!recPath.isEmpty()) return recPath;
    return QFileInfo(recFixPath).path();
}

QString SessionStamp() {
    return QDateTime::currentDateTime().toString(QStringLiteral("MMddyyyy_HHmmss"));
}

}  // namespace guireplay
