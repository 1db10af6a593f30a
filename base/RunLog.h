#pragma once
// The run log: the one place where the base library leaves a trace of a failure when no user
// is present. A destination is a string read from its left:
//   '"' first   the message is literal text, not a printf format
//   ':' next    the file is replaced by each message (else messages are appended)
//   '?' next    no time stamp
//   '|' next    the message is dropped
//   then        nothing: the debugger's output channel; "*": standard output;
//               "*name": the system log under the ident name; anything else: a file name.
// Unless switched off, a message begins with "[%Y/%m/%d-%H:%M:%S]--" (23 characters) and every
// further line of it is indented by 23 blanks. Writing never fails the caller: a destination
// that cannot be written loses the message without a word.
#include <string>

namespace base {

constexpr int kRunLogSlots = 5;
constexpr size_t kTimeStampWidth = 23;

// The destination of a slot. A null value reads it: slot 0 takes LULIB_RUNLOG from the
// environment on its first use and falls back on "Run.Log"; other slots are null while unset.
// A value stores it; for slot 0 it is also exported as LULIB_RUNLOG="value" so that child
// processes inherit it. A slot outside 0..4 means slot 0.
const char* RunLogDestination(const char* value, int slot = 0);

// Writes one message to a destination of the grammar above (null: the run log's). A null or
// empty format writes nothing.
void WriteLog(const char* destination, const char* format, ...);

// Writes to the run log's destination; the form of the error records is
// "ERROR: /<routine>/<call> (%s)\n" with the system's words for the error.
void WriteRunLog(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Forgets every slot, so that the next use reads LULIB_RUNLOG again.
void ResetRunLogDestinations();

}  // namespace base
