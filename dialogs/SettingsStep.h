#pragma once
// The Settings dialog as the main window opens it.

class CUiDialog;

// Runs the Settings dialog modally over parent.
void RunSettingsDialog(CUiDialog& parent);
