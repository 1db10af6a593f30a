#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"

using testing_support::ResetGlobals;
using testing_support::ScratchDir;

namespace {

std::unique_ptr<base::LineStream> Stream(const ScratchDir& dir, const std::string& text) {
    return OpenNdd(dir.Write("board.ndd", text));
}

const PinRec& PinAt(const ComponentRec& c, size_t i) {
    auto it = c.pins.begin();
    std::advance(it, i);
    return *it;
}

TEST(ReadAliasProperties, TableEndsAtTheFirstRowThatIsNoIcxProperty) {
    ResetGlobals();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%aliasprop\n"
                                 "ICX_VALUE \"VALUE\"\n"
                                 "# a comment row\n"
                                 "ICX_PART_NUMBER \"PARTNO\"\n"
                                 "OTHER \"X\"\n"
                                 "ICX_REF_DES \"REF\"\n"
                                 "%aliasprop ICX_PIN_NUMBER \"PINNO\"\n");
    ReadAliasProperties(path);
    EXPECT_EQ(g_model.g_mapAliasProps.Size(), 2u);
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_VALUE"), "VALUE");
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_PART_NUMBER"), "PARTNO");
    EXPECT_FALSE(g_model.g_mapAliasProps.Contains("ICX_REF_DES"));
    EXPECT_FALSE(g_model.g_mapAliasProps.Contains("ICX_PIN_NUMBER"));
}

TEST(ReadAliasProperties, OneLineRecordsAreAllRead) {
    ResetGlobals();
    ScratchDir dir;
    std::string path = dir.Write("a.ndd",
                                 "%aliasprop ICX_PIN_NUMBER \"PINNO\"\n"
                                 "%port \"U1-1\" \"N1\";\n"
                                 "%aliasprop \"ICX_REF_DES\" \"REF\"\n");
    ReadAliasProperties(path);
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_PIN_NUMBER"), "PINNO");
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_REF_DES"), "REF");
}

TEST(ReadPackageDefs, ReadsBothPinlocFormsAndStopsAtTheFirstGate) {
    ResetGlobals();
    ScratchDir dir;
    auto stream = Stream(dir,
                         "%gate \"before any package\"\n"
                         "%packagedef \"SOT5\"\n"
                         "%pinloc\n"
                         "  \"1\" \"PAD,A 1\" -100000 50000 90;\n"
                         "# comment row\n"
                         "  \"2\" \"PADB\" 0 0 0;\n"
                         "%package_drc_bound 1 2 3 4;\n"
                         "%packagedef \"RES0603\"\n"
                         "%pinloc \"1\" \"SMD\" -80000 0 0;\n"
                         "%origin 0 0;\n"
                         "%pinloc \"2\" \"SMD\" 80000 0 180;\n"
                         "\n"
                         "%gate \"g1\"\n"
                         "%packagedef \"LATE\"\n");
    ReadPackageDefs(*stream);
    ASSERT_EQ(g_model.g_mapPackageDefs.Size(), 2u);
    const PackageDefRec* sot = g_model.g_mapPackageDefs.Find("SOT5");
    ASSERT_NE(sot, nullptr);
    ASSERT_EQ(sot->pins.size(), 2u);
    EXPECT_EQ(sot->pins[0].name, "1");
    EXPECT_EQ(sot->pins[0].padStackName, "PAD_A_1");
    EXPECT_DOUBLE_EQ(sot->pins[0].libX, -1.0);
    EXPECT_DOUBLE_EQ(sot->pins[0].libY, 0.5);
    EXPECT_EQ(sot->pins[0].rotation, 90.0);
    const PackageDefRec* res = g_model.g_mapPackageDefs.Find("RES0603");
    ASSERT_NE(res, nullptr);
    ASSERT_EQ(res->pins.size(), 2u);
    EXPECT_DOUBLE_EQ(res->pins[1].libX, 0.8);
    EXPECT_EQ(res->pins[1].rotation, 180.0);
}

class PlacementTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        fixtures::MakeThreeLayerStack();
        PackageDefRec pkg;
        pkg.name = "RES0603";
        PinRec a, b;
        a.name = "1", a.libX = -0.8, a.padStackName = "SMD";
        b.name = "2", b.libX = 0.8, b.padStackName = "SMD";
        pkg.pins = {a, b};
        g_model.g_mapPackageDefs.Set("RES0603", pkg);
    }
    ComponentRec& Comp(const std::string& refDes) {
        ComponentRec* c = g_model.g_mapComponents.Find(refDes);
        EXPECT_NE(c, nullptr) << refDes;
        return *c;
    }
    ScratchDir dir;
};

