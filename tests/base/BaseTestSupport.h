#pragma once
// What the base library's tests share besides the common helpers: environment changes undone
// at the end of a test, and child processes with pipes on their standard streams, all with
// time limits so that no test can hang.
#include <sys/types.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "../TestSupport.h"

namespace base_test {

using testing_support::ReadFile;
using testing_support::ScratchDir;
using testing_support::SplitLines;
using testing_support::WriteFile;

bool FileExists(const std::string& path);
// Names in a folder that begin with prefix, sorted.
std::vector<std::string> FilesStartingWith(const std::string& folder, const std::string& prefix);

// Sets (or with nullopt removes) an environment variable until the end of the scope.
class EnvGuard {
  public:
    EnvGuard(const char* name, std::optional<std::string> value);
    ~EnvGuard();
    EnvGuard(const EnvGuard&) = delete;
    EnvGuard& operator=(const EnvGuard&) = delete;

  private:
    std::string m_name;
    std::optional<std::string> m_saved;
};

// Environment changes for a child: a value sets, nullopt removes.
using EnvChanges = std::map<std::string, std::optional<std::string>>;

struct Child {
    pid_t pid = -1;
    int in = -1;   // our end of the child's standard input
    int out = -1;  // our end of the child's standard output
    int err = -1;  // our end of the child's standard error
};

// Starts a program in folder with pipes on its three standard streams.
Child Spawn(const std::vector<std::string>& argv, const EnvChanges& env, const std::string& folder);
// The sanitizer runtime must leave SIGSEGV and SIGABRT to the program under test.
EnvChanges CrashChildEnv();

// Reads exactly n bytes unless the end or the time limit comes first.
std::string ReadBytes(int fd, size_t n, int timeoutMs);
// Reads until the end of the stream or the time limit.
std::string ReadToEnd(int fd, int timeoutMs);
void WriteBytes(int fd, const std::string& bytes);
// A case message: the 32-bit length in the machine's order, then the bytes.
std::string CaseMessage(const std::string& bytes);

// Waits for the child's end; false when it has not ended within the limit.
bool WaitForExit(pid_t pid, int& status, int timeoutMs);
void CloseAll(Child& child);

}  // namespace base_test
