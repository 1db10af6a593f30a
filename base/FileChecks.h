#pragma once
// Checks made before a file is read or written, so that a device, a pipe or a folder never
// hangs a reader and no output ever lands on one of the run's own inputs.
#include <cstdio>
#include <string>

namespace base {

// True when both names lead to one existing file (same device and inode, whatever the names).
bool SameFile(const std::string& a, const std::string& b);

// The system's words for an errno value ("No such file or directory").
std::string SystemReason(int error);

// Flushes and closes a written stream (nullptr-safe; the stream is always closed and cleared).
// Returns false, with the system's words in reason, when any write, the flush or the close
// failed.
bool CloseWritten(FILE*& stream, std::string& reason);

}  // namespace base
