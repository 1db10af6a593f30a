// The program started by a parent tool: "-pipe" makes it announce itself, take a translation
// log over its standard input and go on with that log as if it had been named.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "BaseTestSupport.h"

namespace {

using base_test::Child;
using base_test::ScratchDir;

const std::string kHello("I'm Gantry", 11);

struct PipeRun {
    int status = -1;
    std::string hello;
};

base_test::EnvChanges ProgramEnv(const ScratchDir& dir, bool trace) {
    base_test::EnvChanges env{{"XDG_STATE_HOME", dir.File("state")},
                              {"LULIB_RUNLOG", std::nullopt},
                              {"TMP", dir.File("tmp")}};
    if (trace) env["KEEP_BENCHMARK"] = std::nullopt;
    return env;
}

PipeRun RunWithParent(const std::vector<std::string>& options, const std::string& reply,
                      const ScratchDir& dir, const std::string& folder, bool trace = false) {
    std::vector<std::string> argv{NDD2QFX_BINARY};
    argv.insert(argv.end(), options.begin(), options.end());
    Child child = base_test::Spawn(argv, ProgramEnv(dir, trace), folder);
    PipeRun run;
    run.hello = base_test::ReadBytes(child.out, kHello.size(), 20000);
    base_test::WriteBytes(child.in, reply);
    EXPECT_TRUE(base_test::WaitForExit(child.pid, run.status, 120000));
    base_test::CloseAll(child);
    return run;
}

// The text of each trace line, behind its time.
std::vector<std::string> TraceTexts(const std::string& file) {
    std::vector<std::string> texts;
    for (const std::string& line : base_test::SplitLines(base_test::ReadFile(file))) {
        size_t at = line.find(": ");
        texts.push_back(at == std::string::npos ? line : line.substr(at + 2));
    }
    return texts;
}

class PipeStart : public ::testing::Test {
  protected:
    void SetUp() override {
        mkdir(m_dir.File("tmp").c_str(), 0777);
        mkdir(m_dir.File("work").c_str(), 0777);
    }
    ScratchDir m_dir;
};

TEST_F(PipeStart, ParentHandsALogAndTheChildTranslatesIt) {
    std::string board = m_dir.File("board.ndd");
    base_test::WriteFile(board, base_test::ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    Child first =
        base_test::Spawn({NDD2QFX_BINARY, "-NoUI", board}, ProgramEnv(m_dir, false), m_dir.Path());
    int status = 0;
    ASSERT_TRUE(base_test::WaitForExit(first.pid, status, 120000));
    base_test::CloseAll(first);
    const std::string qfx = base_test::ReadFile(m_dir.File("board.qfx"));
    const std::string errors = base_test::ReadFile(m_dir.File("error.log"));
    ASSERT_FALSE(qfx.empty());
    ASSERT_EQ(std::remove(m_dir.File("board.qfx").c_str()), 0);

    std::string log = m_dir.File("board.qfx.log");
    PipeRun run = RunWithParent({"-pipe", "-NoUI"}, base_test::CaseMessage(log + '\0'), m_dir,
                                m_dir.File("work"));
    EXPECT_EQ(run.hello, kHello);
    EXPECT_TRUE(WIFEXITED(run.status) && WEXITSTATUS(run.status) == 0);
    EXPECT_EQ(base_test::ReadFile(m_dir.File("board.qfx")), qfx);
    EXPECT_EQ(base_test::ReadFile(m_dir.File("error.log")), errors);
}

TEST_F(PipeStart, AckGivesANormalStartWithNoFile) {
    PipeRun run = RunWithParent({"-b", "/PIPE"}, base_test::CaseMessage(std::string("ACK", 4)),
                                m_dir, m_dir.File("work"));
    EXPECT_EQ(run.hello, kHello);
    EXPECT_TRUE(WIFEXITED(run.status) && WEXITSTATUS(run.status) == 0);
    EXPECT_EQ(base_test::ReadFile(m_dir.File("work/error.log")), "Please specify a NDD file\n");
}

TEST_F(PipeStart, FailedHandshakeIsTracedAndTheStartStops) {
    const struct {
        const char* name;
        std::string reply;
        std::vector<std::string> trace;
    } cases[] = {
        {"zero length",
         base_test::CaseMessage(""),
         {"start parse cmd line for Ndd", "faile to get case name from pipe"}},
        {"folder",
         base_test::CaseMessage(m_dir.Path() + '\0'),
         {"start parse cmd line for Ndd", "faile to get case name from pipe",
          "Failed to access received case \"" + m_dir.Path() + "\"!"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        PipeRun run = RunWithParent({"-NoUI", "-pipe"}, c.reply, m_dir, m_dir.File("work"), true);
        EXPECT_EQ(run.hello, kHello);
        EXPECT_TRUE(WIFEXITED(run.status));
        EXPECT_EQ(WEXITSTATUS(run.status), 254);  // the start routine stopped early
        EXPECT_EQ(TraceTexts(m_dir.File("tmp/debug_bm.log")), c.trace);
        EXPECT_FALSE(base_test::FileExists(m_dir.File("work/error.log")));
        std::remove(m_dir.File("tmp/debug_bm.log").c_str());
    }
}

}  // namespace
