#pragma once
// A host for tests: it records what a translation shows and answers every question alike.
#include <string>
#include <vector>

#include "model/TranslationHost.h"

namespace testing_support {

class RecordingHost : public TranslationHost {
  public:
    void ShowStage(const std::string& text) override { stages.push_back(text); }
    void SetProgress(int position) override { positions.push_back(position); }
    bool Ask(const std::string& question) override {
        questions.push_back(question);
        return answer;
    }
    void RunSettingsStep() override { ++settingsSteps; }
    void ShowMessage(const std::string& text, int, int) override { messages.push_back(text); }

    bool answer = true;
    std::vector<std::string> stages, questions, messages;
    std::vector<int> positions;
    int settingsSteps = 0;
};

}  // namespace testing_support
