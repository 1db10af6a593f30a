#include "model/Progress.h"

#include "model/TranslationHost.h"
#include "model/TranslationOptions.h"

namespace {

struct ProgressState {
    std::function<void(const std::string&, int)> observer;
    std::string stage;
    int position = 0;
    int lines = 0;
};

ProgressState g_progress;

}  // namespace

void ResetProgress() {
    // The observer stays: it is the run's, not the translation's.
    auto observer = std::move(g_progress.observer);
    g_progress = ProgressState();
    g_progress.observer = std::move(observer);
}

void SetProgressStage(const std::string& stage) {
    g_progress.stage = stage;
    if (g_progress.observer) g_progress.observer(g_progress.stage, g_progress.position);
}

void SetProgressObserver(std::function<void(const std::string&, int)> observer) {
    g_progress.observer = std::move(observer);
}

void SetProgress(int position) {
    g_progress.position = position;
    if (g_options.g_nQuiet == 0) CurrentHost().SetProgress(position);
    if (g_progress.observer) g_progress.observer(g_progress.stage, position);
}

void StartPassProgress() {
    g_progress.lines = 0;
    SetProgress(10);
}

void CountPassLine() {
    if (g_options.g_nQuiet != 0 && !g_progress.observer) return;
    if (++g_progress.lines <= 150) return;
    g_progress.lines = 0;
    SetProgress(g_progress.position + 5 > 50 ? 50 : g_progress.position + 5);
}
