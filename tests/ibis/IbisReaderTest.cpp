#include <gtest/gtest.h>

#include "TestSupport.h"
#include "ibis/IbisReader.h"

using testing_support::ReadFile;
using testing_support::ScratchDir;

namespace {

ComponentRec Active(const std::vector<std::string>& pinNames, const std::string& file) {
    ComponentRec c;
    c.refDes = "U1";
    c.isActive = 1;
    c.ibisFile = file;
    for (const std::string& name : pinNames) {
        PinRec pin;
        pin.name = name;
        c.pins.push_back(pin);
    }
    return c;
}

PinRec& Pin(ComponentRec& c, const std::string& name) {
    for (PinRec& pin : c.pins)
        if (pin.name == name) return pin;
    ADD_FAILURE() << "no pin " << name;
    return c.pins.front();
}

// A vendor's file, kept in tests/data/ibis (see the README there).
const char kVendorFile[] = NDD2QFX_SOURCE_DIR "/tests/data/ibis/sn74lvc1g14.ibs";

const char kMapped[] =
    "|****Lumora Modifed IBIS File****\n"
    "[IBIS Ver]  4.1\n"
    "| [Pin] in a comment does not start the table\n"
    "[Component] U74\n"
    "[Pin]  signal_name  model_name  R_pin  L_pin  C_pin\n"
    "|\n"
    "1      A            IN_MODEL    0.1    1nH    1pF\n"
    "\n"
    "2\tY\tOUT_MODEL\n"
    "3      GND          gnd\n"
    "5      VCC          Power\n"
    "6      NC           NC\n"
    "[Pin Mapping]  pulldown_ref pullup_ref gnd_clamp_ref power_clamp_ref\n"
    "1  GNDBUS  VCCBUS  GNDBUS  VCCBUS\n"
    "2  GNDBUS  VCCBUS\n"
    "| a comment row\n"
    "3  GNDBUS  NC\n"
    "5  NC      VCCBUS\n"
    "6\n"
    "[Model] IN_MODEL\n"
    "| comment between\n"
    "Model_type Input\n"
    "[Model] OUT_MODEL\n"
    "Model_type 3-state\n"
    "[End]\n";

TEST(ParseIbisFile, PinMappingAndModelsGiveReferencesNodesAndACompleteMapping) {
    ScratchDir dir;
    ComponentRec c = Active({"1", "2", "3", "5", "6"}, dir.Write("u74.ibs", kMapped));
    ParseIbisFile(c);
    EXPECT_EQ(c.ibisOpened, 1u);
    EXPECT_EQ(c.ibisError, 0u);
    EXPECT_EQ(c.pinsMatch, 1u);
    EXPECT_EQ(c.mappingComplete, 1u);

    PinRec& in = Pin(c, "1");
    EXPECT_EQ(in.pinClass, 0);
    EXPECT_EQ(in.signalName, "A");
    EXPECT_EQ(in.modelName, "IN_MODEL");
    EXPECT_EQ(in.modelType, "Input");
    EXPECT_EQ(in.hasModel, 1u);
    // An input model has only the clamp nodes.
    EXPECT_EQ(in.pulldownRef, "");
    EXPECT_EQ(in.pullupRef, "");
    EXPECT_EQ(in.gndClampRef, "GNDBUS");
    EXPECT_EQ(in.powerClampRef, "VCCBUS");
    EXPECT_EQ(in.ioNode, "nd_in_1_Input");
    EXPECT_EQ(in.nodeNames,
              (std::vector<std::string>{"nd_pc_1_Input", "nd_gc_1_Input", "nd_in_1_Input",
                                        "gnd_1_Input", "nd_out_of_in_1_Input"}));

    PinRec& out = Pin(c, "2");
    EXPECT_EQ(out.modelType, "3-state");
    EXPECT_EQ(out.pulldownRef, "GNDBUS");
    EXPECT_EQ(out.pullupRef, "VCCBUS");
    EXPECT_EQ(out.gndClampRef, "GNDBUS");
    EXPECT_EQ(out.powerClampRef, "VCCBUS");
    EXPECT_EQ(out.ioNode, "nd_out_2_3-state");

    EXPECT_EQ(Pin(c, "3").pinClass, 2);
    EXPECT_EQ(Pin(c, "3").groundGroup, "GNDBUS");
    EXPECT_EQ(Pin(c, "5").pinClass, 1);
    EXPECT_EQ(Pin(c, "5").powerGroup, "VCCBUS");
    EXPECT_EQ(Pin(c, "6").pinClass, -1);
    EXPECT_EQ(Pin(c, "6").hasModel, 0u);

    // A second read rewrites the same fields and adds no node names.
    ParseIbisFile(c);
    EXPECT_EQ(Pin(c, "1").nodeNames.size(), 5u);
    EXPECT_EQ(c.mappingComplete, 1u);
}

TEST(ParseIbisFile, PowerBusListedFirstIsSortedByItsKind) {
    ScratchDir dir;
    std::string text = kMapped;
    text.replace(text.find("2  GNDBUS  VCCBUS\n"), 18, "2  VCCBUS  GNDBUS\n");
    ComponentRec c = Active({"1", "2", "3", "5", "6"}, dir.Write("u74.ibs", text));
    ParseIbisFile(c);
    PinRec& out = Pin(c, "2");
    EXPECT_EQ(out.pulldownRef, "GNDBUS");
    EXPECT_EQ(out.pullupRef, "VCCBUS");
    EXPECT_EQ(out.gndClampRef, "GNDBUS");
    EXPECT_EQ(out.powerClampRef, "VCCBUS");
}

TEST(ParseIbisFile, FewerMappingRowsOrAnIncompletePinLeaveTheMappingIncomplete) {
    ScratchDir dir;
    std::string fewer = kMapped;
    fewer.erase(fewer.find("6\n["), 2);
    ComponentRec c = Active({"1", "2", "3", "5", "6"}, dir.Write("a.ibs", fewer));
    ParseIbisFile(c);
    EXPECT_EQ(c.mappingComplete, 0u);

    std::string incomplete = kMapped;
    incomplete.replace(incomplete.find("2  GNDBUS  VCCBUS\n"), 18, "2  GNDBUS\n");
    ComponentRec d = Active({"1", "2", "3", "5", "6"}, dir.Write("b.ibs", incomplete));
    ParseIbisFile(d);
    // Only pulldown and gnd clamp are set: no pair of opposite references.
    EXPECT_EQ(Pin(d, "2").pulldownRef, "GNDBUS");
    EXPECT_EQ(Pin(d, "2").pullupRef, "");
    EXPECT_EQ(d.mappingComplete, 0u);
}

TEST(ParseIbisFile, APinThePackageLacksEndsTheReadWithPinsMatchZero) {
    ScratchDir dir;
    std::string text = kMapped;
    text.replace(text.find("6      NC"), 9, "A99    NC");
    ComponentRec c = Active({"1", "2", "3", "5", "6"}, dir.Write("u74.ibs", text));
    ParseIbisFile(c);
    EXPECT_EQ(c.pinsMatch, 0u);
    EXPECT_EQ(c.ibisError, 1u);
    EXPECT_EQ(c.mappingComplete, 0u);
    // The rows read before the foreign pin are discarded.
    EXPECT_EQ(Pin(c, "1").modelName, "");
}

TEST(ParseIbisFile, MissingFileAndPassiveComponent) {
    ComponentRec c = Active({"1"}, "/nonexistent/folder/x.ibs");
    c.mappingComplete = 1;
    ParseIbisFile(c);
    EXPECT_EQ(c.ibisError, 1u);
    EXPECT_EQ(c.ibisOpened, 0u);
    EXPECT_EQ(c.mappingComplete, 0u);
    EXPECT_EQ(c.pinsMatch, 1u);

    ComponentRec passive = Active({"1"}, "/nonexistent/folder/x.ibs");
    passive.isActive = 0;
    ParseIbisFile(passive);
    EXPECT_EQ(passive.ibisError, 0u);
}

TEST(ParseIbisFile, TerminatorModelsAndNamelessModelsGetNoNodes) {
    ScratchDir dir;
    std::string text =
        "[Pin] signal model\n"
        "1 A TERM\n"
        "[Model] TERM\n"
        "Model_type Terminator\n";
    ComponentRec c = Active({"1"}, dir.Write("t.ibs", text));
    ParseIbisFile(c);
    EXPECT_EQ(Pin(c, "1").modelType, "Terminator");
    EXPECT_EQ(Pin(c, "1").hasModel, 0u);
    EXPECT_TRUE(Pin(c, "1").nodeNames.empty());

    ComponentRec d =
        Active({"1"}, dir.Write("n.ibs", "[Pin]\n1 A IN\n[Model]\nModel_type Input\n"));
    d.mappingComplete = 1;
    ParseIbisFile(d);
    EXPECT_EQ(d.mappingComplete, 0u);
    EXPECT_EQ(Pin(d, "1").hasModel, 0u);
}

TEST(ParseIbisFile, FilesThatAreNoIbisAtAllReadWithoutHarm) {
    ScratchDir dir;
    std::string binary;
    for (int i = 0; i < 5000; ++i) binary += static_cast<char>((i * 37) % 256);
    ComponentRec c = Active({"1", "2"}, dir.Write("junk.ibs", binary));
    ParseIbisFile(c);
    EXPECT_EQ(c.mappingComplete, 0u);

    std::string longLines(5000, 'x');
    longLines += "\n[Pin]" + std::string(3000, ' ') + "\n[Model]\r\r\r\n";
    ComponentRec d = Active({"1"}, dir.Write("long.ibs", longLines));
    ParseIbisFile(d);
    EXPECT_EQ(d.pinsMatch, 1u);
    ComponentRec e = Active({"1"}, dir.Write("empty.ibs", ""));
    ParseIbisFile(e);
    EXPECT_EQ(e.mappingComplete, 0u);
    ComponentRec f = Active({"1"}, dir.Path());  // a folder
    ParseIbisFile(f);
    EXPECT_EQ(f.ibisError, 1u);
}

TEST(ParseIbisFile, VendorFileReadsTheFirstComponentsPinTable) {
    ScratchDir dir;
    std::string text = ReadFile(kVendorFile);
    ASSERT_GT(text.size(), 200000u);
    std::string copy = dir.Write("sn74lvc1g14.ibs", text);
    ComponentRec c = Active({"1", "2", "3", "4", "5"}, copy);
    ParseIbisFile(c);
    EXPECT_EQ(c.ibisOpened, 1u);
    EXPECT_EQ(c.ibisError, 0u);
    EXPECT_EQ(c.pinsMatch, 1u);
    // No [Pin Mapping]: the mapping is not complete.
    EXPECT_EQ(c.mappingComplete, 0u);
    EXPECT_EQ(Pin(c, "1").pinClass, -1);
    EXPECT_EQ(Pin(c, "2").signalName, "A");
    EXPECT_EQ(Pin(c, "2").modelName, "LVC1G14_IN");
    EXPECT_EQ(Pin(c, "2").pinClass, 0);
    EXPECT_EQ(Pin(c, "3").pinClass, 2);
    EXPECT_EQ(Pin(c, "4").modelName, "LVC1G14_OUT");
    EXPECT_EQ(Pin(c, "5").pinClass, 1);
    // The pins name model selectors, not models: no model type is found.
    EXPECT_EQ(Pin(c, "2").modelType, "");
    EXPECT_EQ(Pin(c, "2").hasModel, 0u);

    // A package of four pins lacks pin 5 of the file.
    ComponentRec small = Active({"1", "2", "3", "4"}, copy);
    ParseIbisFile(small);
    EXPECT_EQ(small.pinsMatch, 0u);
    EXPECT_EQ(small.ibisError, 1u);
}

TEST(ParseIbisFile, VendorFileModelTypesReachPinsNamedByModel) {
    ScratchDir dir;
    std::string text = ReadFile(kVendorFile);
    // Point the first component's pins at real [Model] names.
    size_t row = text.find("2           A          LVC1G14_IN ");
    ASSERT_NE(row, std::string::npos);
    text.replace(row, 34, "2           A          LVC1G14_IN_33");
    row = text.find("4           Y          LVC1G14_OUT ");
    ASSERT_NE(row, std::string::npos);
    text.replace(row, 35, "4           Y          LVC1G14_OUT_33");
    ComponentRec c = Active({"1", "2", "3", "4", "5"}, dir.Write("v.ibs", text));
    ParseIbisFile(c);
    EXPECT_EQ(Pin(c, "2").modelType, "Input");
    EXPECT_EQ(Pin(c, "2").ioNode, "nd_in_2_Input");
    EXPECT_EQ(Pin(c, "4").modelType, "Output");
    EXPECT_EQ(Pin(c, "4").ioNode, "nd_out_4_Output");
    EXPECT_EQ(Pin(c, "4").hasModel, 1u);
}

}  // namespace
