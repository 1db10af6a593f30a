#include "app/ProcessHooks.h"

namespace {

UiShellHook g_uiShell;
MainDialogHook g_mainDialog;

}  // namespace

void SetUiShell(UiShellHook shell) {
    g_uiShell = std::move(shell);
}

const UiShellHook& GetUiShell() {
    return g_uiShell;
}

void SetMainDialogRunner(MainDialogHook run) {
    g_mainDialog = std::move(run);
}

const MainDialogHook& GetMainDialogRunner() {
    return g_mainDialog;
}

void ResetProcessHooks() {
    g_uiShell = nullptr;
    g_mainDialog = nullptr;
}
