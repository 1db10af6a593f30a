#pragma once
// What the toolkit-free application reaches through hooks that the program's main installs:
// the UI shell that brackets a run without "-b", and the main dialog of a dialog run. Without
// a shell the start routine runs bare; without a main dialog a dialog run ends with status
// CNdd2QfxApp::kNoDialogStatus.
#include <functional>

// Starts the toolkit, calls start and returns what it returns.
using UiShellHook = std::function<int(int argc, char** argv, const std::function<int()>& start)>;
void SetUiShell(UiShellHook shell);
const UiShellHook& GetUiShell();

// Runs the main dialog of a dialog run (store it in g_pMainDialog, run it modally, delete its
// temporary files) and returns the dialog's result.
using MainDialogHook = std::function<int()>;
void SetMainDialogRunner(MainDialogHook run);
const MainDialogHook& GetMainDialogRunner();

// Takes both hooks away.
void ResetProcessHooks();
