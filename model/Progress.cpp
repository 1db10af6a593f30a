#include "model/Progress.h"

#include "model/TranslationOptions.h"

namespace {

struct ProgressState {
    std::function<void(int)> handler;
    int position = 0;
    int lines = 0;
};

ProgressState& State() {
    static ProgressState state;
    return state;
}

}  // namespace

void SetProgressHandler(std::function<void(int)> handler) {
    State().handler = std::move(handler);
}

void SetProgress(int position) {
    ProgressState& s = State();
    s.position = position;
    if (g_options.g_nQuiet == 0 && s.handler) s.handler(position);
}

void StartPassProgress() {
    State().lines = 0;
    SetProgress(10);
}

void CountPassLine() {
    ProgressState& s = State();
    if (g_options.g_nQuiet != 0) return;
    if (++s.lines <= 150) return;
    s.lines = 0;
    SetProgress(s.position + 5 > 50 ? 50 : s.position + 5);
}
