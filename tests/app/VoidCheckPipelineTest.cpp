// The order of the steps around the void check in a dialog run of the example board; what the
// check keeps and drops is in tests/data/cases/void_check_in_a_whole_translation.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "app/TranslationDriver.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"

namespace {

using namespace testing_support;

class StageRecorder : public TranslationDriver {
  public:
    std::vector<std::string> stages;

  protected:
    void OnStage(const std::string& text) override { stages.push_back(text); }
};

int AnswerNo(const std::string&, int, int) {
    return kAnswerNo;
}

// The stages shown, in a dialog run that declines the traces question.
std::vector<std::string> Stages() {
    ScratchDir dir;
    WriteFile(dir.File("board.ndd"), ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    SetMessageBoxHandler(AnswerNo);
    StageRecorder driver;
    EXPECT_NE(driver.Translate(dir.File("board.ndd"), dir.File("board.qfx")), 0);
    SetMessageBoxHandler(nullptr);
    return driver.stages;
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
