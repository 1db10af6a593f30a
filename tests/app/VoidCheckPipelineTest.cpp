// The order of the steps around the void check in a dialog run of the example board; what the
// check keeps and drops is in tests/data/cases/void_check_in_a_whole_translation.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "RecordingHost.h"
#include "TestSupport.h"
#include "app/TranslationDriver.h"
#include "model/TranslationOptions.h"

namespace {

using namespace testing_support;

// The stages shown, in a dialog run that declines the traces question.
std::vector<std::string> Stages() {
    ScratchDir dir;
    WriteFile(dir.File("board.ndd"), ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    RecordingHost host;
    host.answer = false;
    TranslationDriver driver(host);
    EXPECT_EQ(driver.Translate(dir.File("board.ndd"), dir.File("board.qfx")),
              TranslateStatus::Done);
    return host.stages;
}

bool Contains(const std::vector<std::string>& all, const std::vector<std::string>& part) {
    return std::search(all.begin(), all.end(), part.begin(), part.end()) != all.end();
}

// The void check must run before the vias are made, and only when a void option asks for it.
TEST(VoidCheckPipeline, TheCheckRunsBetweenThePackageHeadAndTheVias) {
    ResetGlobals();
    g_options.g_dbVoidAreaLimit = 4.5;
    EXPECT_TRUE(Contains(Stages(), {"Writing PKG header ...", "Check Undiscardable Void Shapes ...",
                                    "Writing Via Info...", "Writing Shape Info..."}));
    ResetGlobals();
    g_options.g_bExcludeVoidEnclosingVia = 0;
    g_options.g_bTranslateVias = 0;
    EXPECT_TRUE(Contains(Stages(), {"Writing PKG header ...", "Writing Shape Info..."}));
}

}  // namespace
