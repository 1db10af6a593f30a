#pragma once
// The Settings dialog as the main window opens it.
#include "dialogs/DialogServices.h"

class CUiDialog;
class ModelAssignment;

// Runs the Settings dialog modally over parent; its file browsers and colour picker are those
// of services. Returns the dialog's result (kIdOk or kIdCancel).
int RunSettingsDialog(CUiDialog& parent, const DialogServices& services = DesktopServices(),
                      ModelAssignment* models = nullptr);
