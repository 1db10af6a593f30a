#include "dialogs/SettingsStep.h"

#include "dialogs/Ndd2QfxSetting.h"

int RunSettingsDialog(CUiDialog& parent, const DialogServices& services, ModelAssignment* models) {
    CNdd2QfxSetting settings(parent.GetHandle(), services);
    settings.IbisPage().SetModelAssignment(models);
    return settings.DoModal();
}
