#include "app/Ndd2QfxApp.h"
#include "app/ProcessHooks.h"
#include "base/CrashHandler.h"
#include "base/KnownLocations.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "ui/ToolkitLeaks.h"
#include "ui/UiShell.h"

int main(int argc, char** argv) {
    base::InstallCrashHandlers(-1);
    base::InitializeLuLib("Translators");
    SetUiShell([](int shellArgc, char** shellArgv, const std::function<int()>& start) {
        // The forms' resource manager is registered here when the toolkit starts.
        IQtResourceMgr* resources = nullptr;
        return RunUiShell(shellArgc, shellArgv, resources, start);
    });
    SetMainDialogRunner(RunMainDialog);
    return RunProcess(argc, argv);
}
