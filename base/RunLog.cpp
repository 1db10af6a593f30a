#include "base/RunLog.h"

#include <syslog.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "base/DebugOutput.h"

namespace base {

namespace {

struct Slot {
    std::string value;
    bool set = false;
};

Slot g_slots[kRunLogSlots];
bool g_environmentRead = false;

int SlotIndex(int slot) {
    return slot < 0 || slot >= kRunLogSlots ? 0 : slot;
}

// The value exported to children is wrapped in quotes; a child reads back the same path.
std::string Unquoted(const std::string& value) {
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        return value.substr(1, value.size() - 2);
    return value;
}

struct Destination {
    bool literal = false;
    bool replace = false;
    bool noStamp = false;
    bool drop = false;
    std::string target;
};

Destination Parse(const char* text) {
    Destination d;
    const char* p = text;
    if (*p == '"') d.literal = true, ++p;
    if (*p == ':') d.replace = true, ++p;
    if (*p == '?') d.noStamp = true, ++p;
    if (*p == '|') d.drop = true, ++p;
    d.target = p;
    return d;
}

std::string Format(const char* format, va_list args) {
    va_list copy;
    va_copy(copy, args);
    int n = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    if (n <= 0) return std::string();
    std::string text(static_cast<size_t>(n) + 1, '\0');
    std::vsnprintf(&text[0], text.size(), format, args);
    text.resize(static_cast<size_t>(n));
    return text;
}

// The stamp in front, and every further line indented to stand under the text of the first;
// a last newline starts no further line.
std::string Stamped(const std::string& text) {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char stamp[64];
    size_t n = std::strftime(stamp, sizeof stamp, "[%Y/%m/%d-%H:%M:%S]--", &local);
    std::string out(stamp, n);
    const std::string indent(kTimeStampWidth, ' ');
    for (size_t i = 0; i < text.size(); ++i) {
        out += text[i];
        if (text[i] == '\n' && i + 1 < text.size()) out += indent;
    }
    return out;
}

void Emit(const Destination& d, const std::string& text) {
    if (d.target.empty()) {
        DebugOutput(text.data(), text.size());
    } else if (d.target == "*") {
        std::fwrite(text.data(), 1, text.size(), stdout);
        std::fflush(stdout);
    } else if (d.target[0] == '*') {
        openlog(d.target.c_str() + 1, 0, LOG_USER);
        syslog(LOG_INFO, "%s", ("\r\n\r\n" + text).c_str());
        closelog();
    } else {
        FILE* f = std::fopen(d.target.c_str(), d.replace ? "w" : "a");
        if (!f) return;
        std::fwrite(text.data(), 1, text.size(), f);
        std::fclose(f);
    }
}

void WriteLogV(const char* destination, const char* format, va_list args) {
    if (!format || !*format) return;
    if (!destination) destination = RunLogDestination(nullptr, 0);
    Destination d = Parse(destination);
    if (d.drop) return;
    int savedErrno = errno;
    std::string text = d.literal ? std::string(format) : Format(format, args);
    Emit(d, d.noStamp ? text : Stamped(text));
    errno = savedErrno;
}

}  // namespace

const char* RunLogDestination(const char* value, int slot) {
    int i = SlotIndex(slot);
    Slot& s = g_slots[i];
    if (value) {
        s.value = value;
        s.set = true;
        if (i == 0) {
            g_environmentRead = true;
            setenv("LULIB_RUNLOG", ("\"" + s.value + "\"").c_str(), 1);
        }
    } else if (i == 0 && !s.set && !g_environmentRead) {
        g_environmentRead = true;
        if (const char* env = std::getenv("LULIB_RUNLOG")) {
            s.value = Unquoted(env);
            s.set = true;
        }
    }
    if (s.set) return s.value.c_str();
    return i == 0 ? "Run.Log" : nullptr;
}

void WriteLog(const char* destination, const char* format, ...) {
    va_list args;
    va_start(args, format);
    WriteLogV(destination, format, args);
    va_end(args);
}

void WriteRunLog(const char* format, ...) {
    va_list args;
    va_start(args, format);
    WriteLogV(RunLogDestination(nullptr, 0), format, args);
    va_end(args);
}

void ResetRunLogDestinations() {
    for (Slot& s : g_slots) s = Slot{};
    g_environmentRead = false;
}

}  // namespace base
