#include "model/Progress.h"

#include "model/TranslationHost.h"
#include "model/TranslationOptions.h"

namespace {

struct ProgressState {
    int position = 0;
    int lines = 0;
};

ProgressState g_progress;

}  // namespace

void ResetProgress() {
    g_progress = ProgressState();
}

void SetProgress(int position) {
    g_progress.position = position;
    if (g_options.g_nQuiet == 0) CurrentHost().SetProgress(position);
}

void StartPassProgress() {
    g_progress.lines = 0;
    SetProgress(10);
}

void CountPassLine() {
    if (g_options.g_nQuiet != 0) return;
    if (++g_progress.lines <= 150) return;
    g_progress.lines = 0;
    SetProgress(g_progress.position + 5 > 50 ? 50 : g_progress.position + 5);
}
