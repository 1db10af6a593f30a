#pragma once
// The handshake with a parent tool that started this program with its standard input and
// output on pipes. All of it is binary, in the machine's byte order:
//   child to parent: the handshake literal with its terminating NUL;
//   parent to child: a 32-bit unsigned length (0 is an error), then that many bytes, the last
//                    a NUL: "ACK" for no case, or the path of a case (an existing regular file).
// After the handshake a watcher thread ends this process with status 0 when the parent ends.
#include <cstdint>
#include <string>

namespace base {

constexpr uint32_t kParentReplyMs = 300000;

// Non-zero on success. errorText (may be null: silent) receives the failure's words; a short
// read or a length of 0 fails without words. handshake must be non-empty. With restoreConsole
// the standard streams are attached to the console again afterwards, else set unbuffered.
// replyMs limits each of the two reads from the parent.
int GetCaseFromParent(std::string* errorText, std::string& caseName, const char* handshake,
                      bool restoreConsole, uint32_t replyMs = kParentReplyMs);

// Starts the watcher of the parent process and lets it run detached. When the parent has
// ended it calls onParentGone, or with none ends this process with status 0. 0 when the
// thread cannot start.
int MonitorParentProcess(void (*onParentGone)() = nullptr);

// Reopens stdin, stdout and stderr on the console (/dev/tty) and sets them unbuffered; with no
// controlling terminal they stay as they are, which is a success.
bool RedirectIOtoConsole();

}  // namespace base
