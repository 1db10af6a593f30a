#include "app/Ndd2QfxApp.h"
#include "base/CrashHandler.h"
#include "base/KnownLocations.h"
#include "guireplay/ReplayStart.h"

int main(int argc, char** argv) {
    base::InstallCrashHandlers(-1);
    base::InitializeLuLib("Translators");
    // Record or play a session when the environment asks; it comes with the application object.
    guireplay::ArmFromEnvironment();
    return RunProcess(argc, argv);
}
