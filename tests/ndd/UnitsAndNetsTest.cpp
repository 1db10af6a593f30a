#include <gtest/gtest.h>

#include <cstdio>

#include "DataCases.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/Units.h"

namespace {

using testing_support::DataCase;
using testing_support::DataCases;
using testing_support::ResetGlobals;
using testing_support::ScratchDir;

// Unit lines and the scales they give (see the data file), starting from a length scale of 7.
TEST(Units, LinesGiveTheseScales) {
    ScratchDir dir;
    for (const DataCase& c : DataCases("ndd/Units/Lines.txt")) {
        ResetGlobals();
        g_model.g_dbLengthScale = 7.0;
        ForgetNddInput();
        ParseUnits(dir.Write("u.ndd", c.input));
        char got[96];
        std::snprintf(got, sizeof got, "length %.17g conductivity %.17g units %zu\n",
                      g_model.g_dbLengthScale, g_model.g_dbConductivityScale,
                      g_model.g_mapUnits.Size());
        EXPECT_EQ(got, c.expected) << c.title;
    }
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