TEST_F(PlacementTest, TypedValuesAreRewrittenToUnitLetters) {
    auto stream = Stream(dir,
                         "%partinst \"R1\" \"RES0603\" 100000 200000 0 %topplace ;\n"
                         "%prop \"ICX_VALUE\" \"RES 10K\"\n"
                         "%partinst \"C1\" \"RES0603\" 0 0 90 %bottomplace ;\n"
                         "%prop \"ICX_VALUE\" \"CAP 100\"\n"
                         "%partinst \"L1\" \"RES0603\" 0 0 270 %topplace ;\n"
                         "# a comment between\n"
                         "ICX_VALUE \"IND 10\"\n"
                         "%partinst \"R2\" \"RES0603\" 0 0 0 %topplace ;\n"
                         "%prop \"ICX_VALUE\" \"RES 10\"\n"
                         "%partinst\n"
                         "\"R3\" \"RES0603\" 0 0 0 %topplace ;\n"
                         "%prop \"ICX_VALUE\" \"RES 4.7K\"\n"
                         "%partinst \"R4\" \"RES0603\" 0 0 0 %topplace ;\n"
                         "%prop \"ICX_VALUE\" \"RES 2M2\"\n"
                         "%partinst \"C2\" \"RES0603\" 0 0 0 %topplace ;\n"
                         "%prop \"ICX_VALUE\" \"CAP 10NF\"\n");
    GetCompPlacementInfo(*stream, 1);
    EXPECT_EQ(Comp("R1").value, "10K");
    EXPECT_EQ(Comp("R1").kindFromRefDes, "R");
    EXPECT_EQ(Comp("R1").hasValue, 1u);
    EXPECT_EQ(Comp("C1").value, "100u");
    EXPECT_EQ(Comp("C1").kindFromRefDes, "C");
    EXPECT_EQ(Comp("L1").value, "10m");
    EXPECT_EQ(Comp("L1").kindFromRefDes, "L");
    EXPECT_EQ(Comp("R2").value, "10");
    EXPECT_EQ(Comp("R3").value, "4.7K");
    EXPECT_EQ(Comp("R4").value, "2Meg");
    EXPECT_EQ(Comp("C2").value, "10n");
}

TEST_F(PlacementTest, AliasedValueKeepsItsTextAndOnlyTheNextValueLineCounts) {
    g_options.g_strValueFieldName = "VALUE";
    auto stream = Stream(dir,
                         "%partinst \"X1\" \"RES0603\" 0 0 0 %topplace ;\n"
                         "%prop \"VALUE\" \"0.1uF\"\n"
                         "%prop \"VALUE\" \"ignored\"\n");
    GetCompPlacementInfo(*stream, 1);
    EXPECT_EQ(Comp("X1").value, "0.1uF");
    EXPECT_EQ(Comp("X1").isActive, 0u);
}

TEST_F(PlacementTest, PlacementFieldsSideAndDesignatorRules) {
    auto stream = Stream(dir,
                         "%partinst \"R1\" \"RES0603\" 100000 200000 45 %topplace ;\n"
                         "%partinst \"C1\" \"RES0603\" 0 0 90 %bottomplace ;\n"
                         "%partinst \"R\" \"NOPKG\" 0 0 0 %topplace ;\n"
                         "%partinst \"U12\" \"RES0603\" 0 0 0 %bottomplace ;\n");
    GetCompPlacementInfo(*stream, 1);
    ComponentRec& r1 = Comp("R1");
    EXPECT_DOUBLE_EQ(r1.x, 1.0);
    EXPECT_DOUBLE_EQ(r1.y, 2.0);
    EXPECT_EQ(r1.rotation, 45.0);
    EXPECT_EQ(r1.placement, "%topplace ");
    EXPECT_EQ(r1.packageName, "RES0603");
    EXPECT_EQ(r1.layer, 0);
    EXPECT_EQ(r1.isActive, 0u);
    EXPECT_EQ(Comp("C1").layer, 2);
    ComponentRec& r = Comp("R");
    EXPECT_EQ(r.kindFromRefDes, "R");
    EXPECT_EQ(r.isActive, 1u);
    EXPECT_TRUE(r.pins.empty());
    EXPECT_TRUE(r.value.empty());
    EXPECT_EQ(Comp("U12").kindFromRefDes, "");
    EXPECT_EQ(Comp("U12").isActive, 1u);
}

