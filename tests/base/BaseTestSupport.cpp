#include "BaseTestSupport.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <thread>

extern char** environ;

namespace base_test {

namespace {

std::vector<std::string> ChildEnvironment(const EnvChanges& changes) {
    std::vector<std::string> env;
    for (char** e = environ; *e; ++e) {
        std::string entry = *e;
        std::string name = entry.substr(0, entry.find('='));
        if (!changes.count(name)) env.push_back(entry);
    }
    for (const auto& [name, value] : changes)
        if (value) env.push_back(name + "=" + *value);
    return env;
}

std::vector<char*> Pointers(std::vector<std::string>& strings) {
    std::vector<char*> p;
    for (std::string& s : strings) p.push_back(&s[0]);
    p.push_back(nullptr);
    return p;
}

}  // namespace

bool FileExists(const std::string& path) {
    struct stat st {};
    return stat(path.c_str(), &st) == 0;
}

std::vector<std::string> FilesStartingWith(const std::string& folder, const std::string& prefix) {
    std::vector<std::string> names;
    if (DIR* d = opendir(folder.c_str())) {
        while (dirent* e = readdir(d)) {
            std::string name = e->d_name;
            if (name.compare(0, prefix.size(), prefix) == 0) names.push_back(name);
        }
        closedir(d);
    }
    std::sort(names.begin(), names.end());
    return names;
}

EnvGuard::EnvGuard(const char* name, std::optional<std::string> value) : m_name(name) {
    if (const char* old = std::getenv(name)) m_saved = old;
    if (value)
        setenv(name, value->c_str(), 1);
    else
        unsetenv(name);
}

EnvGuard::~EnvGuard() {
    if (m_saved)
        setenv(m_name.c_str(), m_saved->c_str(), 1);
    else
        unsetenv(m_name.c_str());
}

Child Spawn(const std::vector<std::string>& argv, const EnvChanges& env,
            const std::string& folder) {
    std::vector<std::string> args = argv;
    std::vector<std::string> envStrings = ChildEnvironment(env);
    std::vector<char*> argp = Pointers(args);
    std::vector<char*> envp = Pointers(envStrings);
    int in[2], out[2], err[2];
    if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0)
        return Child{};
    pid_t pid = fork();
    if (pid == 0) {
        dup2(in[0], 0);
        dup2(out[1], 1);
        dup2(err[1], 2);
        if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(126);
        execve(argp[0], argp.data(), envp.data());
        _exit(127);
    }
    close(in[0]);
    close(out[1]);
    close(err[1]);
    return Child{pid, in[1], out[0], err[0]};
}

EnvChanges CrashChildEnv() {
    return EnvChanges{
        {"ASAN_OPTIONS", "handle_segv=0:handle_abort=0:allow_user_segv_handler=1:detect_leaks=0"},
        {"UBSAN_OPTIONS", "handle_segv=0:handle_abort=0"},
        {"LUMORA_HANGONCRASH", std::nullopt}};
}

std::string ReadBytes(int fd, size_t n, int timeoutMs) {
    auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    std::string got;
    while (got.size() < n) {
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        pollfd p{fd, POLLIN, 0};
        if (left.count() <= 0 || poll(&p, 1, static_cast<int>(left.count())) <= 0) break;
        char buf[4096];
        ssize_t r = read(fd, buf, std::min(sizeof buf, n - got.size()));
        if (r <= 0) break;
        got.append(buf, static_cast<size_t>(r));
    }
    return got;
}

std::string ReadToEnd(int fd, int timeoutMs) {
    return ReadBytes(fd, SIZE_MAX, timeoutMs);
}

void WriteBytes(int fd, const std::string& bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = write(fd, bytes.data() + done, bytes.size() - done);
        if (n <= 0) return;
        done += static_cast<size_t>(n);
    }
}

std::string CaseMessage(const std::string& bytes) {
    uint32_t length = static_cast<uint32_t>(bytes.size());
    return std::string(reinterpret_cast<const char*>(&length), sizeof length) + bytes;
}

bool WaitForExit(pid_t pid, int& status, int timeoutMs) {
    auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    for (;;) {
        pid_t r = waitpid(pid, &status, WNOHANG);
        if (r == pid) return true;
        if (r < 0 || std::chrono::steady_clock::now() >= deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void CloseAll(Child& child) {
    for (int* fd : {&child.in, &child.out, &child.err})
        if (*fd >= 0) close(*fd), *fd = -1;
}

}  // namespace base_test
