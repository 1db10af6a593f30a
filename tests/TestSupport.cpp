#include "TestSupport.h"

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "model/LayoutModel.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"

namespace testing_support {

ScratchDir::ScratchDir() {
    const char* tmp = std::getenv("TMPDIR");
    std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/ndd2qfx_test_XXXXXX";
    std::vector<char> buf(pattern.begin(), pattern.end());
    buf.push_back('\0');
    char* made = mkdtemp(buf.data());
    path_ = made ? made : "/tmp";
}

// With NDD2QFX_KEEP_DECKS naming a folder, the decks that a test left are copied there
// before the folder goes, named after the test, so that qfxview can check them.
static void KeepDecks(const std::string& path) {
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

ScratchDir::~ScratchDir() {
    if (path_.find("ndd2qfx_test_") == std::string::npos) return;
    KeepDecks(path_);
    std::string cmd = "chmod -R u+w '" + path_ + "' 2>/dev/null; rm -rf '" + path_ + "'";
    if (std::system(cmd.c_str()) != 0) {
    }
}

std::string ScratchDir::Write(const std::string& name, const std::string& text) const {
    std::string path = File(name);
    WriteFile(path, text);
    return path;
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

void WriteFile(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
}

std::string DataFile(const std::string& name) {
    const std::string path = NDD2QFX_SOURCE_DIR "/tests/data/" + name;
    std::ifstream in(path, std::ios::binary);
    if (!in) ADD_FAILURE() << "no data file " << path;
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::string cur;
    for (char c : text) {
        if (c == '\n') {
            lines.push_back(cur);
            cur.clear();
        } else {
            cur += c;
        }
    }
    if (!cur.empty()) lines.push_back(cur);
    return lines;
}

void ResetGlobals() {
    setenv("KEEP_BENCHMARK", "0", 1);
    ResetTraceStep();
    ResetTranslationOptions();
    ResetLayoutModel();
}

std::string ReadStream(FILE* f) {
    std::fflush(f);
    std::rewind(f);
    std::string text;
    char buf[4096];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
    return text;
}

int RunProgram(const std::string& folder, const std::vector<std::string>& args,
               std::string* errText) {
    std::string cmd = "cd '" + folder + "' && KEEP_BENCHMARK=0 '" NDD2QFX_BINARY "'";
    for (const auto& a : args) cmd += " '" + a + "'";
    std::string errPath = folder + "/.stderr";
    cmd += " 2>'" + errPath + "' >/dev/null";
    int status = std::system(cmd.c_str());
    if (errText) *errText = ReadFile(errPath);
    std::remove(errPath.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace testing_support
