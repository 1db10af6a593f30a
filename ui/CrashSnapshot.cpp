#include "ui/CrashSnapshot.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include "base/CrashHandler.h"
#include "base/DebugOutput.h"
#include "base/KnownLocations.h"

std::string CrashImageName(const std::string& folder, std::time_t when) {
    char stamp[32];
    std::tm local{};
    localtime_r(&when, &local);
    std::strftime(stamp, sizeof stamp, "%m%d%Y_%H%M%S", &local);
    return folder + "crash_image_" + stamp + ".jpg";
}

void SaveCrashSnapshot() {
    std::string name = CrashImageName(base::KnownLocationPath(base::KnownLocation::ToolLogFolder),
                                      std::time(nullptr));
    QScreen* screen = QGuiApplication::primaryScreen();
    QPixmap picture = screen ? screen->grabWindow(0) : QPixmap();
    if (picture.isNull() || !picture.save(QString::fromLocal8Bit(name.c_str()), "jpg"))
        base::DebugOutput("Failed to save full screen.\n");
}

void InstallCrashSnapshot() {
    if (base::EnvironmentFlag("LUSHL_SNAP_CRASH_MOMENT"))
        base::SetCrashSnapshotHook(SaveCrashSnapshot);
}

void RemoveCrashSnapshot() {
    base::SetCrashSnapshotHook(nullptr);
}
