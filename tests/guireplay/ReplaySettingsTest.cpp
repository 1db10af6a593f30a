// The environment that switches record and replay on.
#include <gtest/gtest.h>

#include <QStringList>
#include <cstdlib>

#include "guireplay/ReplaySettings.h"

using namespace guireplay;

namespace {

struct EnvironmentCase {
    std::vector<std::pair<const char*, const char*>> vars;
    // "record|play|manual|full log|time out" and, when recording, "|session base|folder"
    const char* expected;
};

const EnvironmentCase kCases[] = {
    {{}, "0|0|0|0|5000"},
    // A fixed path is trimmed and loses its extension.
    {{{"RECFIXPATH", "/tmp/rec/login.brf  "}, {"LUSHL_GUIREPLAY_MANUAL", ""}},
     "1|0|1|0|5000|/tmp/rec/login|/tmp/rec"},
    {{{"RECPATH", "/tmp/rec"}, {"LUSHL_GUIREPLAY_FULLLOG", "1"}},
     "1|0|0|1|5000|/tmp/rec/GUIReplay_S|/tmp/rec"},
    // Playing wins over recording.
    {{{"RECPATH", "/tmp/rec"}, {"LUSHL_GUIREPLAY_PLAY", "/tmp/rec/a.brf"}}, "0|1|0|0|5000"},
    // The step time out is rounded to milliseconds; what is no positive number keeps 5 s.
    {{{"LUSHL_GUIREPLAY_STEP_TIMEOUT", "2.5"}}, "0|0|0|0|2500"},
    {{{"LUSHL_GUIREPLAY_STEP_TIMEOUT", "0.0004"}}, "0|0|0|0|0"},
    {{{"LUSHL_GUIREPLAY_STEP_TIMEOUT", "0.0006"}}, "0|0|0|0|1"},
    {{{"LUSHL_GUIREPLAY_STEP_TIMEOUT", "1e-17"}}, "0|0|0|0|5000"},
    {{{"LUSHL_GUIREPLAY_STEP_TIMEOUT", "-3"}}, "0|0|0|0|5000"},
    {{{"LUSHL_GUIREPLAY_STEP_TIMEOUT", "x"}}, "0|0|0|0|5000"},
};

}  // namespace

TEST(ReplaySettings, TheEnvironmentSwitchesRecordAndPlayAndSteersThem) {
    for (const EnvironmentCase& c : kCases) {
        for (const auto& [name, value] : c.vars) setenv(name, value, 1);
        const ReplaySettings s = SettingsFromEnvironment();
        for (const auto& var : c.vars) unsetenv(var.first);
        QStringList fields;
        for (int v :
             {int(s.Records()), int(s.Plays()), int(s.manual), int(s.fullLog), s.stepTimeoutMs})
            fields << QString::number(v);
        if (s.Records()) fields << s.SessionBase("S") << s.RecordingFolder();
        EXPECT_EQ(fields.join('|').toStdString(), c.expected);
    }
}
