#include "base/DebugOutput.h"

#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace base {

namespace {

void WriteToStandardError(const char* piece, size_t length) {
    while (length > 0) {
        ssize_t n = ::write(STDERR_FILENO, piece, length);
        if (n <= 0) return;
        piece += n;
        length -= static_cast<size_t>(n);
    }
}

DebugOutputSink g_sink = WriteToStandardError;

}  // namespace

DebugOutputSink SetDebugOutputSink(DebugOutputSink sink) {
    DebugOutputSink previous = g_sink;
    g_sink = sink ? sink : WriteToStandardError;
    return previous;
}

void DebugOutput(const char* text, size_t length) {
    for (size_t at = 0; at < length; at += kDebugOutputPiece)
        g_sink(text + at, std::min(kDebugOutputPiece, length - at));
}

void DebugOutput(const char* text) {
    if (text) DebugOutput(text, std::strlen(text));
}

}  // namespace base
