// Every input that once crashed or hung a fuzz harness, and every seed of the fuzz corpus,
// replayed through the harness's own entry with the normal build: the run must come back,
// and a translation that succeeds must have written the whole file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>

#include "TestSupport.h"
#include "fuzz/FuzzTargets.h"

namespace {

namespace fs = std::filesystem;
using testing_support::ReadFile;

using Entry = std::function<int(const uint8_t*, size_t, const std::string&)>;

const char kBoard[] = NDD2QFX_SOURCE_DIR "/examples/board.ndd";

// The harnesses that translate the example board with a side file take the board too.
template <class F>
Entry WithBoard(F harness) {
    return [harness](const uint8_t* d, size_t n, const std::string& f) {
        return harness(d, n, f, kBoard);
    };
}

Entry EntryOf(const std::string& harness) {
    if (harness == "translate") return fuzz::TranslateNdd;
    if (harness == "pinmap") return fuzz::SavePinMapping;
    if (harness == "log") return WithBoard(fuzz::TranslateWithLog);
    if (harness == "ibis") return WithBoard(fuzz::TranslateWithIbis);
    if (harness == "traces") return WithBoard(fuzz::TranslateWithTraces);
    return WithBoard(fuzz::TranslateWithHkp);
}

std::vector<fs::path> FilesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    if (fs::is_directory(folder))
        for (const auto& e : fs::directory_iterator(folder))
            if (e.is_regular_file() && e.path().filename().string()[0] != '.')
                files.push_back(e.path());
    std::sort(files.begin(), files.end());
    return files;
}

// Replays every file of folder; returns how many there were.
size_t Replay(const std::string& harness, const fs::path& folder) {
    Entry entry = EntryOf(harness);
    std::vector<fs::path> files = FilesIn(folder);
    for (const fs::path& file : files) {
        std::string bytes = ReadFile(file.string());
        fuzz::ScratchFolder scratch;
        int result =
            entry(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size(), scratch.Path());
        if (result && harness != "pinmap") {
            std::string qfx = ReadFile(scratch.File("out.qfx"));
            size_t tail = std::min<size_t>(qfx.size(), 5);
            EXPECT_EQ(qfx.substr(qfx.size() - tail), ".End\n") << file;
        }
    }
    return files.size();
}

class FuzzReplay : public ::testing::TestWithParam<const char*> {};

TEST_P(FuzzReplay, SeedCorpus) {
    size_t n = Replay(GetParam(), fs::path(NDD2QFX_SOURCE_DIR) / "fuzz" / "corpus" / GetParam());
    EXPECT_GT(n, 0u) << "no seeds for " << GetParam();
}

TEST_P(FuzzReplay, SavedFindings) {
    fs::path folder =
        fs::path(NDD2QFX_SOURCE_DIR) / "tests" / "data" / "fuzz_regressions" / GetParam();
    size_t n = Replay(GetParam(), folder);
    if (n == 0) GTEST_SKIP() << "no saved findings for " << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Harnesses, FuzzReplay,
                         ::testing::Values("translate", "traces", "hkp", "ibis", "log", "pinmap"));

}  // namespace
