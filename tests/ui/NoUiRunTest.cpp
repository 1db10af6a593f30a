// With no display, "-NoUI" starts the toolkit offscreen and translates exactly as "-b":
// the same files, and the same words on the terminal (the toolkit's own go to qt.log).
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;

// The run's files, with the log's date line left out.
std::string Outputs(const std::string& folder) {
    std::string undated;
    for (const std::string& line : testing_support::SplitLines(ReadFile(folder + "/board.qfx.log")))
        if (line.find("day ") == std::string::npos || line.find(" 20") == std::string::npos)
            undated += line + "\n";
    return ReadFile(folder + "/board.qfx") + "\n--log--\n" + undated + "\n--error.log--\n" +
           ReadFile(folder + "/error.log") + "\n--terminal--\n" + ReadFile(folder + "/terminal");
}

std::string Translate(const std::string& folder, const char* mode) {
    std::string cmd = "cd '" + folder +
                      "' && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM KEEP_BENCHMARK=0 "
                      "'" NDD2QFX_BINARY "' " +
                      mode + " board.ndd >/dev/null 2>terminal";
    EXPECT_EQ(std::system(cmd.c_str()), 0) << mode;
    return Outputs(folder);
}

TEST(NoUiRun, WritesTheSameFilesAsABatchRunWithNoDisplay) {
    testing_support::ScratchDir dir;
    testing_support::WriteFile(dir.File("board.ndd"),
                               ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    std::string batch = Translate(dir.Path(), "-b");
    std::string noUi = Translate(dir.Path(), "-NoUI");
    EXPECT_GT(batch.size(), 1000u);
    EXPECT_EQ(noUi, batch);
}

}  // namespace
