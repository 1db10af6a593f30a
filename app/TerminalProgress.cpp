#include "app/TerminalProgress.h"

#include <unistd.h>

#include <cstring>
#include <iterator>

#include "model/Progress.h"

namespace {

// The stages a translation names, in their order; the share done is the place of the stage.
const char* const kStages[] = {
    "Begin ...",
    "Processing Layer Info ...",
    "Processing Via Info ...",
    "Processing Trace Info...",
    "Processing Shape Info...",
    "Writing Title ...",
    "Writing Transient ...",
    "Writing Mesh ...",
    "Writing PKG header ...",
    "Check Undiscardable Void Shapes ...",
    "Writing Via Info...",
    "Clear tiny traces ...",
    "Writing Shape Info...",
    "Writing Layer Info...",
    "Writing Node Info...",
    "Writing Trace Info...",
    "Writing PKG End...",
    "Translation completed",
};

// Redraws at most this often while the stage stays.
constexpr double kRedrawSeconds = 0.2;

double SteadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

TerminalProgress::TerminalProgress(FILE* err, int isTerminal, Clock clock)
    : err_(err), clock_(clock ? std::move(clock) : Clock(SteadySeconds)) {
    active_ = err_ && (isTerminal < 0 ? isatty(fileno(err_)) == 1 : isTerminal != 0);
    if (!active_) return;
    start_ = clock_();
    SetProgressObserver([this](const std::string& stage, int) { Show(stage); });
}

TerminalProgress::~TerminalProgress() {
    if (!active_) return;
    SetProgressObserver(nullptr);
    if (shown_ >= 0) {
        std::fputs("\r\033[K", err_);
        std::fflush(err_);
    }
}

std::string TerminalProgress::Line(const std::string& stage, double elapsed) {
    int share = 0;
    const int count = static_cast<int>(std::size(kStages));
    for (int k = 0; k < count; ++k)
        if (stage == kStages[k]) share = k * 100 / (count - 1);
    char tail[64];
    std::snprintf(tail, sizeof tail, "  %3d %%  %.1f s", share, elapsed);
    return stage + tail;
}

void TerminalProgress::Show(const std::string& stage) {
    const double now = clock_();
    if (stage == stage_ && shown_ >= 0 && now - shown_ < kRedrawSeconds) return;
    stage_ = stage;
    shown_ = now;
    std::fprintf(err_, "\r\033[K%s", Line(stage, now - start_).c_str());
    std::fflush(err_);
}
