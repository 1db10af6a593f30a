// Batch runs that would need a shell or a special file: pipes, hard links, a parent folder
// and a file-size limit. The plain cases live in tests/data/cases.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;

const char kBoard[] = "%length mm;\n";

// Runs a shell line in folder with the program as $P; returns the exit status.
int RunShell(const std::string& folder, const std::string& line) {
    std::string cmd = "cd '" + folder + "' && P='" NDD2QFX_BINARY "' KEEP_BENCHMARK=0 sh -c '" +
                      line + "' >/dev/null 2>&1";
    int status = std::system(cmd.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(SafeBatchRun, PipesAreRefusedAtOnceWhereverTheyAreNamed) {
    const std::vector<std::vector<std::string>> lines = {
        {"-NoUI", "pipe.ndd"},
        {"-NoUI", "-traces", "pipe.ndd", "a.ndd"},
        {"-NoUI", "-hkp", "pipe.ndd", "a.ndd"},
    };
    for (const auto& args : lines) {
        ScratchDir dir;
        dir.Write("a.ndd", kBoard);
        ASSERT_EQ(::mkfifo(dir.File("pipe.ndd").c_str(), 0600), 0);
        std::string err;
        auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(RunProgram(dir.Path(), args, &err), 0);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
        EXPECT_NE(err.find("ndd2qfx: " + dir.File("pipe.ndd") + ": Not a regular file\n"),
                  std::string::npos)
            << args[1] << "\n"
            << err;
    }
}

TEST(SafeBatchRun, OutputThatIsTheInputUnderAnotherNameIsRefused) {
    ScratchDir dir;
    dir.Write("a.ndd", kBoard);
    ASSERT_EQ(::link(dir.File("a.ndd").c_str(), dir.File("b.qfx").c_str()), 0);
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "-strict", "a.ndd", "b.qfx"}), 1);
    EXPECT_EQ(ReadFile(dir.File("a.ndd")), kBoard);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "Cannot write file : " + dir.File("b.qfx") +
                                                   " (it is " + dir.File("a.ndd") +
                                                   ", which this run reads)\n");
}

TEST(SafeBatchRun, RelativeNamesAreTakenFromTheStartFolder) {
    ScratchDir dir;
    dir.Write("a.ndd", kBoard);
    ASSERT_EQ(::mkdir(dir.File("sub").c_str(), 0700), 0);
    EXPECT_EQ(RunProgram(dir.File("sub"), {"-NoUI", "../a.ndd", "../rel.qfx"}), 0);
    EXPECT_TRUE(std::ifstream(dir.File("rel.qfx")).good());
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
    EXPECT_FALSE(std::ifstream(dir.File("sub/error.log")).good());
}

// The example board's deck is some 17 KB: a limit of 4 KB cuts the first writing.
TEST(SafeBatchRun, AFullDiskFailsTheTranslation) {
    ScratchDir dir;
    std::string board = ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd");
    ASSERT_GT(board.size(), 4096u);
    dir.Write("board.ndd", board);
    const std::string limited = "ulimit -f 4; trap \"\" XFSZ; $P -NoUI ";
    EXPECT_EQ(RunShell(dir.Path(), limited + "board.ndd big.qfx"), 0);
    EXPECT_EQ(RunShell(dir.Path(), limited + "-strict board.ndd big.qfx"), 1);
    EXPECT_EQ(ReadFile(dir.File("error.log")),
              "Cannot write file : " + dir.File("big.qfx") + " (File too large)\n");
}

}  // namespace
