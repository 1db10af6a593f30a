// A small program that the base library's tests start as a child:
//   segv | abort                     installs the crash handlers and crashes
//   segv-in-handler | abort-in-handler
//                                    crashes, and crashes again while the crash is handled
//   pipe <replyMs> [stay]            takes a case from its parent and reports on stderr
//                                    "ok [<case>]" (status 0) or "fail [<words>]" (status 3);
//                                    with "stay" it then waits for its parent's end
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "base/CrashHandler.h"
#include "base/ParentPipe.h"

namespace crash_helper {

int* volatile g_target = nullptr;

__attribute__((noinline, no_sanitize("address", "undefined"))) void CrashByNullWrite() {
    *g_target = 1;
}

__attribute__((noinline)) void CrashByAbort() {
    std::abort();
}

}  // namespace crash_helper

namespace {

int TakeCase(uint32_t replyMs, bool stay) {
    std::string words, caseName;
    int ok = base::GetCaseFromParent(&words, caseName, "I'm Gantry", false, replyMs);
    std::fprintf(stderr, "%s [%s]\n", ok ? "ok" : "fail", ok ? caseName.c_str() : words.c_str());
    std::fflush(stderr);
    if (!ok) return 3;
    if (stay) {
        // Lets the parent go; the watcher ends this process with status 0.
        close(STDERR_FILENO);
        for (int i = 0; i < 600; ++i) usleep(100 * 1000);
        return 5;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "segv-in-handler" || mode == "abort-in-handler") {
        base::InstallCrashHandlers(-1);
        base::SetCrashSnapshotHook(mode == "segv-in-handler" ? crash_helper::CrashByNullWrite
                                                             : crash_helper::CrashByAbort);
        crash_helper::CrashByNullWrite();
        return 4;
    }
    if (mode == "segv" || mode == "abort") {
        base::InstallCrashHandlers(-1);
        if (mode == "segv")
            crash_helper::CrashByNullWrite();
        else
            crash_helper::CrashByAbort();
        return 4;
    }
    if (mode == "pipe" && argc > 2)
        return TakeCase(static_cast<uint32_t>(std::strtoul(argv[2], nullptr, 10)),
                        argc > 3 && std::strcmp(argv[3], "stay") == 0);
    std::fprintf(stderr, "usage: %s segv|abort|pipe <replyMs> [stay]\n", argv[0]);
    return 2;
}
