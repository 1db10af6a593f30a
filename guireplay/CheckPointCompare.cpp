#include "guireplay/CheckPointCompare.h"

#include <QDir>
#include <QFile>
#include <QStringList>

namespace guireplay {

namespace {

bool ReadAll(const QString& path, QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    text = QString::fromUtf8(file.readAll());
    return true;
}

bool WriteAll(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    const QByteArray bytes = text.toUtf8();
    return file.write(bytes) == bytes.size() && file.flush();
}

QString Sorted(const QString& text) {
    QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.sort();
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

}  // namespace

bool SameLinesAnyOrder(const QString& a, const QString& b) {
    return Sorted(a) == Sorted(b);
}

Verdict VerifyCheckPoint(const QString& dir, const QString& name, const QString& current,
                         bool noOrder) {
    Verdict v;
    const QString golden = QDir(dir).filePath(name + QStringLiteral(".ckp"));
    const QString result = QDir(dir).filePath(name + QStringLiteral("_TestResult.ckp"));
    QString expected;
    if (!ReadAll(golden, expected)) {
        v.loaded = false;
        v.message = QStringLiteral("Error: Failed to load the check point: %1").arg(golden);
        return v;
    }
    QString prefix;
    if (!WriteAll(result, current))
        prefix = QStringLiteral("Warning: Failed to save current state for %1\n\t").arg(name);
    v.passed = expected == current;
    if (!v.passed && noOrder) {
        WriteAll(golden + QStringLiteral(".noorder"), Sorted(expected));
        WriteAll(result + QStringLiteral(".noorder"), Sorted(current));
        v.passed = SameLinesAnyOrder(expected, current);
    }
    if (v.passed) {
        v.message = prefix + QStringLiteral("Verifying: Passed for %1.").arg(name);
    } else {
        v.message = prefix + QStringLiteral(
                                 "Verifying: Failed for %1, compare the following two files for "
                                 "details:\n\t[Golden]%2\n\t[TestResult]%3")
                                 .arg(name, golden, result);
    }
    return v;
}

}  // namespace guireplay
