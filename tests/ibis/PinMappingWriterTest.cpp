#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <iterator>
#include <sstream>

#include "RecordingHost.h"
#include "TestSupport.h"
#include "base/Platform.h"
#include "ibis/IbisReader.h"
#include "ibis/PinMappingRows.h"
#include "ibis/PinMappingWriter.h"

using testing_support::ReadFile;
using testing_support::ScratchDir;

namespace {

const std::string kData = NDD2QFX_SOURCE_DIR "/tests/data/ibis/";

// The pins of a component and what the pin mapping dialog hands over for them, read from a
// mapping.txt (see the README beside the files).
struct DialogState {
    ComponentRec component;
    std::vector<SignalPinRefs> rows;
    std::vector<GroupRec> groups;
};

DialogState ReadDialogState(const std::string& path, const std::string& ibisFile) {
    DialogState state;
    state.component.isActive = 1;
    state.component.ibisFile = ibisFile;
    std::istringstream lines(ReadFile(path));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::vector<std::string> w{std::istream_iterator<std::string>(words), {}};
        if (w.empty()) continue;
        for (std::string& word : w)
            if (word == "-") word.clear();
        if (w[0] == "pins") {
            for (size_t i = 1; i < w.size(); ++i) state.component.pins.emplace_back().name = w[i];
        } else if (w[0] == "refs") {
            state.rows.push_back({w[1], w[2], w[3], w[4], w[5]});
        } else if (w[0] == "ALL") {
            state.groups.push_back({kAvailablePinsGroup, "ALL", {w.begin() + 1, w.end()}});
        } else {
            state.groups.push_back({w[1], w[0], {w.begin() + 2, w.end()}});
        }
    }
    return state;
}

// Opens the file as the dialog does, takes the dialog's state into the pins and saves.
int Save(DialogState& state) {
    ParseIbisFile(state.component);
    StoreMappingRows(state.component, state.rows, state.groups);
    return PinMappingWriter(state.component);
}

ComponentRec ReadBack(const DialogState& state) {
    ComponentRec fresh;
    fresh.isActive = 1;
    fresh.ibisFile = state.component.ibisFile;
    for (const PinRec& pin : state.component.pins) fresh.pins.emplace_back().name = pin.name;
    ParseIbisFile(fresh);
    return fresh;
}

class PinMappingWriterTest : public ::testing::Test {
  protected:
    void SetUp() override { testing_support::ResetGlobals(); }
    testing_support::RecordingHost host_;
    HostScope hostScope_{host_};
    ScratchDir dir_;
};

// unmarked: kept and dropped rows, the three passes, an "NC NC" row for a pin with empty
// columns and for one the file lacks, a 19-character name with no blank behind it, and a
// second save with no second marker and no end line (it goes with the table it closed).
// older-table: another tool's table is replaced. table-at-end: a table that ends the file.
TEST_F(PinMappingWriterTest, SavedFilesAreExactlyAsExpected) {
    for (const char* name : {"unmarked", "older-table", "table-at-end"}) {
        SCOPED_TRACE(name);
        const std::string folder = kData + "pinmap/" + name + "/";
        std::string file = dir_.Write("part.ibs", ReadFile(folder + "input.ibs"));
        DialogState state = ReadDialogState(folder + "mapping.txt", file);
        ASSERT_EQ(Save(state), 1);
        EXPECT_EQ(ReadFile(file), ReadFile(folder + "saved.ibs"));
        EXPECT_FALSE(base::PathExists(dir_.File("part_temp_lumora.ibs")));
        std::string again = ReadFile(folder + "saved-again.ibs");
        for (int save = 0; save < 2 && !again.empty(); ++save) {
            ASSERT_EQ(Save(state), 1);
            EXPECT_EQ(ReadFile(file), again);
        }
    }
    EXPECT_TRUE(host_.messages.empty());
}

TEST_F(PinMappingWriterTest, ALongPinNameHidesItsMappingRowFromTheNextRead) {
    const std::string folder = kData + "pinmap/unmarked/";
    DialogState state = ReadDialogState(folder + "mapping.txt", dir_.File("part.ibs"));
    testing_support::WriteFile(state.component.ibisFile, ReadFile(folder + "saved.ibs"));
    ComponentRec back = ReadBack(state);
    // "ABCDEFGHIJKLMNOPQRSNC" is no pin: the table ends there.
    EXPECT_EQ(back.pins.back().Model().powerGroup, "");
    EXPECT_EQ(back.mappingComplete, 0u);
    EXPECT_EQ(back.pins.front().Model().powerClampRef, "PWRGRP0");
}

