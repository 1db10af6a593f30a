#include "guireplay/QtLogRedirect.h"

#include <QFile>
#include <QtGlobal>

namespace guireplay {

namespace {

QFile* g_pQtLog = nullptr;
QtMessageHandler g_previous = nullptr;

void ToFile(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!g_pQtLog) return;
    g_pQtLog->write((message + QLatin1Char('\n')).toUtf8());
    g_pQtLog->flush();
}

}  // namespace

bool RedirectQtLog(const QString& path) {
    RestoreQtLog();
    g_pQtLog = new QFile(path);
    if (!g_pQtLog->open(QIODevice::WriteOnly | QIODevice::Append)) {
        RestoreQtLog();
        return false;
    }
    g_previous = qInstallMessageHandler(ToFile);
    return true;
}

void RestoreQtLog() {
    if (!g_pQtLog) return;
    qInstallMessageHandler(g_previous);
    g_previous = nullptr;
    delete g_pQtLog;
    g_pQtLog = nullptr;
}

}  // namespace guireplay
