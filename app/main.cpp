#include "app/Ndd2QfxApp.h"
#include "app/ProcessHooks.h"
#include "base/CrashHandler.h"
#include "base/KnownLocations.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "guireplay/ReplayStart.h"
#include "ui/ToolkitLeaks.h"
#include "ui/UiShell.h"

int main(int argc, char** argv) {
    base::InstallCrashHandlers(-1);
    base::InitializeLuLib("Translators");
    // Record or play a session when the environment asks; it comes with the application object.
    guireplay::ArmFromEnvironment();
    SetUiShell([](int shellArgc, char** shellArgv, const std::function<int()>& start) {
        CQtNdd2QfxResourceMgr resources;
        return RunUiShell(shellArgc, shellArgv, &resources, start);
    });
    SetMainDialogRunner(RunMainDialog);
    return RunProcess(argc, argv);
}
