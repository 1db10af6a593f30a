#include "dialogs/SettingsStep.h"

#include "dialogs/Ndd2QfxSetting.h"

int RunSettingsDialog(CUiDialog& parent, const DialogServices& services) {
    CNdd2QfxSetting settings(parent.GetHandle(), services);
    return settings.DoModal();
}