TEST_F(PlacementTest, WithoutSideEveryComponentIsOnTheTopConductor) {
    auto stream = Stream(dir, "%partinst \"C1\" \"RES0603\" 0 0 90 %bottomplace ;\n");
    GetCompPlacementInfo(*stream, 0);
    EXPECT_EQ(Comp("C1").layer, 0);
}

TEST_F(PlacementTest, QuarterTurnsAreExactAndOtherAnglesGoThroughSine) {
    auto stream = Stream(dir,
                         "%partinst \"C1\" \"RES0603\" 0 0 90 %topplace ;\n"
                         "%partinst \"L1\" \"RES0603\" 0 0 270 %topplace ;\n"
                         "%partinst \"L2\" \"RES0603\" 0 0 630 %topplace ;\n");
    GetCompPlacementInfo(*stream, 1);
    // Pin 1 at (-0.8, 0) turned by 90 degrees lies at (0, -0.8).
    EXPECT_EQ(PinAt(Comp("C1"), 0).x, 0.0);
    EXPECT_EQ(PinAt(Comp("C1"), 0).y, -0.8);
    // Pin 2 at (0.8, 0) turned by 270 degrees lies at (0, -0.8).
    EXPECT_EQ(PinAt(Comp("L1"), 1).x, 0.0);
    EXPECT_EQ(PinAt(Comp("L1"), 1).y, -0.8);
    // 630 is not one of the exact angles: cos leaves a rounding remainder.
    EXPECT_NE(PinAt(Comp("L2"), 1).x, 0.0);
    EXPECT_NEAR(PinAt(Comp("L2"), 1).x, 0.0, 1e-12);
    EXPECT_NEAR(PinAt(Comp("L2"), 1).y, -0.8, 1e-12);
    EXPECT_EQ(PinAt(Comp("L2"), 1).padStackName, "SMD");
}

TEST_F(PlacementTest, APlacementSeenTwiceKeepsItsFirstPinsAndTakesTheLaterPosition) {
    auto stream = Stream(dir,
                         "%partinst \"R1\" \"RES0603\" 0 0 0 %topplace ;\n"
                         "%partinst \"R1\" \"RES0603\" 100000 0 90 %topplace ;\n");
    GetCompPlacementInfo(*stream, 1);
    EXPECT_EQ(Comp("R1").pins.size(), 2u);
    EXPECT_DOUBLE_EQ(Comp("R1").x, 1.0);
    EXPECT_EQ(PinAt(Comp("R1"), 0).x, -0.8);  // turned by the first rotation, 0
}

class GateTest : public PlacementTest {
  protected:
    void SetUp() override {
        PlacementTest::SetUp();
        auto stream = Stream(dir,
                             "%partinst \"R1\" \"RES0603\" 0 0 0 %topplace ;\n"
                             "%partinst \"C1\" \"RES0603\" 0 0 0 %topplace ;\n");
        GetCompPlacementInfo(*stream, 1);
    }
};

TEST_F(GateTest, GatesGivePartNumbersDefaultIbisFilesAndPinNets) {
    std::string path = dir.Write("gates.ndd",
                                 "%gatedef \"ignored\" ICX_REF_DES \"R1\"\n"
                                 "%gate \"g1\"\n"
                                 "%prop \"ICX_PART_NUMBER\" \"RESPN\"\n"
                                 "%prop \"ICX_REF_DES\" \"R1\"\n"
                                 "%port \"1\" \"N1\"\n"
                                 "%prop \"ICX_PIN_NUMBER\" \"1\"\n"
                                 "%port \"2\" \"N2\"\n"
                                 "%prop \"ICX_PIN_NUMBER\" \"2\"\n"
                                 "%gate \"g2\"\n"
                                 "%prop \"ICX_REF_DES\" \"C1\"\n"
                                 "%prop \"ICX_PART_NUMBER\" \"CAPPN\"\n"
                                 "%powerport \"VCC\" \"VDD\" \"1\"\n"
                                 "%prop \"ICX_PIN_NUMBER\" \"1\"\n"
                                 "%net \"N1\"\n"
                                 "%prop \"ICX_PIN_NUMBER\" \"2\"\n");
    auto stream = OpenNdd(path);
    GetPinNetInfo(*stream, path);
    ComponentRec& r1 = Comp("R1");
    EXPECT_EQ(r1.partNumber, "RESPN");
    // The part number came before the designator: no default file for R1.
    EXPECT_EQ(r1.ibisFile, "");
    EXPECT_EQ(PinAt(r1, 0).net, "N1");
    EXPECT_EQ(PinAt(r1, 1).net, "N2");
    ComponentRec& c1 = Comp("C1");
    EXPECT_EQ(c1.partNumber, "CAPPN");
    EXPECT_EQ(c1.ibisFile, dir.Path() + "/IBISModels/CAPPN.ibs");
    EXPECT_EQ(PinAt(c1, 0).net, "VDD");
    EXPECT_EQ(PinAt(c1, 1).net, "");  // the pass ended at "%net"
}

