#include "base/RunLog.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <string>
#include <vector>

#include "BaseTestSupport.h"
#include "base/DebugOutput.h"
#include "base/SafeFile.h"

namespace {

using base_test::EnvGuard;
using base_test::ReadFile;
using base_test::ScratchDir;

const std::string kIndent(23, ' ');

// Every time stamp "[YYYY/MM/DD-HH:MM:SS]--" becomes "<T>", so that whole files compare.
std::string MaskStamps(const std::string& text) {
    const std::string shape = "[dddd/dd/dd-dd:dd:dd]--";
    std::string out;
    for (size_t i = 0; i < text.size();) {
        bool stamp = i + shape.size() <= text.size();
        for (size_t k = 0; stamp && k < shape.size(); ++k)
            stamp = shape[k] == 'd' ? std::isdigit(static_cast<unsigned char>(text[i + k])) != 0
                                    : text[i + k] == shape[k];
        if (stamp) {
            out += "<T>";
            i += shape.size();
        } else {
            out += text[i++];
        }
    }
    return out;
}

std::vector<std::string> g_pieces;
void CollectPiece(const char* piece, size_t length) {
    g_pieces.emplace_back(piece, length);
}

class RunLogTest : public ::testing::Test {
  protected:
    void SetUp() override {
        base::ResetRunLogDestinations();
        g_pieces.clear();
        m_previousSink = base::SetDebugOutputSink(CollectPiece);
    }
    void TearDown() override {
        base::SetDebugOutputSink(m_previousSink);
        base::ResetRunLogDestinations();
    }
    ScratchDir m_dir;
    EnvGuard m_env{"LULIB_RUNLOG", std::nullopt};
    base::DebugOutputSink m_previousSink = nullptr;
};

struct FileCase {
    const char* flags;  // put in front of the file's path
    std::vector<const char*> messages;
    const char* expected;  // the whole file, stamps masked; null: no file at all
};

TEST_F(RunLogTest, DestinationGrammarForFiles) {
    const std::vector<FileCase> cases = {
        {"", {"a %d\n", "b\n"}, "<T>a 1\n<T>b\n"},
        {"?", {"a %d\n", "b\n"}, "a 1\nb\n"},
        {":", {"a %d\n", "b\n"}, "<T>b\n"},
        {":?", {"a %d\n", "b %d\n"}, "b 1\n"},
        {"\"?", {"100%d%%\n"}, "100%d%%\n"},
        {"\":", {"x%d\n", "y%d\n"}, "<T>y%d\n"},
        {"",
         {"one\ntwo\nthree\n"},
         "<T>one\n                       two\n                       three\n"},
        {"", {"one\ntwo"}, "<T>one\n                       two"},
        {"", {"\n"}, "<T>\n"},
        {"?", {"one\ntwo\n"}, "one\ntwo\n"},
        {"|", {"a\n"}, nullptr},
        {"?|", {"a\n"}, nullptr},
        {":?|", {"a\n"}, nullptr},
        {"?", {"", nullptr}, nullptr},
    };
    int n = 0;
    for (const FileCase& c : cases) {
        std::string path = m_dir.File("case" + std::to_string(++n) + ".log");
        std::string destination = c.flags + path;
        for (const char* m : c.messages) base::WriteLog(destination.c_str(), m, 1);
        SCOPED_TRACE(destination);
        if (c.expected)
            EXPECT_EQ(MaskStamps(ReadFile(path)), c.expected);
        else
            EXPECT_FALSE(base_test::FileExists(path));
    }
    EXPECT_TRUE(g_pieces.empty());
}

TEST_F(RunLogTest, DebuggerChannelTakesPiecesOf4096) {
    const std::string message(10000, 'm');
    base::WriteLog("", message.c_str());
    ASSERT_EQ(g_pieces.size(), 3u);
    EXPECT_EQ(g_pieces[0].size(), 4096u);
    EXPECT_EQ(g_pieces[1].size(), 4096u);
    EXPECT_EQ(g_pieces[2].size(), 10000u + 23u - 8192u);
    EXPECT_EQ(MaskStamps(g_pieces[0] + g_pieces[1] + g_pieces[2]), "<T>" + message);

    g_pieces.clear();
    base::WriteLog("?", message.c_str());
    ASSERT_EQ(g_pieces.size(), 3u);
    EXPECT_EQ(g_pieces[2], std::string(10000 - 8192, 'm'));
}

TEST_F(RunLogTest, StandardOutputDestination) {
    std::string path = m_dir.File("stdout.txt");
    std::fflush(stdout);
    int saved = dup(STDOUT_FILENO);
    FILE* f = std::fopen(path.c_str(), "w");
    ASSERT_NE(f, nullptr);
    dup2(fileno(f), STDOUT_FILENO);
    base::WriteLog("?*", "to %s\n", "stdout");
    base::WriteLog("*", "a\nb\n");
    std::fflush(stdout);
    dup2(saved, STDOUT_FILENO);
    close(saved);
    std::fclose(f);
    EXPECT_EQ(MaskStamps(ReadFile(path)), "to stdout\n<T>a\n" + kIndent + "b\n");
}

TEST_F(RunLogTest, UnwritableDestinationLosesTheMessageQuietly) {
    for (std::string destination :
         {m_dir.File("missing/x.log"), m_dir.Path(), ":" + m_dir.File("missing/y.log")}) {
        errno = EINTR;
        base::WriteLog(destination.c_str(), "lost %d\n", 1);
        EXPECT_EQ(errno, EINTR) << destination;
    }
    EXPECT_TRUE(base_test::FilesStartingWith(m_dir.Path(), "").size() == 2u);  // "." and ".."
    EXPECT_TRUE(g_pieces.empty());
}

TEST_F(RunLogTest, EnvironmentPicksTheRunLog) {
    std::string path = m_dir.File("x.log");
    struct EnvCase {
        std::string value;
        int fileMessages;  // messages expected in x.log; -1: none, and nothing to the debugger
        int pieces;
    };
    const std::vector<EnvCase> cases = {
        {"|", -1, 0}, {":" + path, 1, 0},
        {path, 2, 0}, {"\"" + path + "\"", 2, 0},  // the form exported to child processes
        {"", -1, 2},
    };
    for (const EnvCase& c : cases) {
        SCOPED_TRACE(c.value);
        std::remove(path.c_str());
        g_pieces.clear();
        setenv("LULIB_RUNLOG", c.value.c_str(), 1);
        base::ResetRunLogDestinations();
        base::WriteRunLog("first\n");
        base::WriteRunLog("second\n");
        const char* expected = c.fileMessages == 1   ? "<T>second\n"
                               : c.fileMessages == 2 ? "<T>first\n<T>second\n"
                                                     : nullptr;
        if (expected) {
            EXPECT_EQ(MaskStamps(ReadFile(path)), expected);
        } else {
            EXPECT_FALSE(base_test::FileExists(path));
        }
        EXPECT_EQ(g_pieces.size(), static_cast<size_t>(c.pieces));
    }
}

TEST_F(RunLogTest, SlotsAndTheEnvironment) {
    EXPECT_STREQ(base::RunLogDestination(nullptr, 0), "Run.Log");
    for (int slot = 1; slot < 5; ++slot) EXPECT_EQ(base::RunLogDestination(nullptr, slot), nullptr);
    EXPECT_STREQ(base::RunLogDestination("k.log", 3), "k.log");
    EXPECT_STREQ(base::RunLogDestination(nullptr, 3), "k.log");
    EXPECT_EQ(std::getenv("LULIB_RUNLOG"), nullptr);  // only slot 0 is exported

    base::ResetRunLogDestinations();
    setenv("LULIB_RUNLOG", "first.log", 1);
    EXPECT_STREQ(base::RunLogDestination(nullptr, 0), "first.log");
    setenv("LULIB_RUNLOG", "later.log", 1);
    EXPECT_STREQ(base::RunLogDestination(nullptr, 0), "first.log");  // read once
    EXPECT_STREQ(base::RunLogDestination(nullptr, 5), "first.log");
    EXPECT_STREQ(base::RunLogDestination(nullptr, -1), "first.log");

    EXPECT_STREQ(base::RunLogDestination("/logs/Run.log", 7), "/logs/Run.log");
    EXPECT_STREQ(base::RunLogDestination(nullptr, 0), "/logs/Run.log");
    EXPECT_STREQ(std::getenv("LULIB_RUNLOG"), "\"/logs/Run.log\"");
}

TEST_F(RunLogTest, SafeDeleteFileRecordsItsFailure) {
    std::string log = m_dir.File("run.log");
    base::RunLogDestination(("?" + log).c_str(), 0);
    std::string victim = m_dir.File("victim.tmp");
    base_test::WriteFile(victim, "x");
    EXPECT_TRUE(base::SafeDeleteFile(victim));
    EXPECT_FALSE(base_test::FileExists(victim));
    EXPECT_FALSE(base_test::FileExists(log));

    EXPECT_FALSE(base::SafeDeleteFile(victim));
    EXPECT_EQ(ReadFile(log),
              "ERROR: /SafeDeleteFile/_tremove(" + victim + ") (No such file or directory)\n");
}

TEST_F(RunLogTest, SafeCreatePathMakesEveryFolderOrRecordsWhy) {
    std::string log = m_dir.File("run.log");
    base::RunLogDestination(("?" + log).c_str(), 0);
    EXPECT_TRUE(base::SafeCreatePath(m_dir.File("a/b/c/")));
    EXPECT_TRUE(base::SafeCreatePath(m_dir.File("a/b/c")));
    EXPECT_TRUE(base_test::FileExists(m_dir.File("a/b/c")));
    EXPECT_FALSE(base_test::FileExists(log));

    base_test::WriteFile(m_dir.File("f"), "");
    EXPECT_FALSE(base::SafeCreatePath(m_dir.File("f/x")));
    EXPECT_EQ(ReadFile(log),
              "ERROR: /SafeCreatePath/_tmkdir(" + m_dir.File("f/x") + ") (Not a directory)\n");
}

}  // namespace
