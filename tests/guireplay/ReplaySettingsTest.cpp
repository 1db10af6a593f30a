// The environment that switches record and replay on.
#include <gtest/gtest.h>

#include <cstdlib>

#include "guireplay/ReplaySettings.h"

using namespace guireplay;

namespace {

// Sets the variables for one test and clears them after it.
class Environment {
  public:
    explicit Environment(std::initializer_list<std::pair<const char*, const char*>> vars) {
        for (const auto& v : vars) {
            setenv(v.first, v.second, 1);
            m_names.push_back(v.first);
        }
    }
    ~Environment() {
        for (const char* name : m_names) unsetenv(name);
    }

  private:
    std::vector<const char*> m_names;
};

}  // namespace

TEST(ReplaySettings, NothingSetRecordsAndPlaysNothing) {
    const ReplaySettings s = SettingsFromEnvironment();
    EXPECT_FALSE(s.Records() || s.Plays());
    EXPECT_EQ(s.stepTimeoutMs, 5000);
}

TEST(ReplaySettings, AFixedPathIsTrimmedAndLosesItsExtension) {
    Environment env({{"RECFIXPATH", "/tmp/rec/login.brf  "}, {"LUSHL_GUIREPLAY_MANUAL", ""}});
    const ReplaySettings s = SettingsFromEnvironment();
    EXPECT_TRUE(s.Records());
    EXPECT_TRUE(s.manual);
    EXPECT_EQ(s.SessionBase("01022026_030405"), "/tmp/rec/login");
    EXPECT_EQ(s.RecordingFolder(), "/tmp/rec");
}

TEST(ReplaySettings, AFolderGetsAnAutomaticName) {
    Environment env({{"RECPATH", "/tmp/rec"}, {"LUSHL_GUIREPLAY_FULLLOG", "1"}});
    const ReplaySettings s = SettingsFromEnvironment();
    EXPECT_EQ(s.SessionBase("01022026_030405"), "/tmp/rec/GUIReplay_01022026_030405");
    EXPECT_TRUE(s.fullLog);
}

TEST(ReplaySettings, StepTimeOutIsRoundedToMilliseconds) {
    const std::pair<const char*, int> cases[] = {{"2.5", 2500},   {"0.0004", 0}, {"0.0006", 1},
                                                 {"1e-17", 5000}, {"-3", 5000},  {"x", 5000}};
    for (const auto& c : cases) {
        Environment env({{"LUSHL_GUIREPLAY_STEP_TIMEOUT", c.first}});
        EXPECT_EQ(SettingsFromEnvironment().stepTimeoutMs, c.second) << c.first;
    }
}

TEST(ReplaySettings, PlayingWinsOverRecording) {
    Environment env({{"RECPATH", "/tmp/rec"}, {"LUSHL_GUIREPLAY_PLAY", "/tmp/rec/a.brf"}});
    const ReplaySettings s = SettingsFromEnvironment();
    EXPECT_TRUE(s.Plays());
    EXPECT_FALSE(s.Records());
}
