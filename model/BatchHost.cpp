#include "model/BatchHost.h"

#include <cstdio>

void BatchHost::ShowStage(const std::string&) {}

void BatchHost::SetProgress(int) {}

bool BatchHost::Ask(const std::string& question) {
    std::fprintf(stderr, "%s\n", question.c_str());
    return true;
}

void BatchHost::RunSettingsStep() {}

void BatchHost::ShowMessage(const std::string& text, int, int) {
    std::fprintf(stderr, "%s\n", text.c_str());
}
