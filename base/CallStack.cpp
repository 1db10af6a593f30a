#include "base/CallStack.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <elfutils/libdwfl.h>
#include <execinfo.h>
#include <semaphore.h>
#include <signal.h>
#include <ucontext.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <mutex>

#include "base/Platform.h"
#include "base/RunLog.h"

namespace base {

namespace {

// Another thread's stack is taken in its own handler of this signal.
int CaptureSignal() {
    return SIGRTMIN + 1;
}

struct RemoteRequest {
    void* frames[CCallStack::kMaxFrames + 1];
    int count = 0;
    void* interrupted = nullptr;
    sem_t done;
};

RemoteRequest g_request;
std::atomic<bool> g_requestOpen{false};
std::mutex g_remoteMutex;
int g_remoteWaitMs = 2000;

void CaptureInHandler(int, siginfo_t*, void* context) {
    if (!g_requestOpen.load()) return;
    int savedErrno = errno;
    g_request.interrupted = InterruptedAddress(context);
    g_request.count = backtrace(g_request.frames, CCallStack::kMaxFrames + 1);
    sem_post(&g_request.done);
    errno = savedErrno;
}

void InstallCaptureHandler() {
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction action {};
        action.sa_sigaction = CaptureInHandler;
        action.sa_flags = SA_RESTART | SA_SIGINFO;
        sigemptyset(&action.sa_mask);
        sigaction(CaptureSignal(), &action, nullptr);
    });
}

bool WaitForCapture() {
    timespec deadline{};
    clock_gettime(CLOCK_REALTIME, &deadline);
    deadline.tv_sec += g_remoteWaitMs / 1000;
    deadline.tv_nsec += static_cast<long>(g_remoteWaitMs % 1000) * 1000000L;
    if (deadline.tv_nsec >= 1000000000L) deadline.tv_sec += 1, deadline.tv_nsec -= 1000000000L;
    while (sem_timedwait(&g_request.done, &deadline) != 0)
        if (errno != EINTR) return false;
    return true;
}

std::string Demangled(const char* name) {
    int status = 0;
    char* plain = abi::__cxa_demangle(name, nullptr, nullptr, &status);
    if (status != 0 || !plain) return name;
    std::string text(plain);
    std::free(plain);
    return text;
}

std::string BaseName(const char* path) {
    std::string p(path ? path : "");
    size_t sep = LastSeparator(p);
    return sep == std::string::npos ? p : p.substr(sep + 1);
}

Dwfl* OpenSymbolServices() {
    static char* debugInfoPath = nullptr;
    static Dwfl_Callbacks callbacks{};
    callbacks.find_elf = dwfl_linux_proc_find_elf;
    callbacks.find_debuginfo = dwfl_standard_find_debuginfo;
    callbacks.debuginfo_path = &debugInfoPath;
    Dwfl* dwfl = dwfl_begin(&callbacks);
    if (!dwfl) return nullptr;
    if (dwfl_linux_proc_report(dwfl, getpid()) != 0 ||
        dwfl_report_end(dwfl, nullptr, nullptr) != 0) {
        dwfl_end(dwfl);
        return nullptr;
    }
    return dwfl;
}

// lookup is the address inside the call instruction (a return address minus one), so that
// the line is the call's and not the next statement's.
void Describe(Dwfl* dwfl, uintptr_t pc, uintptr_t lookup, CCallStack::Frame& f) {
    if (Dwfl_Module* mod = dwfl ? dwfl_addrmodule(dwfl, lookup) : nullptr) {
        f.module = BaseName(
            dwfl_module_info(mod, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
        GElf_Off off = 0;
        GElf_Sym sym{};
        if (const char* name =
                dwfl_module_addrinfo(mod, lookup, &off, &sym, nullptr, nullptr, nullptr)) {
            f.symbol = Demangled(name);
            f.offset = static_cast<unsigned long>(off + (pc - lookup));
        }
        if (Dwfl_Line* line = dwfl_module_getsrc(mod, lookup)) {
            int number = 0;
            if (const char* file =
                    dwfl_lineinfo(line, nullptr, &number, nullptr, nullptr, nullptr)) {
                f.file = file;
                f.line = number;
            }
        }
    }
    if (!f.symbol.empty()) return;
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(lookup), &info) == 0) return;
    if (f.module.empty()) f.module = BaseName(info.dli_fname);
    if (info.dli_sname) {
        f.symbol = Demangled(info.dli_sname);
        f.offset = static_cast<unsigned long>(pc - reinterpret_cast<uintptr_t>(info.dli_saddr));
    }
}

}  // namespace

