#include "app/Ndd2QfxApp.h"
#include "app/ProcessHooks.h"
#include "base/CrashHandler.h"
#include "base/KnownLocations.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "ui/ToolkitLeaks.h"
#include "ui/UiShell.h"

int main(int argc, char** argv) {
    base::InstallCrashHandlers(-1);
    base::InitializeLuLib("Translators");
    SetUiShell([](int shellArgc, char** shellArgv, const std::function<int()>& start) {
        CQtNdd2QfxResourceMgr resources;
        return RunUiShell(shellArgc, shellArgv, &resources, start);
    });
    SetMainDialogRunner(RunMainDialog);
    return RunProcess(argc, argv);
}
