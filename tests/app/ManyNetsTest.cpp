// A board with more nets than 16 bits can count: every via and trace end must name a node line
// of the file, with the net that node line carries.
#include <gtest/gtest.h>

#include <string>
#include <unordered_set>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

constexpr int kNets = 70100;

// Each net: a via through the board and a trace on top from it, on a grid of 0.5 mm.
std::string ManyNetBoard() {
    std::string text =
        "%length TN;\n"
        "%dielectric_material \"FR4\" 4.3;\n%conductor_material \"CU\" %resistivity 0.5;\n"
        "%signal \"TOP\" \"1\" \"x\" 3500 \"CU\";\n%dielectric \"D1\" \"x\" \"FR4\" 20000;\n"
        "%power \"GND\" \"2\" \"x\" 3500 \"CU\";\n%dielectric \"D2\" \"x\" \"FR4\" 20000;\n"
        "%signal \"BOTTOM\" \"3\" \"x\" 3500 \"CU\";\n"
        "%paddef \"C50\"\n%begin_boundary\n%outline\n%circle 0 0 15000;\n%end_boundary\n"
        "%end_paddef;\n"
        "%padstackdef \"VIA\"\n%padstacktype \"%thruhole\"\n%drill 10000;\n"
        "%liblayer \"%all_layers\"\n%pad 0 0 \"C50\";\n%end_padstackdef;\n";
    std::string vias, traces;
    char line[160];
    for (int i = 0; i < kNets; ++i) {
        const long x = 100000L + (i % 300) * 50000L, y = 100000L + (i / 300) * 50000L;
        std::snprintf(line, sizeof line, "%%port \"P%d-1\" \"N%05d\";\n", i, i);
        text += line;
        std::snprintf(line, sizeof line, "%%via \"VIA\" %ld %ld 0 \"N%05d\";\n", x, y, i);
        vias += line;
        std::snprintf(line, sizeof line, "%%trace \"TOP\" 5000 %ld %ld %ld %ld \"N%05d\";\n", x, y,
                      x + 20000, y, i);
        traces += line;
    }
    return text + vias + traces;
}

// The word behind "key" in line: a node's name up to the next blank.
std::string NameAfter(const std::string& line, const std::string& key) {
    size_t at = line.find(key);
    if (at == std::string::npos) return std::string();
    at += key.size();
    return line.substr(at, line.find(' ', at) - at);
}

std::string NetOf(const std::string& name) {
    size_t at = name.find("::");
    return at == std::string::npos ? std::string() : name.substr(at);
}

TEST(ManyNets, EveryReferenceNamesANodeLineOfItsOwnNet) {
    ScratchDir dir;
    dir.Write("many.ndd", ManyNetBoard());
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "many.ndd"}), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
    const std::vector<std::string> lines = SplitLines(ReadFile(dir.File("many.qfx")));
    std::unordered_set<std::string> nodes;
    for (const std::string& l : lines)
        if (l.compare(0, 4, "Node") == 0) nodes.insert(l.substr(0, l.find(' ')));
    int vias = 0, traces = 0, dangling = 0, foreign = 0, lastNet = 0;
    auto check = [&](const std::string& owner, const std::string& node) {
        dangling += nodes.count(node) ? 0 : 1;
        foreign += NetOf(node) == NetOf(owner) ? 0 : 1;
    };
    for (const std::string& l : lines) {
        const std::string owner = l.substr(0, l.find(' '));
        if (l.compare(0, 3, "Via") == 0) {
            ++vias;
            lastNet += NetOf(owner) == "::N70099" ? 1 : 0;
            check(owner, NameAfter(l, "UpperNode = "));
            check(owner, NameAfter(l, "LowerNode = "));
        } else if (l.compare(0, 5, "Trace") == 0) {
            ++traces;
            check(owner, NameAfter(l, "StartingNode = "));
            check(owner, NameAfter(l, "EndingNode = "));
        }
    }
    EXPECT_EQ(vias, kNets);
    EXPECT_EQ(traces, kNets);
    EXPECT_EQ(dangling, 0);
    EXPECT_EQ(foreign, 0);
    // The last net of the table, far beyond 16 bits, keeps its name.
    EXPECT_EQ(lastNet, 1);
}

}  // namespace
