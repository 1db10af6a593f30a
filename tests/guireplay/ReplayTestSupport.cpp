#include "ReplayTestSupport.h"

#include <QFile>
#include <QRegularExpression>

QString ReadText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return QStringLiteral("<cannot read %1>").arg(path);
    return QString::fromUtf8(file.readAll());
}

void WriteText(const QString& path, const QString& text) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) file.write(text.toUtf8());
}

QStringList PlayLogEntries(const QString& path) {
    static const QRegularExpression stamp(
        QStringLiteral("^\\[\\d{4}/\\d\\d/\\d\\d-\\d\\d:\\d\\d:\\d\\d\\]--"));
    QStringList entries;
    for (const QString& line : ReadText(path).split(QLatin1Char('\n'))) {
        if (stamp.match(line).hasMatch()) {
            entries << QString(line).remove(stamp);
        } else if (line.startsWith(QLatin1Char('\t')) && !entries.isEmpty()) {
            entries.last() += QLatin1Char('\n') + line;
        }
    }
    return entries;
}

QString DataPath(const QString& name) {
    return QStringLiteral(GUIREPLAY_TEST_DATA "/") + name;
}