TEST_F(GateTest, AliasedPropertiesAreMatchedInTheFirstTwoTokens) {
    g_model.g_mapAliasProps.Set("ICX_REF_DES", "REFDES");
    g_model.g_mapAliasProps.Set("ICX_PIN_NUMBER", "PIN");
    std::string path = dir.Write("gates.ndd",
                                 "%gate \"g1\"\n"
                                 "REFDES \"C1\"\n"
                                 "%port \"1\" \"N9\"\n"
                                 "%prop PIN \"1\"\n"
                                 "%part \"X\"\n"
                                 "%prop PIN \"2\"\n");
    auto stream = OpenNdd(path);
    GetPinNetInfo(*stream, path);
    EXPECT_EQ(PinAt(Comp("C1"), 0).net, "N9");
    EXPECT_EQ(PinAt(Comp("C1"), 1).net, "");
}

TEST(PowerPorts, ContinuationRowsAndApplyToTheFirstPinOfThatName) {
    ResetGlobals();
    ScratchDir dir;
    std::string path = dir.Write("p.ndd",
                                 "%part \"U74\" %powerport \"VCC\" \"+3V3\" \"5\"\n"
                                 " \"GND\" \"GND\" \"3\"\n"
                                 "# comment\n"
                                 " \"VCC2\" \"+3V3\" \"6\";\n"
                                 "%part \"RES\"\n"
                                 "%dielectric_material \"FR4\" 4.3;\n"
                                 "%part \"AFTER\" %powerport \"A\" \"B\" \"1\"\n");
    ReadPartPowerPorts(path);
    const PartPowerRec* u74 = g_model.g_mapPartPower.Find("U74");
    ASSERT_NE(u74, nullptr);
    EXPECT_EQ(u74->powerPorts, (std::vector<std::string>{"+3V3?5", "GND?3", "+3V3?6"}));
    ASSERT_NE(g_model.g_mapPartPower.Find("RES"), nullptr);
    EXPECT_TRUE(g_model.g_mapPartPower.Find("RES")->powerPorts.empty());
    EXPECT_FALSE(g_model.g_mapPartPower.Contains("AFTER"));

    g_model.g_mapPartPower.Find("U74")->powerPorts.push_back("?6");
    g_model.g_mapPartPower.Find("U74")->powerPorts.push_back("NOMARK");
    ComponentRec u;
    u.refDes = "U1";
    u.partNumber = "U74";
    for (const char* name : {"3", "5", "5", "6"}) {
        PinRec pin;
        pin.name = name;
        u.pins.push_back(pin);
    }
    g_model.g_mapComponents.Set("U1", u);
    ApplyPowerPorts();
    const ComponentRec& c = *g_model.g_mapComponents.Find("U1");
    EXPECT_EQ(PinAt(c, 0).net, "GND");
    EXPECT_EQ(PinAt(c, 1).net, "+3V3");
    EXPECT_EQ(PinAt(c, 2).net, "");
    EXPECT_EQ(PinAt(c, 3).net, "+3V3");
}

TEST(RewriteTypedValue, SuffixLettersAreEachTested) {
    std::string kind;
    EXPECT_EQ(RewriteTypedValue("RES 10k", kind), "10K");
    EXPECT_EQ(kind, "R");
    EXPECT_EQ(RewriteTypedValue("CAP 0.1UF", kind), "0.1u");
    EXPECT_EQ(kind, "C");
    // "mn" holds two of the letters, so two are appended.
    EXPECT_EQ(RewriteTypedValue("IND 3mn", kind), "3nm");
    EXPECT_EQ(kind, "L");
    kind = "?";
    EXPECT_EQ(RewriteTypedValue("XYZ 5K", kind), "5");
    EXPECT_EQ(kind, "?");
    EXPECT_EQ(RewriteTypedValue("10K", kind), "");
}

}  // namespace
