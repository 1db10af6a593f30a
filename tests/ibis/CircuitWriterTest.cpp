#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

#include "DataCases.h"
#include "TestSupport.h"
#include "ibis/CircuitForm.h"
#include "ibis/CircuitWriter.h"
#include "ibis/ModelAssignment.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

using testing_support::CaptureOutput;
using testing_support::DataCase;
using testing_support::DataCases;
using testing_support::ResetGlobals;
using testing_support::SplitLines;

namespace {

ComponentRec& AddComponent(const std::string& refDes, const std::string& partNumber,
                           const std::string& value, const std::vector<std::string>& pins) {
    ComponentRec c;
    c.refDes = refDes;
    c.partNumber = partNumber;
    c.packageName = "PKG";
    c.value = value;
    for (const std::string& name : pins) {
        PinRec pin;
        pin.name = name;
        c.pins.push_back(pin);
    }
    return g_model.g_mapComponents.Set(refDes, c);
}

std::string Circuit(ModelAssignment& models) {
    return CaptureOutput([&](FILE* f) { WriteCircuitDescription(f, &models); });
}

class CircuitWriterTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
    void TearDown() override { g_bKeepActiveFormForTests = false; }
    ModelAssignment models{
        &g_model.g_mapComponents, "out.qfx", nullptr, nullptr, nullptr, "in.ndd"};
};

// Components, one a line as "designator part-number value pins..." ("-" for no value), and
// the circuit section they give, written twice; "affix=TEXT" sets the name affix, "links=TW"
// the two linkage switches (translate, write).
TEST_F(CircuitWriterTest, PartsGiveTheseBlocks) {
    for (const DataCase& c : DataCases("ibis/CircuitWriter/Parts.txt")) {
        SetUp();
        for (const std::string& arg : c.args) {
            if (arg.rfind("affix=", 0) == 0) g_options.g_strNameAffix = arg.substr(6);
            if (arg.rfind("links=", 0) == 0) {
                g_options.g_bTranslateLinkages = arg[6] - '0';
                g_options.g_bWriteLinkages = arg[7] - '0';
            }
        }
        for (const std::string& line : SplitLines(c.input)) {
            std::istringstream words(line);
            std::string refDes, partNumber, value;
            words >> refDes >> partNumber >> value;
            AddComponent(refDes, partNumber, value == "-" ? "" : value,
                         {std::istream_iterator<std::string>(words), {}});
        }
        ModelAssignment assignment{
            &g_model.g_mapComponents, "out.qfx", nullptr, nullptr, nullptr, "in.ndd"};
        assignment.ResolveModels();
        EXPECT_EQ(Circuit(assignment), c.expected) << c.title;
        EXPECT_EQ(Circuit(assignment), c.expected) << "again: " << c.title;
    }
}

// A passive part as "element KIND VALUE PINS..." ("-" for no value) and its element line, or
// as "block NAME PINS..." and its block.
TEST(PassiveText, PartsGiveTheseLines) {
    for (const DataCase& c : DataCases("ibis/CircuitWriter/Passive.txt")) {
        std::istringstream words(c.input);
        std::string form, first, second;
        ComponentRec part;
        words >> form >> first;
        if (form == "element") {
            words >> second;
            part.kind = first;
            part.value = second == "-" ? "" : second;
        } else {
            part.blockName = first;
        }
        for (std::string name; words >> name;) part.pins.emplace_back().name = name;
        EXPECT_EQ(form == "element" ? PassiveElementLine(part) : PassiveBlockText(part), c.expected)
            << c.title;
    }
}

TEST_F(CircuitWriterTest, EqualBlocksWithAnotherBetweenThemArePrintedTwice) {
    ComponentRec a, b, other;
    a.blockName = b.blockName = "SAME";
    other.blockName = "OTHER";
    for (ComponentRec* c : {&a, &b, &other}) {
        c->pins.resize(2);
        c->pins.front().name = "1";
        c->pins.back().name = "2";
    }
    std::vector<std::string> keys;
    for (const char* key : {"k1", "k2", "k3"}) models.blocks.Set(key, nullptr);
    keys = models.blocks.Keys();
    *models.blocks.Find(keys[0]) = &a;
    *models.blocks.Find(keys[1]) = &other;
    *models.blocks.Find(keys[2]) = &b;
    std::string same = ".PartialCkt  SAME ExtNode = 1 2\n.EndPartialCkt\n";
    std::string text = Circuit(models);
    EXPECT_EQ(text, "* Circuit description block\n" + same +
                        ".PartialCkt  OTHER ExtNode = 1 2\n.EndPartialCkt\n" + same + "\n");
}

