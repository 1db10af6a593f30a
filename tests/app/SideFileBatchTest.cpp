// A batch run with both side files and a gap percentage, through the built program.
#include <gtest/gtest.h>

#include <algorithm>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

const char kBoard[] =
    "%length mm;\n"
    "%dielectric_material \"FR4\" 4.3;\n"
    "%conductor_material \"COPPER\" %resistivity 0.5;\n"
    "%signal \"TOP\" \"1\" \"x\" 0.035 \"COPPER\";\n"
    "%dielectric \"D1\" \"x\" \"FR4\" 0.2;\n"
    "%power \"GND\" \"2\" \"x\" 0.035 \"COPPER\";\n"
    "%board_outline\n"
    "%rectangle 0 0 50 40;\n"
    "%port \"U1-1\" \"CLK\";\n"
    "%port \"U1-2\" \"GND\";\n"
    "%fill_area \"GND\" \"GND\";\n"
    "\n"
    "%trace \"TOP\" 0.1 10 10 20 10 \"CLK\";\n"
    "%trace \"TOP\" 0.1 20 10 20 10 \"CLK\";\n";

// A tie of 0.2 mm from (30, 20) one millimetre to the right, onto the ground fill.
const char kTraces[] = "TTT T 0.2 0 0 0\nARS GND 2\nTTI 30 20 T 0 1 1 1\n";

// A ground area on TOP under the clock trace, which therefore gets a gap.
const char kHkp[] =
    ".UNITS MM\n"
    ".NET \"GND\"\n"
    "..CONDUCTIVE_AREA\n"
    "...ROUTE_LYR TOP\n"
    "...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
    "....RECT_SHAPE\n"
    ".....XY (5, 5) (25, 15)\n";

bool HasLine(const std::vector<std::string>& lines, const std::string& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

bool HasLineWith(const std::vector<std::string>& lines, const std::string& a,
                 const std::string& b) {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& l) {
        return l.find(a) != std::string::npos && l.find(b) != std::string::npos;
    });
}

TEST(SideFileBatch, TiesAreasGapsAndTrivialTracesReachTheOutput) {
    ScratchDir dir;
    dir.Write("b.ndd", kBoard);
    dir.Write("t.txt", kTraces);
    dir.Write("l.hkp", kHkp);
    ASSERT_EQ(RunProgram(dir.Path(),
                         {"-NoUI", "-traces", "t.txt", "/HKP", "l.hkp", "b.ndd", "b.qfx", "20"}),
              0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
    std::vector<std::string> lines = SplitLines(ReadFile(dir.File("b.qfx")));
    // The zero-length trace 1 is gone; the tie is trace 2 on the ground layer.
    EXPECT_TRUE(HasLine(lines,
                        "Trace0::CLK StartingNode = Node0::CLK EndingNode = Node1::CLK Width = "
                        "1.000000e-01mm Color = red"));
    EXPECT_FALSE(HasLineWith(lines, "Trace1", "StartingNode"));
    EXPECT_TRUE(HasLine(lines,
                        "Trace2::GND StartingNode = Node2::GND EndingNode = Node3::GND Width = "
                        "2.000000e-01mm Color = green"));
    EXPECT_TRUE(HasLine(lines,
                        "Node3::GND X = 3.1000000000e+01mm Y = 2.0000000000e+01mm Layer = "
                        "Signal$GND Contact = 1"));
    // The area from layout.hkp, and the gap of 0.14 mm around the clock trace, reaching
    // 0.07 mm past its ends at x = 10 and x = 20.
    EXPECT_TRUE(HasLineWith(lines, "::GND+", "2.500000e+01mm 5.000000e+00mm"));
    EXPECT_TRUE(HasLineWith(lines, "::CLK-", "9.930000e+00mm 1.007000e+01mm 2.007000e+01mm"));
}

TEST(SideFileBatch, MissingSideFilesOnlyReportTheLayoutFile) {
    ScratchDir dir;
    dir.Write("b.ndd", kBoard);
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "-traces", "none.txt", "-hkp", "none.hkp", "b.ndd"}),
              0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "The Input  file could not be opened\n");
    std::vector<std::string> lines = SplitLines(ReadFile(dir.File("b.qfx")));
    EXPECT_TRUE(HasLine(lines,
                        "Trace0::CLK StartingNode = Node0::CLK EndingNode = Node1::CLK Width = "
                        "1.000000e-01mm Color = red"));
}

}  // namespace
