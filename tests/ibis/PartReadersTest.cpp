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

std::string Num(double v) {
    if (v == 0) v = 0;  // the sign of a zero is no rule
    char buf[32];
    std::snprintf(buf, sizeof buf, "%g", v);
    return buf;
}

// A pin as "name:net@x,y:padstack".
std::string PinText(const PinRec& p) {
    return p.name + ":" + p.net + "@" + Num(p.x) + "," + Num(p.y) + ":" + p.padStackName;
}

// A component on one line: designator, package, position, rotation, placement word, layer,
// kind, value, value and active flags, part number, IBIS file, then its pins.
std::string ComponentText(const std::string& refDes) {
    const ComponentRec* c = g_model.g_mapComponents.Find(refDes);
    if (!c) return "no " + refDes;
    std::string t = refDes + " " + c->packageName + " " + Num(c->x) + "," + Num(c->y) + " r" +
                    Num(c->rotation) + " '" + c->placement + "' L" + std::to_string(c->layer) +
                    " " + c->kindFromRefDes + " " + c->value + " v" + std::to_string(c->hasValue) +
                    " a" + std::to_string(c->isActive) + " " + c->partNumber + " " + c->ibisFile;
    for (const PinRec& p : c->pins) t += " " + PinText(p);
    return t;
}

TEST(ReadAliasProperties, TableEndsAtTheFirstRowThatIsNoIcxPropertyOneLineRecordsAreAllRead) {
    ResetGlobals();
    ScratchDir dir;
    ReadAliasProperties(dir.Write("a.ndd",
                                  "%aliasprop\n"
                                  "ICX_VALUE \"VALUE\"\n"
                                  "# a comment row\n"
                                  "ICX_PART_NUMBER \"PARTNO\"\n"
                                  "OTHER \"X\"\n"
                                  "ICX_REF_DES \"REF\"\n"
                                  "%aliasprop ICX_PIN_NUMBER \"PINNO\"\n"));
    EXPECT_EQ(g_model.g_mapAliasProps.Size(), 2u);
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_VALUE"), "VALUE");
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_PART_NUMBER"), "PARTNO");
    ResetGlobals();
    ReadAliasProperties(dir.Write("b.ndd",
                                  "%aliasprop ICX_PIN_NUMBER \"PINNO\"\n"
                                  "%port \"U1-1\" \"N1\";\n"
                                  "%aliasprop \"ICX_REF_DES\" \"REF\"\n"));
    EXPECT_EQ(g_model.g_mapAliasProps.Size(), 2u);
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_PIN_NUMBER"), "PINNO");
    EXPECT_EQ(*g_model.g_mapAliasProps.Find("ICX_REF_DES"), "REF");
}

TEST(ReadPackageDefs, ReadsBothPinlocFormsAndStopsAtTheFirstGate) {
    ResetGlobals();
    ScratchDir dir;
    auto stream = OpenNdd(dir.Write("board.ndd",
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
                                    "%packagedef \"LATE\"\n"));
    ReadPackageDefs(*stream);
    std::string text;
    for (const char* name : {"SOT5", "RES0603", "LATE"}) {
        const PackageDefRec* pkg = g_model.g_mapPackageDefs.Find(name);
        text += std::string(name) + ":";
        if (pkg)
            for (const PinRec& p : pkg->pins)
                text += " " + p.name + " " + p.padStackName + " " + Num(p.libX) + "," +
                        Num(p.libY) + " r" + Num(p.rotation);
        text += pkg ? "\n" : " none\n";
    }
    EXPECT_EQ(text,
              "SOT5: 1 PAD_A_1 -1,0.5 r90 2 PADB 0,0 r0\n"
              "RES0603: 1 SMD -0.8,0 r0 2 SMD 0.8,0 r180\n"
              "LATE: none\n");
}

// A two-pin package RES0603 on a three-layer stack; Place reads %partinst records.
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
    void Place(const std::string& text, int useSide = 1) {
        auto stream = OpenNdd(dir.Write("board.ndd", text));
        GetCompPlacementInfo(*stream, useSide);
    }
    void ReadGates(const std::string& text) {
        std::string path = dir.Write("gates.ndd", text);
        auto stream = OpenNdd(path);
        GetPinNetInfo(*stream, path);
    }
    ComponentRec& Comp(const std::string& refDes) { return *g_model.g_mapComponents.Find(refDes); }
    ScratchDir dir;
};

