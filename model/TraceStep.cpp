#include "model/TraceStep.h"

#include <strings.h>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "base/Platform.h"

namespace {

struct TraceState {
    bool decided = false;
    bool on = true;
    std::string path;
};

TraceState& State() {
    static TraceState state;
    return state;
}

void Decide(TraceState& s) {
    s.decided = true;
    const char* keep = std::getenv("KEEP_BENCHMARK");
    if (keep && (strcasecmp(keep, "No") == 0 || std::strcmp(keep, "0") == 0)) {
        s.on = false;
        return;
    }
    std::string folder = base::TempFolder();
    if (!folder.empty() && folder.back() != base::kSep) folder += base::kSep;
    s.path = folder + "debug_bm.log";
    for (int n = 1; base::PathExists(s.path); ++n)
        s.path = folder + "debug_bm" + std::to_string(n) + ".log";
}

}  // namespace

void TraceStep(bool append, const char* format, ...) {
    TraceState& s = State();
    if (!s.decided) Decide(s);
    if (!s.on) return;
    char buffer[2048];
    std::memset(buffer, 0, sizeof buffer);
    if (format) {
        va_list args;
        va_start(args, format);
        std::vsnprintf(buffer, sizeof buffer, format, args);
        va_end(args);
    } else {
        std::strcpy(buffer, "...");
    }
    std::time_t now = std::time(nullptr);
    std::tm tmv{};
    localtime_r(&now, &tmv);
    char stamp[64] = {};
    asctime_r(&tmv, stamp);
    stamp[std::strcspn(stamp, "\n")] = '\0';
    FILE* f = std::fopen(s.path.c_str(), append ? "a+" : "w");
    if (!f) return;
    std::fprintf(f, "%s: %s\n", stamp, buffer);
    std::fclose(f);
}

void ResetTraceStep() {
    State() = TraceState{};
}

std::string TraceStepPath() {
    return State().on ? State().path : std::string();
}
