#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <sstream>

#include "RecordingHost.h"
#include "TestSupport.h"
#include "base/Platform.h"
#include "ibis/IbisReader.h"
#include "ibis/PinMappingRows.h"
#include "ibis/PinMappingWriter.h"
#include "model/TranslationOptions.h"

using testing_support::ReadFile;
using testing_support::RecordingHost;
using testing_support::ScratchDir;

namespace {

const std::string kData = NDD2QFX_SOURCE_DIR "/tests/data/ibis/";

// What the pin mapping dialog hands over, read from a small text: "pins" lists the
// component's pins, "refs" gives a signal pin's four cells ("-" for an empty one), "PU" and
// "PD" a group's name and pins, "ALL" the pins of the available-pins group.
struct DialogState {
    std::vector<std::string> pins;
    std::vector<SignalPinRefs> rows;
    std::vector<GroupRec> groups;
};

DialogState ReadDialogState(const std::string& path) {
    DialogState state;
    std::istringstream lines(ReadFile(path));
    std::string line, word;
    auto cell = [](const std::string& w) { return w == "-" ? std::string() : w; };
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::vector<std::string> w;
        while (words >> word) w.push_back(word);
        if (w.empty()) continue;
        if (w[0] == "pins") {
            state.pins.assign(w.begin() + 1, w.end());
        } else if (w[0] == "refs" && w.size() == 6) {
            state.rows.push_back({w[1], cell(w[2]), cell(w[3]), cell(w[4]), cell(w[5])});
        } else if (w[0] == "ALL") {
            state.groups.push_back({kAvailablePinsGroup, "ALL", {w.begin() + 1, w.end()}});
        } else if (w.size() >= 2) {
            state.groups.push_back({w[1], w[0], {w.begin() + 2, w.end()}});
        }
    }
    return state;
}

ComponentRec Component(const DialogState& state, const std::string& file) {
    ComponentRec c;
    c.isActive = 1;
    c.ibisFile = file;
    for (const std::string& name : state.pins) {
        c.pins.emplace_back();
        c.pins.back().name = name;
    }
    return c;
}

// Opens the file as the dialog does, takes the dialog's state into the pins and saves.
int Save(ComponentRec& c, const DialogState& state) {
    ParseIbisFile(c);
    StoreMappingRows(c, state.rows, state.groups);
    return PinMappingWriter(c);
}

size_t CountLines(const std::string& text, const std::string& line) {
    std::vector<std::string> lines = testing_support::SplitLines(text);
    return std::count(lines.begin(), lines.end(), line);
}

class PinMappingWriterTest : public ::testing::Test {
  protected:
    void SetUp() override { testing_support::ResetGlobals(); }
    RecordingHost host_;
    HostScope hostScope_{host_};
    ScratchDir dir_;
};

// Each folder holds the file, the dialog's state, the file after one save and, where given,
// after every further save.
TEST_F(PinMappingWriterTest, SavedFilesAreExactlyAsExpected) {
    for (const char* name : {"unmarked", "older-table", "table-at-end"}) {
        SCOPED_TRACE(name);
        const std::string folder = kData + "pinmap/" + name + "/";
        std::string file = dir_.Write("part.ibs", ReadFile(folder + "input.ibs"));
        DialogState state = ReadDialogState(folder + "mapping.txt");
        ComponentRec c = Component(state, file);
        ASSERT_EQ(Save(c, state), 1);
        EXPECT_EQ(ReadFile(file), ReadFile(folder + "saved.ibs"));
        EXPECT_FALSE(base::PathExists(dir_.File("part_temp_lumora.ibs")));
        std::string again = ReadFile(folder + "saved-again.ibs");
        for (int save = 0; save < 2 && !again.empty(); ++save) {
            ASSERT_EQ(Save(c, state), 1);
            EXPECT_EQ(ReadFile(file), again);
        }
    }
    EXPECT_TRUE(host_.messages.empty());
}

