#include "base/PipeTransfer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include "BaseTestSupport.h"
#include "base/RunLog.h"

namespace {

struct Pipe {
    Pipe() { EXPECT_EQ(pipe2(fd, O_CLOEXEC), 0); }
    ~Pipe() {
        for (int f : fd)
            if (f >= 0) close(f);
    }
    void Close(int end) {
        close(fd[end]);
        fd[end] = -1;
    }
    int fd[2] = {-1, -1};
};

long long MsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                 start)
        .count();
}

TEST(ReadPipe, ReadsWhatArrivesAndStopsAtTheEnd) {
    Pipe p;
    base_test::WriteBytes(p.fd[1], "abc");
    char buf[8] = {};
    size_t count = 99;
    ASSERT_TRUE(base::ReadPipe(p.fd[0], buf, 2, &count, base::kPipeWaitForever, -1));
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(std::string(buf, 2), "ab");
    p.Close(1);  // a broken pipe counts as the bytes so far, not as an error
    ASSERT_TRUE(base::ReadPipe(p.fd[0], buf, 8, &count, 1000, -1));
    EXPECT_EQ(count, 1u);
    ASSERT_TRUE(base::ReadPipe(p.fd[0], buf, 8, nullptr, 1000, -1));
    ASSERT_TRUE(base::ReadPipe(p.fd[0], buf, 8, &count, base::kPipeWaitForever, -1));
    EXPECT_EQ(count, 0u);
}

TEST(ReadPipe, TimeLimitWithoutCancelDescriptorFails) {
    Pipe p;
    char buf[4];
    size_t count = 99;
    auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(base::ReadPipe(p.fd[0], buf, 4, &count, 150, -1));
    EXPECT_GE(MsSince(start), 150);
    EXPECT_EQ(count, 0u);
}

TEST(ReadPipe, TimeLimitWithCancelDescriptorReleasesTheRead) {
    Pipe p;
    char buf[4] = {'x', 'x', 'x', 'x'};
    size_t count = 99;
    // The caller holds the other end: the release byte arrives as the one byte read.
    EXPECT_TRUE(base::ReadPipe(p.fd[0], buf, 4, &count, 100, p.fd[1]));
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(buf[0], '\0');
}

TEST(WritePipe, BrokenPipeCountsZeroBytesAndDoesNotKill) {
    Pipe p;
    p.Close(0);
    size_t count = 99;
    EXPECT_TRUE(base::WritePipe(p.fd[1], "hello", 5, &count, base::kPipeWaitForever, -1));
    EXPECT_EQ(count, 0u);
    EXPECT_TRUE(base::WritePipe(p.fd[1], "hello", 5, &count, 100, -1));
    EXPECT_EQ(count, 0u);
}

TEST(WritePipe, FullPipeWithAndWithoutCancelDescriptor) {
    // A packet pipe of one page holds one write: reading it back makes room again.
    int fd[2];
    ASSERT_EQ(pipe2(fd, O_CLOEXEC | O_DIRECT), 0);
    ASSERT_EQ(fcntl(fd[1], F_SETPIPE_SZ, 4096), 4096);
    base_test::WriteBytes(fd[1], "full");
    size_t count = 99;
    auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(base::WritePipe(fd[1], "abcd", 4, &count, 150, -1));
    EXPECT_GE(MsSince(start), 150);
    EXPECT_EQ(count, 0u);
    // Released by reading the amount still to write from the caller's end.
    EXPECT_TRUE(base::WritePipe(fd[1], "abcd", 4, &count, 100, fd[0]));
    EXPECT_EQ(count, 4u);
    EXPECT_EQ(base_test::ReadBytes(fd[0], 4, 1000), "abcd");
    close(fd[0]);
    close(fd[1]);
}

TEST(PipeTransfer, ReadErrorIsRecordedInTheRunLog) {
    base_test::ScratchDir dir;
    base::ResetRunLogDestinations();
    base::RunLogDestination(("?" + dir.File("run.log")).c_str(), 0);
    int folder = open(dir.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    char buf[4];
    EXPECT_FALSE(base::ReadPipe(folder, buf, 4, nullptr, 500, -1));
    close(folder);
    EXPECT_EQ(base_test::ReadFile(dir.File("run.log")),
              "ERROR: /ReadPipe/ThreadProc/_read (Is a directory)\n");
    base::ResetRunLogDestinations();
}

}  // namespace
