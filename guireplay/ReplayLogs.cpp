#include "guireplay/ReplayLogs.h"

#include <QDateTime>
#include <QDir>

#include "guireplay/ReplaySettings.h"

namespace guireplay {

bool AppendSessionLog(const QString& folder, const QString& text) {
    QDir().mkpath(folder);
    QFile file(QDir(folder).filePath(QStringLiteral("GUIReplay_All.log")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) return false;
    const QByteArray line = (SessionStamp() + QLatin1Char(':') + text).toUtf8();
    return file.write(line) == line.size() && file.flush();
}

bool PlayLog::Open(const QString& path) {
    m_file.setFileName(path);
    return m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void PlayLog::Write(const QString& text) {
    if (!m_file.isOpen()) return;
    const QString stamp =
        QDateTime::currentDateTime().toString(QStringLiteral("[yyyy/MM/dd-HH:mm:ss]--"));
    WriteRaw(stamp + text + QLatin1Char('\n'));
}

void PlayLog::WriteRaw(const QString& text) {
    if (!m_file.isOpen()) return;
    m_file.write(text.toUtf8());
    m_file.flush();
}

}  // namespace guireplay
