#pragma once
// The host of a run with no window: stages, progress and the Settings step show nothing, a
// question is answered Yes, and a message goes to standard error.
#include "model/TranslationHost.h"

class BatchHost : public TranslationHost {
  public:
    void ShowStage(const std::string& text) override;
    void SetProgress(int position) override;
    bool Ask(const std::string& question) override;
    void RunSettingsStep() override;
    void ShowMessage(const std::string& text, int boxType, int helpId) override;
};
