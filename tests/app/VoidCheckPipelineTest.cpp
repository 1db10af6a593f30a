// The void check and the via step inside a whole translation of the example board.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "model/ReportMessage.h"
#include "app/TranslationDriver.h"
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

class VoidCheckPipelineTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        SetMessageBoxHandler(AnswerNo);  // a dialog run that declines the traces question
        WriteFile(dir.File("board.ndd"), ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd"));
    }
    void TearDown() override { SetMessageBoxHandler(nullptr); }
    std::string Translate() {
        EXPECT_NE(driver.Translate(dir.File("board.ndd"), dir.File("board.qfx")), 0);
        return ReadFile(dir.File("board.qfx"));
    }
    // The lines of the section ".Shape Shape$<layer>", without its first and last line.
    static std::vector<std::string> Section(const std::string& qfx, const std::string& layer) {
        std::vector<std::string> lines, out;
        lines = SplitLines(qfx);
        bool in = false;
        for (const std::string& l : lines) {
            if (l == ".Shape Shape$" + layer + " Color = green") {
                in = true;
            } else if (in && l == ".EndShape") {
                break;
            } else if (in && l.rfind("+", 0) != 0) {
                out.push_back(l.substr(0, l.find(' ')));
            }
        }
        return out;
    }
    ScratchDir dir;
    StageRecorder driver;
};

TEST_F(VoidCheckPipelineTest, AnUndiscardableVoidOpeningItsSectionKeepsTheSmallVoids) {
    g_options.g_dbVoidAreaLimit = 4.5;
    const std::string qfx = Translate();
    // On TOP the smallest shape is void B (0.25 mm²), crossed by a trace: the check marks it,
    // it opens the section, and so every small void of TOP stays.
    EXPECT_EQ(Section(qfx, "TOP"),
              (std::vector<std::string>{"Polygon8::GND+", "Polygon7::VCC+", "Polygon6::CLK+",
                                        "Polygon5::GND-", "Polygon4::GND-", "Polygon3::GND+",
                                        "Circle2::GND-", "Circle1::VCC-", "Polygon0::GND-"}));
    // On GND the round void goes by itself; the VCC island opens the section, and with its
    // flag clear the void around it (4 mm², undiscardable) goes too. The 6 mm² void and the
    // two whole-board fills stay.
    EXPECT_EQ(Section(qfx, "GND"),
              (std::vector<std::string>{"Polygon14::GND+", "Polygon13::GND+", "Polygon12::GND-",
                                        "Polygon10::VCC+"}));
    const std::vector<std::string> expected = {"Writing PKG header ...",
                                               "Check Undiscardable Void Shapes ...",
                                               "Writing Via Info...", "Writing Shape Info..."};
    auto at =
        std::search(driver.stages.begin(), driver.stages.end(), expected.begin(), expected.end());
    EXPECT_NE(at, driver.stages.end());
}

TEST_F(VoidCheckPipelineTest, WithoutVoidOptionsTheCheckDoesNotRun) {
    g_options.g_bExcludeVoidEnclosingVia = 0;
    g_options.g_bTranslateVias = 0;
    const std::string qfx = Translate();
    const std::vector<std::string> expected = {"Writing PKG header ...", "Writing Shape Info..."};
    auto at =
        std::search(driver.stages.begin(), driver.stages.end(), expected.begin(), expected.end());
    EXPECT_NE(at, driver.stages.end());
    EXPECT_EQ(Section(qfx, "TOP").size(), 9u);  // nothing is dropped
}

}  // namespace

namespace {

using namespace testing_support;

std::vector<std::string> ViaLines(const std::string& qfx) {
    std::vector<std::string> out;
    for (const std::string& l : SplitLines(qfx))
        if (l.rfind("Via", 0) == 0) out.push_back(l);
    return out;
}

// Four conductor layers; a trace on the third one starts where the first via stands.
TEST(ViaPipeline, ThroughViasGetAStretchForEachLayerTheyTouch) {
    ResetGlobals();
    ScratchDir dir;
    WriteFile(dir.File("vias.ndd"),
              "%length TN;\n"
              "%dielectric_material \"FR4\" 4.3;\n"
              "%conductor_material \"COPPER\" %resistivity 0.5;\n"
              "%signal \"L1\" \"1\" \"x\" 3500 \"COPPER\";\n"
              "%dielectric \"D1\" \"x\" \"FR4\" 20000;\n"
              "%signal \"L2\" \"2\" \"x\" 3500 \"COPPER\";\n"
              "%dielectric \"D2\" \"x\" \"FR4\" 20000;\n"
              "%signal \"L3\" \"3\" \"x\" 3500 \"COPPER\";\n"
              "%dielectric \"D3\" \"x\" \"FR4\" 20000;\n"
              "%signal \"L4\" \"4\" \"x\" 3500 \"COPPER\";\n"
              "%board_outline\n%rectangle 0 0 1000000 1000000;\n"
              "%port \"U1-1\" \"N1\";\n"
              "%paddef \"C50\"\n%begin_boundary\n%outline\n%circle 0 0 50000;\n%end_boundary\n"
              "%end_paddef;\n"
              "%padstackdef \"V\"\n%padstacktype \"%thruhole\"\n%drill 20000;\n"
              "%liblayer \"%all_layers\"\n%pad 0 0 \"C50\";\n%end_padstackdef;\n"
              "%via \"V\" 100000 100000 0 \"N1\";\n"
              "%via \"V\" 700000 700000 0 \"N1\";\n"
              "%trace \"L3\" 20000 100000 100000 500000 100000 \"N1\";\n");
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "vias.ndd"}), 0);
    // Nodes 0 and 1 are the trace's; the first via adds 2 (L1) and 3 (L4) and joins node 0 on
    // L3; the second via, touching nothing in between, adds 4 and 5.
    EXPECT_EQ(ViaLines(ReadFile(dir.File("vias.qfx"))),
              (std::vector<std::string>{
                  "Via1::N1 UpperNode = Node2::N1 LowerNode = Node0::N1 Color = red PadStack = V "
                  "AbsoluteRotation = 0.000000",
                  "Via2::N1 UpperNode = Node0::N1 LowerNode = Node3::N1 Color = red PadStack = V "
                  "AbsoluteRotation = 0.000000",
                  "Via3::N1 UpperNode = Node4::N1 LowerNode = Node5::N1 Color = red PadStack = V "
                  "AbsoluteRotation = 0.000000"}));
}

}  // namespace
