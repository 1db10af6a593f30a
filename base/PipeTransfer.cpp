#include "base/PipeTransfer.h"

#include <limits.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <vector>

#include "base/Platform.h"
#include "base/RunLog.h"

namespace base {

namespace {

using Clock = std::chrono::steady_clock;

enum class Wait { Ready, Expired, Failed };

// Waits until fd is ready for the direction, or until the deadline when there is one.
Wait WaitReady(int fd, short events, bool limited, Clock::time_point deadline) {
    for (;;) {
        int ms = -1;
        if (limited) {
            auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
            if (left.count() <= 0) return Wait::Expired;
            ms = static_cast<int>(std::min<long long>(left.count(), INT_MAX));
        }
        pollfd p{fd, events, 0};
        int n = ::poll(&p, 1, ms);
        if (n > 0) return Wait::Ready;
        if (n < 0 && errno != EINTR) return Wait::Failed;
    }
}

// One read: bytes read, 0 at the end of the pipe, -1 on an error.
ssize_t ReadOnce(int fd, char* buffer, size_t size) {
    for (;;) {
        ssize_t n = ::read(fd, buffer, size);
        if (n >= 0) return n;
        if (errno == EINTR || errno == EAGAIN) continue;
        WriteRunLog("ERROR: /ReadPipe/ThreadProc/_read (%s)\n", ErrorText(errno));
        return -1;
    }
}

// One write with SIGPIPE held back: bytes written, 0 on a broken pipe, -1 on an error.
ssize_t WriteOnce(int fd, const char* buffer, size_t size) {
    sigset_t pipeSignal, previous;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipeSignal, &previous);
    ssize_t n;
    do n = ::write(fd, buffer, std::min<size_t>(size, PIPE_BUF));
    while (n < 0 && (errno == EINTR || errno == EAGAIN));
    int error = errno;
    if (n < 0 && error == EPIPE) {
        const timespec none{0, 0};
        sigtimedwait(&pipeSignal, nullptr, &none);
        n = 0;
    } else if (n < 0) {
        WriteRunLog("ERROR: /WritePipe/ThreadProc/_write (%s)\n", ErrorText(error));
    }
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    return n;
}

void Report(size_t* count, size_t done) {
    if (count) *count = done;
}

}  // namespace

bool ReadPipe(int fd, void* buffer, size_t size, size_t* readCount, uint32_t timeoutMs,
              int cancelFd) {
    char* out = static_cast<char*>(buffer);
    bool limited = timeoutMs != kPipeWaitForever;
    auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    size_t done = 0;
    while (done < size) {
        Wait w = WaitReady(fd, POLLIN, limited, deadline);
        if (w == Wait::Failed) return Report(readCount, done), false;
        if (w == Wait::Expired) {
            if (cancelFd < 0) return Report(readCount, done), false;
            const char release = 0;
            if (::write(cancelFd, &release, 1) != 1)
                WriteRunLog("ERROR: /ReadPipe/_write (%s)\n", ErrorText(errno));
            ssize_t n = ReadOnce(fd, out + done, size - done);
            if (n < 0) return Report(readCount, done), false;
            return Report(readCount, done + static_cast<size_t>(n)), true;
        }
        ssize_t n = ReadOnce(fd, out + done, size - done);
        if (n < 0) return Report(readCount, done), false;
        if (n == 0) break;
        done += static_cast<size_t>(n);
    }
    Report(readCount, done);
    return true;
}

bool WritePipe(int fd, const void* buffer, size_t size, size_t* writtenCount, uint32_t timeoutMs,
               int cancelFd) {
    const char* in = static_cast<const char*>(buffer);
    bool limited = timeoutMs != kPipeWaitForever;
    auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    size_t done = 0;
    while (done < size) {
        Wait w = WaitReady(fd, POLLOUT, limited, deadline);
        if (w == Wait::Failed) return Report(writtenCount, done), false;
        if (w == Wait::Expired) {
            if (cancelFd < 0) return Report(writtenCount, done), false;
            std::vector<char> drain(size - done);
            if (::read(cancelFd, drain.data(), drain.size()) < 0)
                WriteRunLog("ERROR: /WritePipe/_read (%s)\n", ErrorText(errno));
            ssize_t n = WriteOnce(fd, in + done, size - done);
            if (n < 0) return Report(writtenCount, done), false;
            return Report(writtenCount, done + static_cast<size_t>(n)), true;
        }
        ssize_t n = WriteOnce(fd, in + done, size - done);
        if (n < 0) return Report(writtenCount, done), false;
        if (n == 0) break;
        done += static_cast<size_t>(n);
    }
    Report(writtenCount, done);
    return true;
}

}  // namespace base