TEST_F(PinMappingWriterTest, AFileThatCannotBeReplacedKeepsItsText) {
    const std::string folder = kData + "pinmap/unmarked/";
    const std::string input = ReadFile(folder + "input.ibs");
    // Read-only: the message, the old text in place, the new text in the temporary file.
    DialogState state = ReadDialogState(folder + "mapping.txt", dir_.Write("part.ibs", input));
    ASSERT_EQ(::chmod(state.component.ibisFile.c_str(), 0444), 0);
    EXPECT_EQ(Save(state), 0);
    EXPECT_EQ(host_.messages, std::vector<std::string>{kIbisNotSaved});
    EXPECT_EQ(ReadFile(state.component.ibisFile), input);
    EXPECT_EQ(ReadFile(dir_.File("part_temp_lumora.ibs")), ReadFile(folder + "saved.ibs"));

    // A temporary file that cannot be written leaves the old file untouched.
    DialogState other = ReadDialogState(folder + "mapping.txt", dir_.Write("other.IBS", input));
    ASSERT_EQ(::mkdir(dir_.File("other_temp_lumora.ibs").c_str(), 0777), 0);
    EXPECT_EQ(Save(other), 0);
    EXPECT_EQ(host_.messages.back(),
              "Cannot write file : " + dir_.File("other_temp_lumora.ibs") + " (Is a directory)");
    EXPECT_EQ(ReadFile(other.component.ibisFile), input);

    other.component.ibisFile = dir_.File("missing.ibs");
    EXPECT_EQ(PinMappingWriter(other.component), 0);
    EXPECT_EQ(host_.messages.back(), "Cannot open file : " + dir_.File("missing.ibs"));
    other.component.isActive = 0;
    EXPECT_EQ(PinMappingWriter(other.component), 0);
    EXPECT_EQ(host_.messages.size(), 3u);
}

// Files without a pin table, with NUL bytes or very long lines lose no byte: all of it is
// copied in front of the new rows and tables.
TEST_F(PinMappingWriterTest, FilesThatAreNoIbisFilesLoseNothing) {
    std::string junk;
    for (int i = 0; i < 5000; ++i)
        junk += static_cast<char>((i * 37) % 256 == '\r' ? 0 : (i * 37) % 256);
    for (const std::string& text : {std::string(), junk, std::string(3000, 'x') + "\n1 A B\n"}) {
        DialogState state =
            ReadDialogState(kData + "pinmap/vendor/sn74lvc1g14.txt", dir_.Write("odd.ibs", text));
        ASSERT_EQ(Save(state), 1);
        std::string saved = ReadFile(state.component.ibisFile);
        std::string head = kModifiedIbisMarker + ("\n" + text);
        EXPECT_EQ(saved.substr(0, head.size()), head);
        EXPECT_NE(saved.find("[Pin Mapping]", head.size()), std::string::npos);
    }
}

TEST(PinMappingTempName, CutsAtTheFirstIbsInAnyCase) {
    EXPECT_EQ(PinMappingTempName("/d/part.ibs"), "/d/part_temp_lumora.ibs");
    EXPECT_EQ(PinMappingTempName("/D/PART.IBS"), "/D/PART_temp_lumora.ibs");
    EXPECT_EQ(PinMappingTempName("/m.ibs/x.ibs"), "/m_temp_lumora.ibs");
    EXPECT_EQ(PinMappingTempName("/d/part"), "/d/part_temp_lumora.ibs");
}

// Real files written by others: only the first [Pin] table and the mapping change, the rest
// is copied byte for byte, and a new read gives back the pins and the mapping.
TEST_F(PinMappingWriterTest, VendorFilesRoundTrip) {
    struct {
        const char* file;
        const char* mapping;
        std::vector<std::pair<std::string, std::string>> edits;  // made to the text first
        uint32_t mappingComplete;
    } const cases[] = {
        // Its pins name model selectors, which have no model type: no reference is read.
        {"sn74lvc1g14.ibs", "sn74lvc1g14.txt", {}, 0},
        {"sn74lvc1g14.ibs",
         "sn74lvc1g14-models.txt",
         {{"LVC1G14_IN ", "LVC1G14_IN_33"}, {"LVC1G14_OUT ", "LVC1G14_OUT_33"}},
         1},
    };
    for (const auto& vc : cases) {
        SCOPED_TRACE(vc.mapping);
        std::string original = ReadFile(kData + vc.file);
        for (const auto& [from, to] : vc.edits)
            original.replace(original.find(from), from.size(), to);
        DialogState state =
            ReadDialogState(kData + "pinmap/vendor/" + vc.mapping, dir_.Write(vc.file, original));
        ComponentRec before = ReadBack(state);
        ASSERT_EQ(Save(state), 1);

        std::string saved = ReadFile(state.component.ibisFile);
        size_t head = original.find('\n', original.find("[Pin]")) + 1;
        std::string rest = original.substr(original.find("\n[", head) + 1);
        std::string prefix = kModifiedIbisMarker + ("\n" + original.substr(0, head));
        EXPECT_EQ(saved.substr(0, prefix.size()), prefix);
        EXPECT_EQ(saved.substr(saved.size() - std::min(rest.size(), saved.size())), rest);

        ComponentRec back = ReadBack(state);
        EXPECT_EQ(back.mappingComplete, vc.mappingComplete);
        auto was = before.pins.begin();
        auto stored = state.component.pins.begin();
        auto refs = [](const PinRec& p) {
            const PinModelFields& m = p.Model();
            return m.pulldownRef + "|" + m.pullupRef + "|" + m.gndClampRef + "|" + m.powerClampRef;
        };
        for (const PinRec& pin : back.pins) {
            SCOPED_TRACE(pin.name);
            const PinModelFields &m = pin.Model(), &w = was->Model(), &s = stored->Model();
            EXPECT_EQ(m.signalName + " " + m.modelName + " " + m.modelType,
                      w.signalName + " " + w.modelName + " " + w.modelType);
            EXPECT_EQ(m.powerGroup, stored->pinClass == 1 ? s.powerGroup : "");
            EXPECT_EQ(m.groundGroup, stored->pinClass == 2 ? s.groundGroup : "");
            EXPECT_EQ(refs(pin), pin.hasModel ? refs(*stored) : "|||");
            ++was, ++stored;
        }
    }
}

}  // namespace
