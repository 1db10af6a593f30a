#pragma once
// Helpers shared by the tests: a scratch folder per test, files in and out, and a clean
// slate of the global records.
#include <string>
#include <vector>

namespace testing_support {

// A new empty folder under the temporary folder, removed by the destructor.
class ScratchDir {
  public:
    ScratchDir();
    ~ScratchDir();
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }
    // Writes text to name in this folder and returns its path.
    std::string Write(const std::string& name, const std::string& text) const;

  private:
    std::string path_;
};

std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& text);
std::vector<std::string> SplitLines(const std::string& text);
// The whole text of tests/data/NAME; a missing file fails the test.
std::string DataFile(const std::string& name);

// Options, model and trace back to their initial state; the benchmark trace off.
void ResetGlobals();

// Output of a writer run on a temporary stream.
template <class F>
std::string CaptureOutput(F&& writer);

// Runs the program with arguments in folder; returns its exit status, stderr in errText.
int RunProgram(const std::string& folder, const std::vector<std::string>& args,
               std::string* errText = nullptr);

}  // namespace testing_support

#include <cstdio>

namespace testing_support {
std::string ReadStream(FILE* f);
template <class F>
std::string CaptureOutput(F&& writer) {
    FILE* f = std::tmpfile();
    writer(f);
    std::string text = ReadStream(f);
    std::fclose(f);
    return text;
}
}  // namespace testing_support
