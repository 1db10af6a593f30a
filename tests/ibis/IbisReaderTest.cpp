#include "ibis/IbisReader.h"

#include <gtest/gtest.h>

#include <cstring>

#include "DataCases.h"
#include "TestSupport.h"

using testing_support::DataCase;
using testing_support::DataCases;
using testing_support::ReadFile;
using testing_support::ScratchDir;

namespace {

// A vendor's file, kept in tests/data/ibis (see the README there).
const char kVendorFile[] = NDD2QFX_SOURCE_DIR "/tests/data/ibis/sn74lvc1g14.ibs";

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
            const PinModelFields& m = p.Model();
            t += p.name + " c" + std::to_string(p.pinClass) + " " + m.signalName + " " +
                 m.modelName + " " + m.modelType + " m" + bit(p.hasModel) + " [" + m.pulldownRef +
                 "," + m.pullupRef + "," + m.gndClampRef + "," + m.powerClampRef + "] [" +
                 m.powerGroup + "," + m.groundGroup + "] " + m.ioNode;
            for (const std::string& node : m.nodeNames) t += " " + node;
            t += "\n";
        }
        return t;
    }
    ScratchDir dir;
    ComponentRec c;
};

// Files read for the pins named on the "--" line ("missing" first: the file does not
// exist), and the flags and pins read (see Read::Text); a second read gives the same again
// and adds no node names.
TEST(ParseIbisFile, FilesGiveThesePins) {
    for (const DataCase& c : DataCases("ibis/IbisReader/Reads.txt")) {
        const bool missing = !c.args.empty() && c.args[0] == "missing";
        Read r({c.args.begin() + missing, c.args.end()}, c.input,
               missing ? "/nonexistent/folder/x.ibs" : "");
        EXPECT_EQ(r.Text(), c.expected) << c.title;
        ParseIbisFile(r.c);
        EXPECT_EQ(r.Text(), c.expected) << "again: " << c.title;
    }
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
