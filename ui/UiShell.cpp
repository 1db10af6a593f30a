#include "ui/UiShell.h"

#include <QApplication>
#include <QStyleFactory>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "base/Platform.h"
#include "model/TranslationHost.h"
#include "ui/CrashSnapshot.h"
#include "ui/MessageBoxHost.h"
#include "ui/QtResourceMgr.h"

namespace {

std::FILE* g_pQtLog = nullptr;
bool g_bNoScreen = false;

const char* KindOf(QtMsgType type) {
    switch (type) {
        case QtDebugMsg:
            return "debug";
        case QtInfoMsg:
            return "info";
        case QtWarningMsg:
            return "warning";
        case QtCriticalMsg:
            return "critical";
        case QtFatalMsg:
            return "fatal";
    }
    return "message";
}

// The toolkit's own messages go to qt.log in the temporary folder, made at the first one.
void WriteQtLog(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (!g_pQtLog) {
        std::string path = base::FolderWithSeparator(base::TempFolder()) + "qt.log";
        g_pQtLog = std::fopen(path.c_str(), "w");
    }
    if (g_pQtLog) {
        std::fprintf(g_pQtLog, "%s: %s\n", KindOf(type), text.toLocal8Bit().constData());
        std::fflush(g_pQtLog);
    }
    if (type == QtFatalMsg) std::abort();
}

bool Unset(const char* name) {
    const char* value = std::getenv(name);
    return !value || !*value;
}

}  // namespace

bool NoDisplay() {
    return Unset("DISPLAY") && Unset("WAYLAND_DISPLAY");
}

bool ShellHasNoScreen() {
    return g_bNoScreen;
}

int RunUiShell(int argc, char** argv, IQtResourceMgr* resources,
               const std::function<int()>& start) {
    QtMessageHandler previousHandler = qInstallMessageHandler(WriteQtLog);
    g_bNoScreen = NoDisplay() && Unset("QT_QPA_PLATFORM");
    if (g_bNoScreen) qputenv("QT_QPA_PLATFORM", "offscreen");
    int status;
    {
        int toolkitArgc = argc;
        QApplication application(toolkitArgc, argv);
        QApplication::setStyle(QStyleFactory::create("Fusion"));
        // The toolkit set the user's locale; the program's numbers are in the "C" form.
        std::setlocale(LC_NUMERIC, "C");
        RegisterResourceMgr(resources);
        InstallCrashSnapshot();
        CMessageBoxHost host;
        HostScope scope(host);
        status = start();
        RemoveCrashSnapshot();
        RegisterResourceMgr(nullptr);
    }
    g_bNoScreen = false;
    qInstallMessageHandler(previousHandler);
    if (g_pQtLog) std::fclose(g_pQtLog);
    g_pQtLog = nullptr;
    return status;
}