// A three-pin IBIS part: two signal pins with models and a power pin.
ComponentRec& IbisPart(ModelAssignment& models) {
    ComponentRec& u = AddComponent("U1", "U74", "", {"7", "8", "9"});
    u.ibisFile = "/x/U74.ibs";
    auto pin = u.pins.begin();
    pin->net = "N7", pin->pinClass = 0, pin->hasModel = 1, pin->EditModel().modelType = "3-state";
    pin->EditModel().modelName = "OUT3", pin->EditModel().powerClampRef = "VCC1",
    pin->EditModel().pulldownRef = "NC";
    ++pin;
    pin->net = "N8", pin->pinClass = 0, pin->hasModel = 1,
    pin->EditModel().modelType = "Open_source";
    pin->EditModel().modelName = "OS", pin->EditModel().pulldownRef = "GNDX";
    ++pin;
    pin->net = "VCC", pin->pinClass = 1, pin->EditModel().modelName = "POWER";
    models.blocks.Set("U74_PKG", &u);
    models.ibisParts.Set("U74", "T");
    u.blockName = "U74_PKG";
    return u;
}

TEST_F(CircuitWriterTest, ActiveFormIsOffAndEveryComponentIsPassive) {
    IbisPart(models);
    EXPECT_EQ(Circuit(models),
              "* Circuit description block\n"
              ".PartialCkt  U74_PKG ExtNode = 7 8 9\n"
              ".EndPartialCkt\n"
              "\n");
}

TEST_F(CircuitWriterTest, ActiveFormSwitchedOnPrintsInstancesWithFallbacks) {
    g_bKeepActiveFormForTests = true;
    ComponentRec& u = IbisPart(models);
    u.pins.front().EditModel().gndClampRef = "";
    u.pins.front().EditModel().pulldownRef = "GND1";
    // Pin 7: pullup empty takes the power clamp (the model has nd_pc); gnd clamp empty takes
    // the pulldown (the model has nd_pd). Pin 8: the model has no nd_pd, so its empty gnd
    // clamp keeps the node's own name although a pulldown is set.
    std::string expected =
        "* Circuit description block\n"
        ".PartialCkt  U74_PKG \n"
        "b_7_3-state VCC1 GND1 nd_out_7_3-state nd_in_7_3-state nd_en_7_3-state "
        "gnd_7_3-state VCC1 GND1\n"
        "+ file='/x/U74.ibs' model='OUT3'\n"
        "b_8_Open_source nd_pu_8_Open_source nd_out_8_Open_source nd_in_8_Open_source "
        "gnd_8_Open_source nd_pc_8_Open_source nd_gc_8_Open_source\n"
        "+ file='/x/U74.ibs' model='OS'\n"
        ".EndPartialCkt\n"
        "\n";
    EXPECT_EQ(Circuit(models), expected);

    // An "NC" reference is written as the node's own name, and is no fallback reason.
    u.pins.front().EditModel().pulldownRef = "NC";
    u.pins.front().EditModel().gndClampRef = "GNDC";
    std::string text = Circuit(models);
    EXPECT_NE(text.find("b_7_3-state VCC1 nd_pd_7_3-state nd_out_7_3-state"), std::string::npos)
        << text;
    EXPECT_NE(text.find("gnd_7_3-state VCC1 GNDC\n"), std::string::npos) << text;
}

TEST_F(CircuitWriterTest, ActiveBlockNeedsTheIbisStepAnInstanceAndNoFileError) {
    g_bKeepActiveFormForTests = true;
    ComponentRec& u = IbisPart(models);
    models.ibisParts.Clear();
    EXPECT_EQ(Circuit(models), "* Circuit description block\n\n");
    models.ibisParts.Set("U74", "T");
    u.ibisError = 1;
    EXPECT_EQ(Circuit(models), "* Circuit description block\n\n");
    u.ibisError = 0;
    for (PinRec& pin : u.pins) pin.net.clear();
    EXPECT_EQ(Circuit(models), "* Circuit description block\n\n");
}

}  // namespace
