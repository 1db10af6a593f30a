#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "ui/CrashSnapshot.h"

TEST(CrashSnapshot, PictureIsNamedByTheLocalTimeOfTheCrash) {
    setenv("TZ", "UTC", 1);
    tzset();
    // 2026-01-02 03:04:05 UTC
    EXPECT_EQ(CrashImageName("/logs/", 1767323045), "/logs/crash_image_01022026_030405.jpg");
}
