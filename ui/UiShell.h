#pragma once
// The UI shell of a run without "-b": sends the toolkit's own messages to qt.log in the
// temporary folder, creates the application (on the offscreen platform when there is no
// display), applies the style, registers the resource manager, sets the numeric locale to "C"
// and calls start, the application's start routine. The event loop is never entered: the
// start routine runs its dialogs modally. Returns what start returns.
#include <functional>

class IQtResourceMgr;

int RunUiShell(int argc, char** argv, IQtResourceMgr* resources, const std::function<int()>& start);

// True when neither DISPLAY nor WAYLAND_DISPLAY names a display.
bool NoDisplay();

// True while the shell runs on the offscreen platform because there is no display: nobody can
// see a window, so a dialog run cannot be served.
bool ShellHasNoScreen();
