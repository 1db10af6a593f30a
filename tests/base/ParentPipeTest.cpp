#include "base/ParentPipe.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "BaseTestSupport.h"

namespace {

using base_test::Child;
using base_test::ScratchDir;

const std::string kHello("I'm Gantry", 11);  // with its terminating NUL

struct Outcome {
    int status = -1;
    std::string hello;
    std::string report;  // the helper's line on standard error
};

// Starts the helper as a pipe child, reads its handshake, sends the bytes, and waits.
Outcome RunPipeChild(const std::string& reply, const char* replyMs, bool closeAfterReply) {
    Child child = base_test::Spawn({BASE_TEST_HELPER, "pipe", replyMs}, {}, "");
    Outcome o;
    o.hello = base_test::ReadBytes(child.out, kHello.size(), 10000);
    base_test::WriteBytes(child.in, reply);
    if (closeAfterReply) close(child.in), child.in = -1;
    o.report = base_test::ReadToEnd(child.err, 20000);
    EXPECT_TRUE(base_test::WaitForExit(child.pid, o.status, 20000));
    base_test::CloseAll(child);
    return o;
}

struct ReplyCase {
    const char* name;
    std::string reply;  // the bytes the parent sends, length included
    bool closeAfter;
    std::string report;
    const char* replyMs = "2000";  // how long the child waits for each read
};

TEST(GetCaseFromParent, RepliesOfTheParent) {
    ScratchDir dir;
    std::string file = dir.File("case.log");
    base_test::WriteFile(file, "log\n");
    std::string missing = dir.File("nothing.log");
    const auto msg = base_test::CaseMessage;
    const ReplyCase cases[] = {
        {"ack", msg(std::string("ACK", 4)), false, "ok []\n"},
        {"file", msg(file + '\0'), false, "ok [" + file + "]\n"},
        {"folder", msg(dir.Path() + '\0'), false,
         "fail [Failed to access received case \"" + dir.Path() + "\"!\n]\n"},
        {"missing", msg(missing + '\0'), false,
         "fail [Failed to access received case \"" + missing + "\"!\n]\n"},
        {"zero length", msg(""), false, "fail []\n"},
        {"short length", std::string("\x05\x00", 2), true, "fail []\n"},
        {"no NUL at the end", msg("ACK"), false, "fail []\n"},
        {"fewer bytes than the length", msg("ACK").substr(0, 5), true, "fail []\n"},
        {"ACK without its NUL inside a longer text", msg(std::string("ACKx", 5)), false,
         "fail [Failed to access received case \"ACKx\"!\n]\n"},
        // Silent from the start, then silent after the length: each read has the limit.
        {"silent parent", "", false, "fail []\n", "300"},
        {"silent after the length", msg(std::string("ACK", 4)).substr(0, 4), false, "fail []\n",
         "300"},
    };
    for (const ReplyCase& c : cases) {
        SCOPED_TRACE(c.name);
        Outcome o = RunPipeChild(c.reply, c.replyMs, c.closeAfter);
        EXPECT_EQ(o.hello, kHello);
        EXPECT_EQ(o.report, c.report);
        bool ok = c.report.compare(0, 3, "ok ") == 0;
        EXPECT_TRUE(WIFEXITED(o.status));
        EXPECT_EQ(WEXITSTATUS(o.status), ok ? 0 : 3);
    }
}

TEST(GetCaseFromParent, ParentThatDoesNotListenMakesTheGreetingFail) {
    Child child = base_test::Spawn({BASE_TEST_HELPER, "pipe", "300"}, {}, "");
    close(child.out), child.out = -1;
    EXPECT_EQ(base_test::ReadToEnd(child.err, 20000), "fail [Failed to write to parent tool!\n]\n");
    int status = 0;
    EXPECT_TRUE(base_test::WaitForExit(child.pid, status, 20000));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 3);
    base_test::CloseAll(child);
}

// The test adopts orphans, so it can wait for the pipe child once its parent has gone.
TEST(GetCaseFromParent, ChildEndsWithStatusZeroWhenItsParentEnds) {
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    int report[2];
    ASSERT_EQ(pipe(report), 0);
    pid_t parent = fork();
    if (parent == 0) {
        close(report[0]);
        Child child = base_test::Spawn({BASE_TEST_HELPER, "pipe", "5000", "stay"}, {}, "");
        bool hello = base_test::ReadBytes(child.out, kHello.size(), 10000) == kHello;
        base_test::WriteBytes(child.in, base_test::CaseMessage(std::string("ACK", 4)));
        bool taken = base_test::ReadToEnd(child.err, 10000) == "ok []\n";
        std::string pid = std::to_string(child.pid);
        base_test::WriteBytes(report[1], pid);
        _exit(hello && taken ? 0 : 1);  // the parent tool goes away, its pipes with it
    }
    close(report[1]);
    std::string childPid = base_test::ReadToEnd(report[0], 20000);
    close(report[0]);
    int status = 0;
    ASSERT_TRUE(base_test::WaitForExit(parent, status, 20000));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    ASSERT_FALSE(childPid.empty());
    pid_t child = static_cast<pid_t>(std::stoi(childPid));
    bool ended = base_test::WaitForExit(child, status, 10000);
    if (!ended) kill(child, SIGKILL), waitpid(child, &status, 0);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}

}  // namespace
