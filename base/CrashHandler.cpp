#include "base/CrashHandler.h"

#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "base/CallStack.h"
#include "base/Platform.h"
#include "base/RunLog.h"

namespace base {

namespace {

constexpr int kHandlerSlots = 5;
// A resolution that deadlocks (a crash inside the allocator) must not hold the process for
// ever: the alarm's default action ends it.
constexpr unsigned kCrashLogSeconds = 30;
constexpr size_t kAlternateStack = 1 << 20;

struct HandlerSlot {
    int signal = 0;
    CrashCallback callback = nullptr;
    struct sigaction previous {};
};

HandlerSlot g_slots[kHandlerSlots];
volatile sig_atomic_t g_hang = 0;
volatile sig_atomic_t g_inHandler = 0;
CrashSnapshotHook g_snapshot = nullptr;

void NoCallback(int) {}

HandlerSlot* SlotFor(int sig) {
    for (HandlerSlot& s : g_slots)
        if (s.signal == sig) return &s;
    for (HandlerSlot& s : g_slots)
        if (s.signal == 0) {
            s.signal = sig;
            return &s;
        }
    return nullptr;
}

__attribute__((noinline)) void WriteCrashLog(int sig, void* context) {
    CCallStack stack;
    // Skips this function and the handler.
    if (!stack.CreateForCurrentThread(2)) return;
    stack.SetInterruptedAddress(InterruptedAddress(context));
    std::string text = "Signal " + std::to_string(sig) + " (" + strsignal(sig) + ")\n";
    text += stack.Text();
    std::string name =
        "\"" + CrashLogName(RunLogDestination(nullptr, 0), std::time(nullptr), getpid());
    WriteLog(name.c_str(), text.c_str());
}

// Puts back the handler that was there before and delivers the signal to it once this
// handler returns (the signal stays blocked until then).
void PassToEarlierHandler(int sig, HandlerSlot* slot) {
    struct sigaction earlier {};
    if (slot) earlier = slot->previous;
    bool usable = earlier.sa_handler != SIG_IGN || (earlier.sa_flags & SA_SIGINFO);
    if (!slot || !usable) {
        earlier = {};
        earlier.sa_handler = SIG_DFL;
    }
    sigaction(sig, &earlier, nullptr);
    raise(sig);
}

void CrashHandler(int sig, siginfo_t*, void* context) {
    if (g_inHandler) {
        // A second fault while the first is being logged: end at once.
        signal(sig, SIG_DFL);
        raise(sig);
        return;
    }
    g_inHandler = 1;
    HandlerSlot* slot = SlotFor(sig);
    if (slot && slot->callback) {
        signal(SIGALRM, SIG_DFL);
        alarm(kCrashLogSeconds);
        if (g_snapshot)
            g_snapshot();
        else
            WriteCrashLog(sig, context);
        alarm(0);
    }
    while (g_hang) sleep(1);
    if (slot && slot->callback) slot->callback(sig);
    PassToEarlierHandler(sig, slot);
    g_inHandler = 0;
}

void InstallAlternateStack() {
    void* memory =
        mmap(nullptr, kAlternateStack, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) return;
    stack_t alternate{};
    alternate.ss_sp = memory;
    alternate.ss_size = kAlternateStack;
    if (sigaltstack(&alternate, nullptr) != 0) munmap(memory, kAlternateStack);
}

}  // namespace

bool EnvironmentFlag(const char* name) {
    const char* value = std::getenv(name);
    return value && std::atoi(value) != 0;
}

void InstallCrashHandlers(int hang) {
    g_hang = hang < 0 ? EnvironmentFlag("LUMORA_HANGONCRASH") : hang != 0;
    PrepareCallStacks();
    InstallAlternateStack();
    for (int sig : {SIGSEGV, SIGABRT}) {
        HandlerSlot* slot = SlotFor(sig);
        struct sigaction action {};
        action.sa_sigaction = CrashHandler;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK;
        sigemptyset(&action.sa_mask);
        struct sigaction previous {};
        sigaction(sig, &action, &previous);
        // Installing twice must not make the handler its own predecessor.
        if (previous.sa_sigaction != CrashHandler) slot->previous = previous;
        slot->callback = NoCallback;
    }
}

std::string CrashLogName(const std::string& runLogDestination, std::time_t when, int pid) {
    std::string stamp = FormatTime("%m%d%Y_%H%M%S", when);
    char name[128];
    std::snprintf(name, sizeof name, "crash_%s_%d.log", stamp.c_str(), pid);
    return FolderWithSeparator(runLogDestination) + name;
}

void SetCrashSnapshotHook(CrashSnapshotHook hook) {
    g_snapshot = hook;
}

}  // namespace base