TEST_F(PinMappingWriterTest, SavingTwiceKeepsOneMarkerOneTableAndNoSecondEndLine) {
    const std::string folder = kData + "pinmap/unmarked/";
    std::string file = dir_.Write("part.ibs", ReadFile(folder + "input.ibs"));
    DialogState state = ReadDialogState(folder + "mapping.txt");
    ComponentRec c = Component(state, file);
    for (size_t save = 1; save <= 2; ++save) {
        ASSERT_EQ(Save(c, state), 1);
        std::string text = ReadFile(file);
        EXPECT_EQ(CountLines(text, kModifiedIbisMarker), 1u);
        EXPECT_EQ(text.find("[Pin Mapping]"), text.rfind("[Pin Mapping]"));
        // The end line closes the table of the first save and goes with it.
        EXPECT_EQ(CountLines(text, "| End Pin Section"), save == 1 ? 1u : 0u);
        EXPECT_EQ(CountLines(text, "6     NC     NC"), 1u);  // empty signal and model
        EXPECT_EQ(CountLines(text, "8     NC     NC"), 1u);  // a pin the file lacked
        EXPECT_EQ(CountLines(text, "ABCDEFGHIJKLMNOPQRSNC                 PWRGRP1"), 1u);
    }
    // The 19-character name runs into its next column, so a new read no longer finds that
    // pin's row: the table ends there and the mapping is not complete.
    ComponentRec fresh = Component(state, file);
    ParseIbisFile(fresh);
    EXPECT_EQ(fresh.pins.back().pinClass, 1);
    EXPECT_EQ(fresh.pins.back().powerGroup, "");
    EXPECT_EQ(fresh.mappingComplete, 0u);
    EXPECT_EQ(fresh.pins.front().powerClampRef, "PWRGRP0");
}

TEST_F(PinMappingWriterTest, AFileThatCannotBeReplacedKeepsItsText) {
    const std::string folder = kData + "pinmap/unmarked/";
    const std::string input = ReadFile(folder + "input.ibs");
    DialogState state = ReadDialogState(folder + "mapping.txt");

    // Read-only: the message, the old text in place, the new text in the temporary file.
    std::string file = dir_.Write("part.ibs", input);
    ASSERT_EQ(::chmod(file.c_str(), 0444), 0);
    ComponentRec c = Component(state, file);
    EXPECT_EQ(Save(c, state), 0);
    EXPECT_EQ(host_.messages, std::vector<std::string>{kIbisNotSaved});
    EXPECT_EQ(ReadFile(file), input);
    EXPECT_EQ(ReadFile(dir_.File("part_temp_lumora.ibs")), ReadFile(folder + "saved.ibs"));

    // A temporary file that cannot be written: the old file is not touched.
    std::string other = dir_.Write("other.IBS", input);
    ASSERT_EQ(::mkdir(dir_.File("other_temp_lumora.ibs").c_str(), 0777), 0);
    ComponentRec d = Component(state, other);
    EXPECT_EQ(Save(d, state), 0);
    EXPECT_EQ(host_.messages.back(),
              "Cannot write file : " + dir_.File("other_temp_lumora.ibs") + " (Is a directory)");
    EXPECT_EQ(ReadFile(other), input);

    ComponentRec missing = Component(state, dir_.File("missing.ibs"));
    EXPECT_EQ(PinMappingWriter(missing), 0);
    EXPECT_EQ(host_.messages.back(), "Cannot open file : " + dir_.File("missing.ibs"));
    EXPECT_FALSE(base::PathExists(dir_.File("missing_temp_lumora.ibs")));
    d.isActive = 0;
    EXPECT_EQ(PinMappingWriter(d), 0);
    EXPECT_EQ(host_.messages.size(), 3u);
}

