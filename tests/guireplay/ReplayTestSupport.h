#pragma once
// Files and play logs as the tests compare them.
#include <QString>
#include <QStringList>

QString ReadText(const QString& path);
void WriteText(const QString& path, const QString& text);
// The entries of a play log without their time stamps, continuation lines kept in their entry.
QStringList PlayLogEntries(const QString& path);
QString DataPath(const QString& name);
