#include "base/CallStack.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <condition_variable>
#include <mutex>
#include <thread>

#include "BaseTestSupport.h"
#include "base/RunLog.h"

namespace call_stack_test {

__attribute__((noinline)) std::string CaptureOwnStack() {
    base::CCallStack stack;
    EXPECT_TRUE(stack.Create(pthread_self()));
    std::string text = stack.Text();
    asm volatile("" ::: "memory");  // keeps the call above from becoming a tail call
    return text;
}

std::mutex g_mutex;
std::condition_variable g_wake;
bool g_parked = false;
bool g_release = false;

__attribute__((noinline)) void ParkUntilReleased() {
    std::unique_lock<std::mutex> lock(g_mutex);
    g_parked = true;
    g_wake.notify_all();
    g_wake.wait(lock, [] { return g_release; });
}

}  // namespace call_stack_test

namespace {

using namespace call_stack_test;

TEST(CallStack, CurrentThreadNamesItsCallers) {
    std::string text = CaptureOwnStack();
    EXPECT_NE(text.find("call_stack_test::CaptureOwnStack"), std::string::npos) << text;
    EXPECT_EQ(text.substr(0, 4), "#00 ");
    EXPECT_NE(text.find("CallStackTest.cpp:"), std::string::npos) << text;
}

struct Parked {
    Parked() : thread(ParkUntilReleased) {
        std::unique_lock<std::mutex> lock(g_mutex);
        g_wake.wait(lock, [] { return g_parked; });
    }
    ~Parked() {
        {
            std::lock_guard<std::mutex> lock(g_mutex);
            g_release = true;
        }
        g_wake.notify_all();
        thread.join();
        g_parked = g_release = false;
    }
    std::thread thread;
};

TEST(CallStack, AnotherThreadIsCapturedWhereItWaits) {
    Parked parked;
    base::CCallStack stack;
    ASSERT_TRUE(stack.Create(parked.thread.native_handle()));
    std::string text = stack.Text();
    EXPECT_NE(text.find("call_stack_test::ParkUntilReleased()"), std::string::npos) << text;
    EXPECT_EQ(text.find("AnotherThreadIsCapturedWhereItWaits"), std::string::npos) << text;
}

TEST(CallStack, ThreadThatNeverAnswersGivesNoFramesAndARecord) {
    base_test::ScratchDir dir;
    base::ResetRunLogDestinations();
    base::RunLogDestination(("?" + dir.File("run.log")).c_str(), 0);
    base::CCallStack::SetRemoteWaitMs(200);
    std::mutex m;
    std::condition_variable cv;
    bool blocked = false, done = false;
    std::thread deaf([&] {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, nullptr);
        std::unique_lock<std::mutex> lock(m);
        blocked = true;
        cv.notify_all();
        cv.wait(lock, [&] { return done; });
    });
    {
        std::unique_lock<std::mutex> lock(m);
        cv.wait(lock, [&] { return blocked; });
    }
    base::CCallStack stack;
    EXPECT_FALSE(stack.Create(deaf.native_handle()));
    EXPECT_EQ(stack.Count(), 0);
    {
        std::lock_guard<std::mutex> lock(m);
        done = true;
    }
    cv.notify_all();
    deaf.join();
    base::CCallStack::SetRemoteWaitMs(2000);
    EXPECT_EQ(base_test::ReadFile(dir.File("run.log")),
              "ERROR: CCallStack/Create/GetThreadContext (Connection timed out)\n");
    base::ResetRunLogDestinations();
}

}  // namespace