TEST_F(PlacementTest, TypedValuesAreRewrittenToUnitLetters) {
    Place(
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
    std::string got;
    for (const char* r : {"R1", "C1", "L1", "R2", "R3", "R4", "C2"})
        got += std::string(r) + "=" + Comp(r).value + Comp(r).kindFromRefDes +
               std::to_string(Comp(r).hasValue) + " ";
    EXPECT_EQ(got, "R1=10KR1 C1=100uC1 L1=10mL1 R2=10R1 R3=4.7KR1 R4=2MegR1 C2=10nC1 ");
}

TEST_F(PlacementTest, AliasedValueKeepsItsTextAndOnlyTheNextValueLineCounts) {
    g_options.g_strValueFieldName = "VALUE";
    Place(
        "%partinst \"X1\" \"RES0603\" 0 0 0 %topplace ;\n"
        "%prop \"VALUE\" \"0.1uF\"\n"
        "%prop \"VALUE\" \"ignored\"\n");
    EXPECT_EQ(ComponentText("X1"),
              "X1 RES0603 0,0 r0 '%topplace ' L0  0.1uF v1 a0   1:@-0.8,0:SMD 2:@0.8,0:SMD");
}

TEST_F(PlacementTest, PlacementFieldsSideAndDesignatorRules) {
    const std::string text =
        "%partinst \"R1\" \"RES0603\" 100000 200000 45 %topplace ;\n"
        "%partinst \"C1\" \"RES0603\" 0 0 90 %bottomplace ;\n"
        "%partinst \"R\" \"NOPKG\" 0 0 0 %topplace ;\n"
        "%partinst \"U12\" \"RES0603\" 0 0 0 %bottomplace ;\n";
    Place(text);
    EXPECT_EQ(ComponentText("R1"),
              "R1 RES0603 1,2 r45 '%topplace ' L0 R  v0 a0   1:@-0.565685,-0.565685:SMD "
              "2:@0.565685,0.565685:SMD");
    EXPECT_EQ(ComponentText("C1"),
              "C1 RES0603 0,0 r90 '%bottomplace ' L2 C  v0 a0   1:@0,-0.8:SMD 2:@0,0.8:SMD");
    EXPECT_EQ(ComponentText("R"), "R NOPKG 0,0 r0 '%topplace ' L0 R  v0 a1  ");
    EXPECT_EQ(ComponentText("U12"),
              "U12 RES0603 0,0 r0 '%bottomplace ' L2   v0 a1   1:@-0.8,0:SMD 2:@0.8,0:SMD");
    // Without the side every component is on the top conductor.
    SetUp();
    Place(text, 0);
    EXPECT_EQ(Comp("C1").layer, 0);
}

TEST_F(PlacementTest, QuarterTurnsAreExactAndOtherAnglesGoThroughSine) {
    Place(
        "%partinst \"C1\" \"RES0603\" 0 0 90 %topplace ;\n"
        "%partinst \"L1\" \"RES0603\" 0 0 270 %topplace ;\n"
        "%partinst \"L2\" \"RES0603\" 0 0 630 %topplace ;\n");
    // Pin 1 at (-0.8, 0) turned by 90 degrees lies at (0, -0.8), pin 2 turned by 270 too.
    EXPECT_EQ(Comp("C1").pins.front().x, 0.0);
    EXPECT_EQ(Comp("C1").pins.front().y, -0.8);
    EXPECT_EQ(Comp("L1").pins.back().x, 0.0);
    EXPECT_EQ(Comp("L1").pins.back().y, -0.8);
    // 630 is not one of the exact angles: cos leaves a rounding remainder.
    EXPECT_NE(Comp("L2").pins.back().x, 0.0);
    EXPECT_NEAR(Comp("L2").pins.back().x, 0.0, 1e-12);
    EXPECT_NEAR(Comp("L2").pins.back().y, -0.8, 1e-12);
}

TEST_F(PlacementTest, APlacementSeenTwiceKeepsItsFirstPinsAndTakesTheLaterPosition) {
    Place(
        "%partinst \"R1\" \"RES0603\" 0 0 0 %topplace ;\n"
        "%partinst \"R1\" \"RES0603\" 100000 0 90 %topplace ;\n");
    // The pins were turned by the first rotation, 0.
    EXPECT_EQ(ComponentText("R1"),
              "R1 RES0603 1,0 r90 '%topplace ' L0 R  v0 a0   1:@-0.8,0:SMD 2:@0.8,0:SMD");
}

TEST_F(PlacementTest, GatesGivePartNumbersDefaultIbisFilesAndPinNets) {
    Place(
        "%partinst \"R1\" \"RES0603\" 0 0 0 %topplace ;\n"
        "%partinst \"C1\" \"RES0603\" 0 0 0 %topplace ;\n");
    ReadGates(
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
    // The part number came before the designator: no default file for R1. The pass ended at
    // "%net".
    EXPECT_EQ(ComponentText("R1"),
              "R1 RES0603 0,0 r0 '%topplace ' L0 R  v0 a0 RESPN  1:N1@-0.8,0:SMD 2:N2@0.8,0:SMD");
    EXPECT_EQ(ComponentText("C1"), "C1 RES0603 0,0 r0 '%topplace ' L0 C  v0 a0 CAPPN " +
                                       dir.Path() +
                                       "/IBISModels/CAPPN.ibs 1:VDD@-0.8,0:SMD 2:@0.8,0:SMD");
}

TEST_F(PlacementTest, AliasedPropertiesAreMatchedInTheFirstTwoTokens) {
    Place("%partinst \"C1\" \"RES0603\" 0 0 0 %topplace ;\n");
    g_model.g_mapAliasProps.Set("ICX_REF_DES", "REFDES");
    g_model.g_mapAliasProps.Set("ICX_PIN_NUMBER", "PIN");
    ReadGates(
        "%gate \"g1\"\n"
        "REFDES \"C1\"\n"
        "%port \"1\" \"N9\"\n"
        "%prop PIN \"1\"\n"
        "%part \"X\"\n"
        "%prop PIN \"2\"\n");
    EXPECT_EQ(PinText(Comp("C1").pins.front()) + " " + PinText(Comp("C1").pins.back()),
              "1:N9@-0.8,0:SMD 2:@0.8,0:SMD");
}

TEST(PowerPorts, ContinuationRowsAndApplyToTheFirstPinOfThatName) {
    ResetGlobals();
    ScratchDir dir;
    ReadPartPowerPorts(dir.Write("p.ndd",
                                 "%part \"U74\" %powerport \"VCC\" \"+3V3\" \"5\"\n"
                                 " \"GND\" \"GND\" \"3\"\n"
                                 "# comment\n"
                                 " \"VCC2\" \"+3V3\" \"6\";\n"
                                 "%part \"RES\"\n"
                                 "%dielectric_material \"FR4\" 4.3;\n"
                                 "%part \"AFTER\" %powerport \"A\" \"B\" \"1\"\n"));
    PartPowerRec* u74 = g_model.g_mapPartPower.Find("U74");
    ASSERT_NE(u74, nullptr);
    EXPECT_EQ(u74->powerPorts, (std::vector<std::string>{"+3V3?5", "GND?3", "+3V3?6"}));
    ASSERT_NE(g_model.g_mapPartPower.Find("RES"), nullptr);
    EXPECT_TRUE(g_model.g_mapPartPower.Find("RES")->powerPorts.empty());
    EXPECT_FALSE(g_model.g_mapPartPower.Contains("AFTER"));

    u74->powerPorts.push_back("?6");
    u74->powerPorts.push_back("NOMARK");
    ComponentRec u;
    u.partNumber = "U74";
    for (const char* name : {"3", "5", "5", "6"}) {
        u.pins.emplace_back();
        u.pins.back().name = name;
    }
    g_model.g_mapComponents.Set("U1", u);
    ApplyPowerPorts();
    std::string nets;
    for (const PinRec& p : g_model.g_mapComponents.Find("U1")->pins) nets += p.net + ";";
    EXPECT_EQ(nets, "GND;+3V3;;+3V3;");
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