void* InterruptedAddress(void* signalContext) {
    if (!signalContext) return nullptr;
    const ucontext_t* uc = static_cast<const ucontext_t*>(signalContext);
#if defined(__x86_64__)
    return reinterpret_cast<void*>(uc->uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__)
    return reinterpret_cast<void*>(uc->uc_mcontext.pc);
#else
    (void)uc;
    return nullptr;
#endif
}

void PrepareCallStacks() {
    void* frames[2];
    backtrace(frames, 2);
    InstallCaptureHandler();
}

__attribute__((noinline)) bool CCallStack::CreateForCurrentThread(int skip) {
    void* raw[kMaxFrames + 16];
    int wanted = kMaxFrames + 1 + (skip < 0 ? 0 : skip);
    if (wanted > kMaxFrames + 16) wanted = kMaxFrames + 16;
    int n = backtrace(raw, wanted);
    int first = 1 + (skip < 0 ? 0 : skip);  // raw[0] is this function
    m_count = 0;
    for (int i = first; i < n && m_count < kMaxFrames; ++i) m_frames[m_count++].address = raw[i];
    return m_count > 0;
}

__attribute__((noinline)) bool CCallStack::Create(pthread_t thread, int skip) {
    if (pthread_equal(thread, pthread_self())) {
        bool captured = CreateForCurrentThread(skip + 1);
        asm volatile("" ::: "memory");  // keeps this frame: the capture is no tail call
        return captured;
    }
    m_count = 0;
    InstallCaptureHandler();
    std::lock_guard<std::mutex> lock(g_remoteMutex);
    sem_init(&g_request.done, 0, 0);
    g_request.count = 0;
    g_requestOpen = true;
    bool captured = false;
    if (int rc = pthread_kill(thread, CaptureSignal()); rc != 0) {
        WriteRunLog("ERROR: CCallStack/Create/SuspendThread (%s)\n", ErrorText(rc));
    } else if (!WaitForCapture()) {
        WriteRunLog("ERROR: CCallStack/Create/GetThreadContext (%s)\n", ErrorText(ETIMEDOUT));
    } else {
        captured = true;
    }
    g_requestOpen = false;
    if (captured) {
        m_interrupted = g_request.interrupted;
        // frames[0] is the capturing handler.
        for (int i = 1 + (skip < 0 ? 0 : skip); i < g_request.count && m_count < kMaxFrames; ++i)
            m_frames[m_count++].address = g_request.frames[i];
    }
    sem_destroy(&g_request.done);
    return m_count > 0;
}

void CCallStack::Resolve() {
    Dwfl* dwfl = OpenSymbolServices();
    for (int i = 0; i < m_count; ++i) {
        Frame& f = m_frames[i];
        if (!f.symbol.empty() || !f.module.empty()) continue;
        uintptr_t pc = reinterpret_cast<uintptr_t>(f.address);
        // The frame a signal interrupted holds its own address, the others return addresses.
        bool exact = pc == 0 || f.address == m_interrupted;
        Describe(dwfl, pc, exact ? pc : pc - 1, f);
    }
    if (dwfl) dwfl_end(dwfl);
}

std::string CCallStack::Text() {
    Resolve();
    std::string text;
    char head[64];
    for (int i = 0; i < m_count; ++i) {
        const Frame& f = m_frames[i];
        std::snprintf(head, sizeof head, "#%02d 0x%016" PRIxPTR " ", i,
                      reinterpret_cast<uintptr_t>(f.address));
        text += head;
        bool trampoline =
            i + 1 < m_count && m_interrupted && m_frames[i + 1].address == m_interrupted;
        if (f.symbol.empty() && trampoline) {
            text += "<signal handler called>";
        } else if (f.symbol.empty()) {
            text += "??";
        } else {
            char offset[32];
            std::snprintf(offset, sizeof offset, "+0x%lx", f.offset);
            text += f.symbol + offset;
        }
        if (!f.file.empty()) text += " at " + f.file + ":" + std::to_string(f.line);
        if (!f.module.empty()) text += " in " + f.module;
        text += "\n";
    }
    return text;
}

void CCallStack::SetRemoteWaitMs(int ms) {
    g_remoteWaitMs = ms;
}

}  // namespace base
