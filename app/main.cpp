#include "app/Ndd2QfxApp.h"
#include "base/CrashHandler.h"
#include "base/KnownLocations.h"

int main(int argc, char** argv) {
    base::InstallCrashHandlers(-1);
    base::InitializeLuLib("Translators");
    return RunProcess(argc, argv);
}