TEST(PinMappingTempName, CutsAtTheFirstIbsInAnyCase) {
    const std::pair<const char*, const char*> names[] = {
        {"/d/part.ibs", "/d/part_temp_lumora.ibs"},
        {"/D/PART.IBS", "/D/PART_temp_lumora.ibs"},
        {"/m.ibs/x.ibs", "/m_temp_lumora.ibs"},
        {"/d/part", "/d/part_temp_lumora.ibs"},
    };
    for (const auto& [name, temp] : names) EXPECT_EQ(PinMappingTempName(name), temp);
}

// Real files written by others: only the first [Pin] table and the mapping change; the rest
// of the file is copied byte for byte, and a new read gives back the pins and the mapping.
struct VendorCase {
    const char* file;
    const char* mapping;
    std::vector<std::pair<std::string, std::string>> edits;  // applied to the text first
    uint32_t mappingComplete;
};

TEST_F(PinMappingWriterTest, VendorFilesRoundTrip) {
    const VendorCase cases[] = {
        {"sn74lvc1g14.ibs", "sn74lvc1g14.txt", {}, 0},
        // Pins pointed at real models take their references: the mapping is complete.
        {"sn74lvc1g14.ibs",
         "sn74lvc1g14-models.txt",
         {{"2           A          LVC1G14_IN ", "2           A          LVC1G14_IN_33"},
          {"4           Y          LVC1G14_OUT ", "4           Y          LVC1G14_OUT_33"}},
         1},
    };
    for (const VendorCase& vc : cases) {
        SCOPED_TRACE(vc.mapping);
        std::string original = ReadFile(kData + vc.file);
        for (const auto& [from, to] : vc.edits)
            original.replace(original.find(from), from.size(), to);
        std::string file = dir_.Write(vc.file, original);
        DialogState state = ReadDialogState(kData + "pinmap/vendor/" + vc.mapping);
        ComponentRec before = Component(state, file);
        ParseIbisFile(before);
        ComponentRec c = Component(state, file);
        ASSERT_EQ(Save(c, state), 1);

        std::string saved = ReadFile(file);
        size_t head = original.find('\n', original.find("[Pin]")) + 1;
        size_t tail = original.find("\n[", head) + 1;
        std::string prefix = kModifiedIbisMarker + ("\n" + original.substr(0, head));
        EXPECT_EQ(saved.substr(0, prefix.size()), prefix);
        ASSERT_GE(saved.size(), original.size() - tail);
        EXPECT_EQ(saved.substr(saved.size() - (original.size() - tail)), original.substr(tail));

        ComponentRec after = Component(state, file);
        ParseIbisFile(after);
        EXPECT_EQ(after.pinsMatch, 1u);
        EXPECT_EQ(after.mappingComplete, vc.mappingComplete);
        auto was = before.pins.begin();
        for (const PinRec& pin : after.pins) {
            SCOPED_TRACE(pin.name);
            const PinRec& stored = *std::find_if(
                c.pins.begin(), c.pins.end(), [&](const PinRec& p) { return p.name == pin.name; });
            EXPECT_EQ(pin.modelName, stored.modelName);
            EXPECT_EQ(pin.pinClass, stored.pinClass);
            EXPECT_EQ(pin.powerGroup, stored.pinClass == 1 ? stored.powerGroup : "");
            EXPECT_EQ(pin.groundGroup, stored.pinClass == 2 ? stored.groundGroup : "");
            EXPECT_EQ(pin.modelType, was->modelType);
            if (stored.modelName == was->modelNameAsRead) {
                EXPECT_EQ(pin.signalName, was->signalName);
            }
            if (pin.hasModel) {
                EXPECT_EQ(pin.pulldownRef, stored.pulldownRef);
                EXPECT_EQ(pin.pullupRef, stored.pullupRef);
                EXPECT_EQ(pin.gndClampRef, stored.gndClampRef);
                EXPECT_EQ(pin.powerClampRef, stored.powerClampRef);
            }
            ++was;
        }
    }
}

}  // namespace
