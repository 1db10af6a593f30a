#pragma once
// The guard that the process entry installs first: on a segmentation fault or an abort it
// writes the crashing thread's call stack to "<run log folder>crash_<%m%d%Y_%H%M%S>_<pid>.log"
// through WriteLog (literal text, time-stamped), then lets the signal's earlier handler run,
// so that the process still ends by the signal. With LUMORA_HANGONCRASH at a non-zero number
// the process instead stays alive, sleeping, for a debugger to attach.
#include <ctime>
#include <string>

namespace base {

using CrashCallback = void (*)(int signal);

// hang < 0 reads the hang flag from LUMORA_HANGONCRASH; otherwise hang is the flag.
void InstallCrashHandlers(int hang = -1);

// The crash log's name for a run log destination: its text up to and including the last
// separator of either kind, then "crash_%s_%d.log" with the time and the process identifier.
std::string CrashLogName(const std::string& runLogDestination, std::time_t when, int pid);

// The UI shell's screen snapshot. When set, the crash handler runs it in place of the crash
// log; the shell sets it only when LUSHL_SNAP_CRASH_MOMENT holds a non-zero number.
using CrashSnapshotHook = void (*)();
void SetCrashSnapshotHook(CrashSnapshotHook hook);

// Whether an environment variable holds a non-zero number.
bool EnvironmentFlag(const char* name);

}  // namespace base
