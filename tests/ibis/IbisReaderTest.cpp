#include "ibis/IbisReader.h"

#include <gtest/gtest.h>

#include <cstring>

#include "TestSupport.h"

using testing_support::ReadFile;
using testing_support::ScratchDir;

namespace {

// A vendor's file, kept in tests/data/ibis (see the README there).
const char kVendorFile[] = NDD2QFX_SOURCE_DIR "/tests/data/ibis/sn74lvc1g14.ibs";

const std::string kMapped = testing_support::DataFile("ibisreader/u74_mapped.ibs");

// The active component U1 with these pins, reading text (or the file at path when one is
// given) through ParseIbisFile.
struct Read {
    Read(const std::vector<std::string>& pins, const std::string& text, std::string path = "") {
        c.refDes = "U1";
        c.isActive = 1;
        c.ibisFile = path.empty() ? dir.Write("u1.ibs", text) : path;
        for (const std::string& name : pins) {
            c.pins.emplace_back();
            c.pins.back().name = name;
        }
        ParseIbisFile(c);
    }
    // The flags "opened error match complete", then a line a pin: name, class, signal,
    // model, type, has-model, the references (pulldown pullup gnd-clamp power-clamp), the
    // power and ground groups, the io node and the node names.
    std::string Text() const {
        auto bit = [](uint32_t b) { return std::to_string(b); };
        std::string t =
            bit(c.ibisOpened) + bit(c.ibisError) + bit(c.pinsMatch) + bit(c.mappingComplete) + "\n";
        for (const PinRec& p : c.pins) {
            t += p.name + " c" + std::to_string(p.pinClass) + " " + p.signalName + " " +
                 p.modelName + " " + p.modelType + " m" + bit(p.hasModel) + " [" + p.pulldownRef +
                 "," + p.pullupRef + "," + p.gndClampRef + "," + p.powerClampRef + "] [" +
                 p.powerGroup + "," + p.groundGroup + "] " + p.ioNode;
            for (const std::string& node : p.nodeNames) t += " " + node;
            t += "\n";
        }
        return t;
    }
    ScratchDir dir;
    ComponentRec c;
};

const std::vector<std::string> kPins = {"1", "2", "3", "5", "6"};
// The node names of a 3-state pin 2.
const std::string kOutNodes =
    " nd_pu_2_3-state nd_pd_2_3-state nd_out_2_3-state nd_in_2_3-state nd_en_2_3-state "
    "gnd_2_3-state nd_pc_2_3-state nd_gc_2_3-state";

TEST(ParseIbisFile, PinMappingAndModelsGiveReferencesNodesAndACompleteMapping) {
    Read r(kPins, kMapped);
    // An input model has only the clamp references.
    const std::string want =
        "1011\n"
        "1 c0 A IN_MODEL Input m1 [,,GNDBUS,VCCBUS] [,] nd_in_1_Input nd_pc_1_Input "
        "nd_gc_1_Input nd_in_1_Input gnd_1_Input nd_out_of_in_1_Input\n"
        "2 c0 Y OUT_MODEL 3-state m1 [GNDBUS,VCCBUS,GNDBUS,VCCBUS] [,] nd_out_2_3-state" +
        kOutNodes +
        "\n"
        "3 c2 GND gnd  m0 [,,,] [,GNDBUS] \n"
        "5 c1 VCC Power  m0 [,,,] [VCCBUS,] \n"
        "6 c-1 NC NC  m0 [,,,] [,] \n";
    EXPECT_EQ(r.Text(), want);
    // A second read rewrites the same fields and adds no node names.
    ParseIbisFile(r.c);
    EXPECT_EQ(r.Text(), want);
}

// Each row is kMapped with one piece replaced, and the lines of the flags and of one pin.
TEST(ParseIbisFile, ChangedMappings) {
    const struct {
        const char *from, *to, *flags;
        std::string pin;
    } rows[] = {
        // A power bus listed first is sorted by its kind.
        {"2  GNDBUS  VCCBUS\n", "2  VCCBUS  GNDBUS\n", "1011",
         "2 c0 Y OUT_MODEL 3-state m1 [GNDBUS,VCCBUS,GNDBUS,VCCBUS] [,] nd_out_2_3-state" +
             kOutNodes},
        // Only pulldown and gnd clamp: no pair of opposite references.
        {"2  GNDBUS  VCCBUS\n", "2  GNDBUS\n", "1010",
         "2 c0 Y OUT_MODEL 3-state m1 [GNDBUS,,GNDBUS,] [,] nd_out_2_3-state" + kOutNodes},
        // Fewer mapping rows than pins.
        {"6\n[", "[", "1010", "6 c-1 NC NC  m0 [,,,] [,] "},
        // A pin the package lacks ends the read; the rows read before it are discarded.
        {"6      NC", "A99    NC", "1100", "1 c-1    m0 [,,,] [,] "},
    };
    for (const auto& row : rows) {
        std::string text = kMapped;
        text.replace(text.find(row.from), std::strlen(row.from), row.to);
        const std::string got = Read(kPins, text).Text();
        EXPECT_EQ(got.substr(0, 5), std::string(row.flags) + "\n") << row.to;
        EXPECT_NE(got.find("\n" + row.pin + "\n"), std::string::npos) << row.to << "\n" << got;
    }
}

TEST(ParseIbisFile, OddFilesAndComponents) {
    const struct {
        const char* what;
        const char* text;  // null: the file is missing
        const char* want;
    } rows[] = {
        {"missing file", nullptr, "0110\n1 c-1    m0 [,,,] [,] \n"},
        {"terminator models get no nodes",
         "[Pin] signal model\n1 A TERM\n[Model] TERM\n"
         "Model_type Terminator\n",
         "1010\n1 c0 A TERM Terminator m0 [,,,] [,] \n"},
        {"nameless model", "[Pin]\n1 A IN\n[Model]\nModel_type Input\n",
         "1010\n1 c0 A IN  m0 [,,,] [,] \n"},
        {"empty file", "", "1010\n1 c-1    m0 [,,,] [,] \n"},
    };
    for (const auto& row : rows) {
        Read r({"1"}, row.text ? row.text : "", row.text ? "" : "/nonexistent/folder/x.ibs");
        EXPECT_EQ(r.Text(), row.want) << row.what;
    }
    ScratchDir dir;
    ComponentRec passive;
    passive.ibisFile = "/nonexistent/folder/x.ibs";
    ParseIbisFile(passive);
    EXPECT_EQ(passive.ibisError, 0u);
}

TEST(ParseIbisFile, FilesThatAreNoIbisAtAllReadWithoutHarm) {
    std::string binary;
    for (int i = 0; i < 5000; ++i) binary += static_cast<char>((i * 37) % 256);
    EXPECT_EQ(Read({"1", "2"}, binary).c.mappingComplete, 0u);
    std::string longLines(5000, 'x');
    longLines += "\n[Pin]" + std::string(3000, ' ') + "\n[Model]\r\r\r\n";
    EXPECT_EQ(Read({"1"}, longLines).c.pinsMatch, 1u);
    ScratchDir dir;
    EXPECT_EQ(Read({"1"}, "", dir.Path()).c.ibisError, 1u);  // a folder
}

TEST(ParseIbisFile, VendorFileReadsTheFirstComponentsPinTable) {
    // No [Pin Mapping]; the pins name model selectors, not models: no model type is found.
    EXPECT_EQ(Read({"1", "2", "3", "4", "5"}, "", kVendorFile).Text(),
              "1010\n"
              "1 c-1 NC NC  m0 [,,,] [,] \n"
              "2 c0 A LVC1G14_IN  m0 [,,,] [,] \n"
              "3 c2 GND GND  m0 [,,,] [,] \n"
              "4 c0 Y LVC1G14_OUT  m0 [,,,] [,] \n"
              "5 c1 VCC POWER  m0 [,,,] [,] \n");
    // A package of four pins lacks pin 5 of the file.
    EXPECT_EQ(Read({"1", "2", "3", "4"}, "", kVendorFile).Text().substr(0, 5), "1100\n");
}

TEST(ParseIbisFile, VendorFileModelTypesReachPinsNamedByModel) {
    std::string text = ReadFile(kVendorFile);
    ASSERT_GT(text.size(), 200000u);
    // Point the first component's pins at real [Model] names.
    for (const char* model :
         {"2           A          LVC1G14_IN", "4           Y          LVC1G14_OUT"}) {
        size_t row = text.find(std::string(model) + " ");
        ASSERT_NE(row, std::string::npos);
        text.insert(row + std::strlen(model), "_33");
    }
    const std::string got = Read({"1", "2", "3", "4", "5"}, text).Text();
    EXPECT_NE(got.find("\n2 c0 A LVC1G14_IN_33 Input m1 [,,,] [,] nd_in_2_Input "),
              std::string::npos)
        << got;
    EXPECT_NE(got.find("\n4 c0 Y LVC1G14_OUT_33 Output m1 [,,,] [,] nd_out_4_Output "),
              std::string::npos)
        << got;
}

}  // namespace
