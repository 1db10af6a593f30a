#include "base/KnownLocations.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "BaseTestSupport.h"
#include "base/RunLog.h"

namespace {

using base_test::EnvGuard;
using base_test::ScratchDir;

struct LocationCase {
    std::optional<std::string> runLog;  // LULIB_RUNLOG, relative to the scratch folder
    std::string expectedRunLog;         // relative to the scratch folder
};

// The start-up setting replaces whatever LULIB_RUNLOG held by "Run.log" in the tool log
// folder, and exports it for child processes.
TEST(KnownLocations, StartUpSetsRunLogInTheToolLogFolder) {
    ScratchDir dir;
    const std::vector<LocationCase> cases = {
        {"logs/r.log", "logs/Run.log"},
        {":?logs/deep/r.log", "logs/deep/Run.log"},
        {"\"logs/q.log\"", "logs/Run.log"},
        {std::nullopt, "state/lumora/Translators/Run.log"},
        {"|", "state/lumora/Translators/Run.log"},
        {"*", "state/lumora/Translators/Run.log"},
    };
    EnvGuard state("XDG_STATE_HOME", dir.File("state"));
    for (const LocationCase& c : cases) {
        std::optional<std::string> value;
        if (c.runLog) {
            std::string v = *c.runLog;
            size_t at = v.find("logs");
            value = at == std::string::npos ? v : v.substr(0, at) + dir.Path() + "/" + v.substr(at);
        }
        SCOPED_TRACE(value ? *value : "(unset)");
        EnvGuard runLog("LULIB_RUNLOG", value);
        base::ResetRunLogDestinations();
        base::InitializeLuLib("Translators");
        std::string expected = dir.File(c.expectedRunLog);
        EXPECT_EQ(base::KnownLocationPath(base::KnownLocation::RunLogFile), expected);
        EXPECT_STREQ(base::RunLogDestination(nullptr, 0), expected.c_str());
        EXPECT_EQ(std::string(std::getenv("LULIB_RUNLOG")), "\"" + expected + "\"");
        EXPECT_TRUE(
            base_test::FileExists(base::KnownLocationPath(base::KnownLocation::ToolLogFolder)));
    }
    base::ResetRunLogDestinations();
}

}  // namespace
