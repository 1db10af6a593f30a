#include "base/ParentPipe.h"

#include <alloca.h>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "base/PipeTransfer.h"
#include "base/Platform.h"
#include "base/RunLog.h"

namespace base {

namespace {

constexpr size_t kStackReserve = 8192;
constexpr unsigned kParentPollMs = 200;

struct Watch {
    pid_t parent;
    void (*onParentGone)();
};

// A pidfd becomes readable when the process ends. Without pidfds the parent is polled: once
// it has gone this process has another parent.
void WaitForParentEnd(pid_t parent) {
#ifdef SYS_pidfd_open
    int pidfd = static_cast<int>(::syscall(SYS_pidfd_open, parent, 0));
    if (pidfd >= 0) {
        pollfd p{pidfd, POLLIN, 0};
        while (::getppid() == parent) {
            int n = ::poll(&p, 1, -1);
            if (n > 0) break;
            if (n < 0 && errno != EINTR) {
                WriteRunLog("ERROR: /_ThreadProc_MonitorParentProcess/_cwait (%s)\n",
                            ErrorText(errno));
                ::close(pidfd);
                for (;;) ::pause();
            }
        }
        ::close(pidfd);
        return;
    }
    if (errno != ENOSYS && errno != ESRCH)
        WriteRunLog("ERROR: /GetParentPID/OpenProcess (%s)\n", ErrorText(errno));
#endif
    while (::getppid() == parent) ::usleep(kParentPollMs * 1000);
}

void* WatchParent(void* argument) {
    std::unique_ptr<Watch> watch(static_cast<Watch*>(argument));
    WaitForParentEnd(watch->parent);
    if (watch->onParentGone)
        watch->onParentGone();
    else
        ::_exit(0);  // a translator does not outlive the tool that started it
    return nullptr;
}

int StartWatcher(pid_t parent, void (*onParentGone)()) {
    pthread_t thread;
    Watch* watch = new Watch{parent, onParentGone};
    int rc = pthread_create(&thread, nullptr, WatchParent, watch);
    if (rc != 0) {
        delete watch;
        WriteRunLog("ERROR: /MonitorParentProcess/_beginthreadex (%s)\n", ErrorText(rc));
        return 0;
    }
    pthread_detach(thread);
    return 1;
}

bool Fail(std::string* errorText, const std::string& words) {
    if (errorText) *errorText = words;
    return false;
}

bool IsRegularFile(const char* path) {
    struct stat st {};
    return ::stat(path, &st) == 0 && S_ISREG(st.st_mode);
}

bool Unbuffer(FILE* stream, const char* name) {
    if (std::setvbuf(stream, nullptr, _IONBF, 0) == 0) return true;
    WriteRunLog("ERROR: /RedirectIOtoConsole/setvbuf(%s) (%s)\n", name, ErrorText(errno));
    return false;
}

// The received bytes: the count must be the length and the last byte a NUL. "ACK" is no case.
bool TakeCase(std::string* errorText, std::string& caseName, const char* bytes, size_t length) {
    static const char kAck[] = "ACK";
    if (length == sizeof kAck && std::memcmp(bytes, kAck, sizeof kAck) == 0) {
        caseName.clear();
        return true;
    }
    if (!IsRegularFile(bytes)) {
        return Fail(errorText, std::string("Failed to access received case \"") + bytes + "\"!\n");
    }
    caseName = bytes;
    return true;
}

bool ReadCase(std::string* errorText, std::string& caseName, uint32_t length, uint32_t replyMs) {
    // On the stack when it has room for the case and a reserve, else on the heap.
    std::unique_ptr<char[]> heap;
    char* buffer;
    if (StackRoom() > static_cast<size_t>(length) + kStackReserve) {
        buffer = static_cast<char*>(alloca(length));
    } else {
        heap.reset(new (std::nothrow) char[length]);
        if (!heap) return false;
        buffer = heap.get();
    }
    size_t got = 0;
    if (!ReadPipe(STDIN_FILENO, buffer, length, &got, replyMs, -1)) return false;
    if (got != length || buffer[length - 1] != '\0') return false;
    return TakeCase(errorText, caseName, buffer, length);
}

bool Handshake(std::string* errorText, std::string& caseName, const char* handshake,
               uint32_t replyMs) {
    std::fflush(stdout);
    size_t size = std::strlen(handshake) + 1;
    size_t written = 0;
    if (!WritePipe(STDOUT_FILENO, handshake, size, &written, kPipeWaitForever, -1) ||
        written != size)
        return Fail(errorText, "Failed to write to parent tool!\n");
    uint32_t length = 0;
    size_t got = 0;
    if (!ReadPipe(STDIN_FILENO, &length, sizeof length, &got, replyMs, -1)) return false;
    if (got != sizeof length || length == 0) return false;
    return ReadCase(errorText, caseName, length, replyMs);
}

}  // namespace

int MonitorParentProcess(void (*onParentGone)()) {
    return StartWatcher(::getppid(), onParentGone);
}

bool RedirectIOtoConsole() {
    int tty = ::open("/dev/tty", O_RDWR | O_NOCTTY);
    if (tty < 0) return true;
    ::close(tty);
    struct Stream {
        FILE* stream;
        const char* name;
        const char* mode;
    };
    bool ok = true;
    for (const Stream& s : {Stream{stdin, "stdin", "r"}, Stream{stdout, "stdout", "w"},
                            Stream{stderr, "stderr", "w"}}) {
        if (!std::freopen("/dev/tty", s.mode, s.stream)) {
            WriteRunLog("ERROR: /RedirectIOtoConsole/freopen(%s) (%s)\n", s.name, ErrorText(errno));
            ok = false;
            continue;
        }
        ok = Unbuffer(s.stream, s.name) && ok;
    }
    return ok;
}

int GetCaseFromParent(std::string* errorText, std::string& caseName, const char* handshake,
                      bool restoreConsole, uint32_t replyMs) {
    if (errorText) errorText->clear();
    if (!handshake || !*handshake) return 0;
    pid_t parent = ::getppid();
    if (!Handshake(errorText, caseName, handshake, replyMs)) return 0;
    if (!StartWatcher(parent, nullptr)) return Fail(errorText, "Failed to monitor parent tool!\n");
    if (restoreConsole) {
        if (!RedirectIOtoConsole()) return Fail(errorText, "Failed to restore stdin and stdout!\n");
    } else {
        Unbuffer(stdin, "stdin");
        Unbuffer(stdout, "stdout");
        Unbuffer(stderr, "stderr");
    }
    return 1;
}

}  // namespace base
