#pragma once
// The debugger's output channel. On this platform it is standard error; the sink can be
// replaced so that a test can count what arrives. Text goes out in pieces of at most 4096
// characters, as a debugger's channel takes it.
#include <cstddef>

namespace base {

constexpr size_t kDebugOutputPiece = 4096;

using DebugOutputSink = void (*)(const char* piece, size_t length);

// Installs a sink (null restores standard error) and returns the one it replaces.
DebugOutputSink SetDebugOutputSink(DebugOutputSink sink);

void DebugOutput(const char* text, size_t length);
void DebugOutput(const char* text);

}  // namespace base
