#pragma once
// Helpers shared by the tests: a scratch folder per test, files in and out, the program run
// as a user runs it, and a clean slate of the global records. All but the last stand alone,
// so that the base library's tests use them too.
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace testing_support {

inline std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

inline void WriteFile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

// Lines without their ends; a last line without an end counts.
inline std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// With NDD2QFX_KEEP_DECKS naming a folder, the decks that a test left are copied there
// before the folder goes, named after the test, so that qfxview can check them.
inline void KeepDecks(const std::string& path) {
    const char* keep = std::getenv("NDD2QFX_KEEP_DECKS");
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    if (!keep || !*keep || !test) return;
    std::string prefix = std::string(test->test_suite_name()) + "." + test->name() + ".";
    for (char& c : prefix)
        if (c == '/') c = '_';
    std::string cmd = "cd '" + path +
                      "' && for f in $(find . -maxdepth 2 -name '*.qfx' -type f); do "
                      "cp \"$f\" '" +
                      keep + "/" + prefix + "'$(echo \"${f#./}\" | tr / _); done";
    if (std::system(cmd.c_str()) != 0) {
    }
}

// A new empty folder under the temporary folder, removed by the destructor.
class ScratchDir {
  public:
    ScratchDir() {
        const char* tmp = std::getenv("TMPDIR");
        std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/ndd2qfx_test_XXXXXX";
        std::vector<char> buf(pattern.begin(), pattern.end());
        buf.push_back('\0');
        char* made = mkdtemp(buf.data());
        path_ = made ? made : "/tmp";
    }
    ~ScratchDir() {
        if (path_.find("ndd2qfx_test_") == std::string::npos) return;
        KeepDecks(path_);
        std::string cmd = "chmod -R u+w '" + path_ + "' 2>/dev/null; rm -rf '" + path_ + "'";
        if (std::system(cmd.c_str()) != 0) {
        }
    }
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }
    // Writes text to name in this folder and returns its path.
    std::string Write(const std::string& name, const std::string& text) const {
        WriteFile(File(name), text);
        return File(name);
    }

  private:
    std::string path_;
};

// The whole text of tests/data/NAME; a missing file fails the test.
inline std::string DataFile(const std::string& name) {
    const std::string path = NDD2QFX_SOURCE_DIR "/tests/data/" + name;
    if (!std::ifstream(path)) ADD_FAILURE() << "no data file " << path;
    return ReadFile(path);
}

inline std::string ReadStream(FILE* f) {
    std::fflush(f);
    std::rewind(f);
    std::string text;
    char buf[4096];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
    return text;
}

// Output of a writer run on a temporary stream.
template <class F>
std::string CaptureOutput(F&& writer) {
    FILE* f = std::tmpfile();
    writer(f);
    std::string text = ReadStream(f);
    std::fclose(f);
    return text;
}

// Runs the program with arguments in folder; returns its exit status, stderr in errText.
inline int RunProgram(const std::string& folder, const std::vector<std::string>& args,
                      std::string* errText = nullptr) {
    std::string cmd = "cd '" + folder + "' && KEEP_BENCHMARK=0 '" NDD2QFX_BINARY "'";
    for (const auto& a : args) cmd += " '" + a + "'";
    std::string errPath = folder + "/.stderr";
    cmd += " 2>'" + errPath + "' >/dev/null";
    int status = std::system(cmd.c_str());
    if (errText) *errText = ReadFile(errPath);
    std::remove(errPath.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Options, model and trace back to their initial state; the benchmark trace off.
void ResetGlobals();

}  // namespace testing_support
