#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/Units.h"

namespace {

using testing_support::ResetGlobals;
using testing_support::ScratchDir;

class UnitsTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
    void Parse(const std::string& text) {
        std::string path = dir.Write("u.ndd", text);
        ForgetNddInput();
        ParseUnits(path);
    }
    ScratchDir dir;
};

TEST_F(UnitsTest, LengthWordsAreLoweredAndLookedUp) {
    const struct {
        const char* word;
        double mm;
    } cases[] = {{"TN", 1e-5},  {"MIL", 0.0254}, {"inch", 25.4}, {"mm", 1.0},
                 {"UM", 0.001}, {"m", 1000.0},   {"cm", 10.0}};
    for (const auto& c : cases) {
        g_model.g_dbLengthScale = 7.0;
        Parse(std::string("%length ") + c.word + ";\n");
        EXPECT_EQ(g_model.g_dbLengthScale, c.mm) << c.word;
    }
    g_model.g_dbLengthScale = 7.0;
    Parse("%length mils;\n");  // only "mil" is known: the scale stays
    EXPECT_EQ(g_model.g_dbLengthScale, 7.0);
}

TEST_F(UnitsTest, ConductivityScaleOnlyAfterFiveUnitLines) {
    Parse("%length mm;\n%resistance ohm;\n%capacitance pf;\n%inductance nh;\n");
    EXPECT_EQ(g_model.g_dbLengthScale, 1.0);
    EXPECT_EQ(g_model.g_dbConductivityScale, 1e8);
    Parse("%length mm;\n%resistance ohm;\n%capacitance pf;\n%inductance nh;\n%voltage v;\n");
    EXPECT_EQ(g_model.g_dbConductivityScale, 1000.0);
    Parse("%length um;\n%resistance mohm;\n%capacitance pf;\n%inductance nh;\n%voltage v;\n");
    EXPECT_EQ(g_model.g_dbConductivityScale, 1e6 / 0.001);
    Parse("%length mm;\n%resistance uohm;\n%capacitance pf;\n%inductance nh;\n%voltage v;\n");
    EXPECT_EQ(g_model.g_dbConductivityScale, 1e9);
}

TEST_F(UnitsTest, CommentsAndIndentedKeywordsAreNotUnitLines) {
    Parse("#%length mm;\n %length mm;\n");
    EXPECT_EQ(g_model.g_dbLengthScale, 1e-5);
    EXPECT_TRUE(g_model.g_mapUnits.Empty());
}

class NetTableTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
    void Parse(const std::string& text) {
        base::LineStream s(std::make_shared<const std::string>(text));
        ParseNet(s);
        AssignNetColors();
    }
};

TEST_F(NetTableTest, NamesDifferingOnlyInCaseGetNumberedDisplayNames) {
    Parse("%port a \"Vcc\";\n%port b \"VCC\";\n%port c \"vcc_1\";\n%port d \"GND\";\n");
    ASSERT_EQ(g_model.g_nNetCount, 4);
    // Sorted without case and stably: GND, Vcc, VCC, vcc_1. Round 1 renames VCC to VCC_1,
    // which then collides with vcc_1; round 2 renames the second of that pair.
    EXPECT_EQ(g_model.g_strDisplayNetNames,
              (std::vector<std::string>{"GND", "Vcc", "VCC_1", "vcc_1_2"}));
}

TEST_F(NetTableTest, SelectionIsLookedUpWithCase) {
    Parse("%port a \"Clk\";\n%port b \"DATA\";\n");
    EXPECT_TRUE(IsNetSelected("anything"));  // no selection in force
    g_options.g_pSelectedNets = {1};
    g_options.g_nSelectedNetCount = 1;
    SetNetSelectionMode();
    EXPECT_EQ(g_options.g_bSelectedOnly, 1);
    EXPECT_EQ(g_options.g_bAllNets, 0);
    EXPECT_TRUE(IsNetSelected("DATA"));
    EXPECT_FALSE(IsNetSelected("data"));
    EXPECT_FALSE(IsNetSelected("Clk"));
    g_options.g_nSelectedNetCount = 0;
    SetNetSelectionMode();
    EXPECT_TRUE(g_options.g_pSelectedNets.empty());
    EXPECT_TRUE(IsNetSelected("Clk"));
}

}  // namespace
