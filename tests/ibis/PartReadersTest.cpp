#include <gtest/gtest.h>

#include "DataCases.h"
#include "Fixtures.h"
#include "TestSupport.h"
#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"

using testing_support::DataCase;
using testing_support::DataCases;
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

// Alias tables, then the packages read up to the first gate: "aliases NAME=VALUE ..." and a
// line a package with its pins (name, padstack, library place, rotation).
TEST(ReadPartTables, AliasesAndPackages) {
    ScratchDir dir;
    for (const DataCase& c : DataCases("ibis/PartReaders/Tables.txt")) {
        ResetGlobals();
        const std::string path = dir.Write(c.title + ".ndd", c.input);
        ReadAliasProperties(path);
        ReadPackageDefs(*OpenNdd(path));
        std::string got = "aliases";
        for (const std::string& key : g_model.g_mapAliasProps.Keys())
            got += " " + key + "=" + *g_model.g_mapAliasProps.Find(key);
        got += "\n";
        for (const std::string& name : g_model.g_mapPackageDefs.Keys()) {
            got += name + ":";
            for (const PinRec& p : g_model.g_mapPackageDefs.Find(name)->pins)
                got += " " + p.name + " " + p.padStackName + " " + Num(p.libX) + "," + Num(p.libY) +
                       " r" + Num(p.rotation);
            got += "\n";
        }
        EXPECT_EQ(got, c.expected) << c.title;
    }
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

// Placements, and gates after a "%%gates" line; the arguments: "noside" reads without the
// placement side, "value=NAME" names the value field, "alias:KEY=NAME" sets an alias. Expected:
// each component on one line (see ComponentText), "{dir}" for the folder.
TEST_F(PlacementTest, RecordsGiveTheseComponents) {
    for (const DataCase& c : DataCases("ibis/PartReaders/Placements.txt")) {
        SetUp();
        int side = 1;
        for (const std::string& arg : c.args) {
            if (arg == "noside") side = 0;
            if (arg.rfind("value=", 0) == 0) g_options.g_strValueFieldName = arg.substr(6);
            size_t eq = arg.find('=');
            if (arg.rfind("alias:", 0) == 0)
                g_model.g_mapAliasProps.Set(arg.substr(6, eq - 6), arg.substr(eq + 1));
        }
        size_t gates = c.input.find("%%gates\n");
        Place(c.input.substr(0, gates), side);
        if (gates != std::string::npos) ReadGates(c.input.substr(gates + 8));
        std::string got;
        for (const std::string& refDes : g_model.g_mapComponents.Keys())
            got += ComponentText(refDes) + "\n";
        size_t at = got.find(dir.Path());
        if (at != std::string::npos) got.replace(at, dir.Path().size(), "{dir}");
        EXPECT_EQ(got, c.expected) << c.title;
    }
}

// A part of many pins is searched through an index: a pin line still reaches every pin of its
// name, a name given twice included, and a name the part lacks reaches none.
TEST_F(PlacementTest, PinLinesOfABigPartReachEveryPinOfTheirName) {
    PackageDefRec big;
    big.name = "BIG";
    for (int i = 1; i <= 70; ++i) {
        PinRec pin;
        pin.name = std::to_string(i == 70 ? 7 : i);
        pin.padStackName = "SMD";
        big.pins.push_back(pin);
    }
    g_model.g_mapPackageDefs.Set("BIG", big);
    Place("%partinst \"U1\" \"BIG\" 0 0 0 %topplace ;\n");
    ReadGates(
        "%gate \"g\"\n%prop \"ICX_REF_DES\" \"U1\"\n"
        "%port \"7\" \"N7\"\n%prop \"ICX_PIN_NUMBER\" \"7\"\n"
        "%port \"69\" \"N69\"\n%prop \"ICX_PIN_NUMBER\" \"69\"\n"
        "%prop \"ICX_PIN_NUMBER\" \"99\"\n");
    std::string nets;
    for (const PinRec& pin : Comp("U1").pins)
        if (!pin.net.empty()) nets += pin.name + ":" + pin.net + " ";
    EXPECT_EQ(nets, "7:N7 69:N69 7:N7 ");
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
    const struct {
        const char *text, *value, *kind;
    } rows[] = {{"RES 10k", "10K", "R"},
                {"CAP 0.1UF", "0.1u", "C"},
                // "mn" holds two of the letters, so two are appended.
                {"IND 3mn", "3nm", "L"},
                {"XYZ 5K", "5", "?"},
                {"10K", "", "?"}};
    for (const auto& row : rows) {
        std::string kind = "?";
        EXPECT_EQ(RewriteTypedValue(row.text, kind) + " " + kind,
                  std::string(row.value) + " " + row.kind)
            << row.text;
    }
}

}  // namespace
