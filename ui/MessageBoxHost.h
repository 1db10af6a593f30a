#pragma once
// The host of a dialog run before any dialog has a host of its own: questions and messages are
// message boxes; stages, progress and the Settings step show nothing.
#include "model/TranslationHost.h"

class CMessageBoxHost : public TranslationHost {
  public:
    void ShowStage(const std::string& text) override;
    void SetProgress(int position) override;
    bool Ask(const std::string& question) override;
    void RunSettingsStep() override;
    void ShowMessage(const std::string& text, int boxType, int helpId) override;
};
