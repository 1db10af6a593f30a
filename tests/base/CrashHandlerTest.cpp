#include "base/CrashHandler.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <ctime>
#include <thread>

#include "BaseTestSupport.h"

namespace {

using base_test::ScratchDir;

std::time_t LocalTime(int year, int month, int day, int hour, int minute, int second) {
    std::tm t{};
    t.tm_year = year - 1900;
    t.tm_mon = month - 1;
    t.tm_mday = day;
    t.tm_hour = hour;
    t.tm_min = minute;
    t.tm_sec = second;
    t.tm_isdst = -1;
    return std::mktime(&t);
}

TEST(CrashLogName, FolderOfTheRunLogThenTimeAndProcess) {
    const std::time_t when = LocalTime(2026, 3, 7, 9, 5, 4);
    const struct {
        const char* runLog;
        const char* expected;
    } cases[] = {
        {"d:\\logs\\r.log", "d:\\logs\\crash_03072026_090504_1234.log"},
        {"/var/log/tool/Run.log", "/var/log/tool/crash_03072026_090504_1234.log"},
        {"Run.Log", "crash_03072026_090504_1234.log"},
        {"", "crash_03072026_090504_1234.log"},
        {"a/b\\c.log", "a/b\\crash_03072026_090504_1234.log"},
        {":?/tmp/x/r.log", ":?/tmp/x/crash_03072026_090504_1234.log"},
    };
    for (const auto& c : cases) EXPECT_EQ(base::CrashLogName(c.runLog, when, 1234), c.expected);
}

// The crash log's possible names for a child that ran between two instants.
bool IsCrashLogNameOf(const std::string& name, pid_t pid, std::time_t from, std::time_t to) {
    for (std::time_t t = from; t <= to; ++t)
        if (name == base::CrashLogName("", t, pid)) return true;
    return false;
}

struct CrashRun {
    int status = 0;
    pid_t pid = 0;
    std::time_t from = 0, to = 0;
};

CrashRun RunCrash(const std::string& mode, const std::string& folder, const std::string& runLog) {
    base_test::EnvChanges env = base_test::CrashChildEnv();
    env["LULIB_RUNLOG"] = runLog;
    CrashRun run;
    run.from = std::time(nullptr);
    base_test::Child child = base_test::Spawn({BASE_TEST_HELPER, mode}, env, folder);
    run.pid = child.pid;
    EXPECT_TRUE(base_test::WaitForExit(child.pid, run.status, 60000));
    run.to = std::time(nullptr);
    base_test::CloseAll(child);
    return run;
}

struct CrashCase {
    const char* mode;
    int signal;
    const char* function;
    const char* signalLine;
    bool bareRunLog;  // a run log named without a folder: the crash log goes to the working folder
};

TEST(CrashHandler, CrashLeavesStackBesideRunLogOrInTheWorkingFolderAndEndsBySignal) {
    const CrashCase cases[] = {
        {"segv", SIGSEGV, "crash_helper::CrashByNullWrite()", "Signal 11 (Segmentation fault)",
         false},
        {"abort", SIGABRT, "crash_helper::CrashByAbort()", "Signal 6 (Aborted)", false},
        {"segv", SIGSEGV, "crash_helper::CrashByNullWrite()", "Signal 11 (Segmentation fault)",
         true},
    };
    // The helper carries debug information: its frames name file and line.
    const std::string helperFrame = "BaseTestHelper.cpp:";
    for (const CrashCase& c : cases) {
        SCOPED_TRACE(c.mode);
        ScratchDir work, logs;
        const ScratchDir& where = c.bareRunLog ? work : logs;
        CrashRun run = RunCrash(c.mode, work.Path(), c.bareRunLog ? "r.log" : logs.File("r.log"));
        ASSERT_TRUE(WIFSIGNALED(run.status));
        EXPECT_EQ(WTERMSIG(run.status), c.signal);
        std::vector<std::string> found = base_test::FilesStartingWith(where.Path(), "crash_");
        ASSERT_EQ(found.size(), 1u);
        EXPECT_TRUE(IsCrashLogNameOf(found[0], run.pid, run.from, run.to)) << found[0];
        if (!c.bareRunLog) {
            EXPECT_TRUE(base_test::FilesStartingWith(work.Path(), "crash_").empty());
        }

        std::vector<std::string> lines =
            base_test::SplitLines(base_test::ReadFile(where.File(found[0])));
        ASSERT_GE(lines.size(), 3u);
        // Time-stamped first line, every frame under it indented by 23 blanks.
        EXPECT_EQ(lines[0].substr(23), c.signalLine);
        bool named = false;
        for (size_t i = 1; i < lines.size(); ++i) {
            EXPECT_EQ(lines[i].substr(0, 24), std::string(23, ' ') + "#") << lines[i];
            named = named || (lines[i].find(c.function) != std::string::npos &&
                              lines[i].find(helperFrame) != std::string::npos &&
                              lines[i].find(" in base_test_helper") != std::string::npos);
        }
        EXPECT_TRUE(named) << base_test::ReadFile(where.File(found[0]));
    }
}

TEST(CrashHandler, SecondFaultWhileHandlingEndsTheProcess) {
    const struct {
        const char* mode;
        int signal;
    } cases[] = {{"segv-in-handler", SIGSEGV}, {"abort-in-handler", SIGABRT}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        ScratchDir logs;
        CrashRun run = RunCrash(c.mode, logs.Path(), logs.File("r.log"));
        ASSERT_TRUE(WIFSIGNALED(run.status));
        EXPECT_EQ(WTERMSIG(run.status), c.signal);
    }
}

TEST(CrashHandler, HangOnCrashKeepsTheProcessForADebugger) {
    ScratchDir logs;
    base_test::EnvChanges env = base_test::CrashChildEnv();
    env["LULIB_RUNLOG"] = logs.File("r.log");
    env["LUMORA_HANGONCRASH"] = "1";
    base_test::Child child = base_test::Spawn({BASE_TEST_HELPER, "segv"}, env, logs.Path());
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (base_test::FilesStartingWith(logs.Path(), "crash_").empty() &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    ASSERT_EQ(base_test::FilesStartingWith(logs.Path(), "crash_").size(), 1u);
    int status = 0;
    EXPECT_FALSE(base_test::WaitForExit(child.pid, status, 1500));  // still alive
    kill(child.pid, SIGKILL);
    ASSERT_TRUE(base_test::WaitForExit(child.pid, status, 10000));
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    base_test::CloseAll(child);
}

}  // namespace
