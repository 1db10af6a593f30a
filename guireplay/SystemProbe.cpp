#include "guireplay/SystemProbe.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>
#include <QThread>
#include <QWidget>

namespace guireplay {

namespace {

quint64 PhysicalMemory() {
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long size = sysconf(_SC_PAGE_SIZE);
    return pages > 0 && size > 0 ? quint64(pages) * quint64(size) : 0;
}

// The replay settings in force, so that a record tells how it was made.
QString ReplayEnvironment() {
    static const char* const kNames[] = {"RECPATH",
                                         "RECFIXPATH",
                                         "LUSHL_GUIREPLAY_MANUAL",
                                         "LUSHL_GUIREPLAY_FULLLOG",
                                         "LUSHL_GUIREPLAY_SNAPCHK",
                                         "LUSHL_GUIREPLAY_STEP_TIMEOUT",
                                         "LUSHL_GUIREPLAY_CHKNOORDER"};
    QStringList set;
    for (const char* name : kNames)
        if (qEnvironmentVariableIsSet(name))
            set << QString::fromLatin1(name) + QLatin1Char('=') + qEnvironmentVariable(name);
    return set.join(QLatin1Char(';'));
}

}  // namespace

SystemInfo ProbeSystem(const QWidget* mainWindow) {
    SystemInfo s;
    s.osVersion = QSysInfo::kernelVersion().section(QLatin1Char('.'), 0, 0).toInt();
    s.osPrettyName = QSysInfo::prettyProductName();
    s.cpuCount = QThread::idealThreadCount();
    s.physicalMemory = PhysicalMemory();
    if (QScreen* screen = QGuiApplication::primaryScreen()) {
        s.dpi = QPoint(int(screen->logicalDotsPerInchX()), int(screen->logicalDotsPerInchY()));
        s.resolution = screen->size();
    }
    s.envVarList = ReplayEnvironment();
    s.toolVersion = QCoreApplication::applicationName();
    const QString version = QCoreApplication::applicationVersion();
    if (!version.isEmpty()) s.toolVersion += QLatin1Char(' ') + version;
    if (mainWindow) s.mainWindowSize = mainWindow->size();
    return s;
}

}  // namespace guireplay
