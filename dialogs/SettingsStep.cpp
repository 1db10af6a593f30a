#include "dialogs/SettingsStep.h"

void RunSettingsDialog(CUiDialog&) {}
