// Fills read by the pipeline reach the shape section cleaned and sorted.
#include <gtest/gtest.h>

#include <algorithm>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

TEST(ShapePipeline, FillAndItsVoidAreCleanedSortedAndWritten) {
    ScratchDir dir;
    dir.Write("a.ndd",
              "%length mm;\n"
              "%signal \"TOP\" \"1\" \"x\" 0.035 \"COPPER\";\n"
              "%board_outline\n"
              "%rectangle 0 0 20 20;\n"
              "%port \"U1-1\" \"GND\";\n"
              "# Board Geometry section.\n"
              "%fill_area \"TOP\" \"GND\";\n"
              "%begin_boundary\n"
              "%outline\n"
              "%rectangle 0 0 10 10;\n"
              "%cutout\n"
              "%circle 5 5 1 ;\n"
              "%end_boundary\n");
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "a.ndd"}), 0);
    std::vector<std::string> lines = SplitLines(ReadFile(dir.File("a.qfx")));
    auto at = std::find(lines.begin(), lines.end(), ".Shape Shape$TOP Color = green");
    ASSERT_NE(at, lines.end());
    ASSERT_GE(lines.end() - at, 5);
    // The rectangle lost its first point to the repeated closing point; the void circle, the
    // smaller shape, sorts first and is written last.
    EXPECT_EQ(at[1],
              "Polygon1::GND+ Color = red   0.000000e+00mm 1.000000e+01mm 1.000000e+01mm "
              "1.000000e+01mm");
    EXPECT_EQ(at[2], "+   1.000000e+01mm 0.000000e+00mm 0.000000e+00mm 0.000000e+00mm");
    EXPECT_EQ(at[3], "Circle0::GND- Color = red 5.000000e+00mm 5.000000e+00mm 1.000000e+00mm");
    EXPECT_EQ(at[4], ".EndShape");
}

TEST(ShapePipeline, GapOptionStrokesTheFillsOfPlaneLayers) {
    ScratchDir dir;
    dir.Write("a.ndd",
              "%length mm;\n"
              "%signal \"TOP\" \"1\" \"x\" 0.035 \"COPPER\";\n"
              "%power \"GND\" \"2\" \"x\" 0.035 \"COPPER\";\n"
              "%board_outline\n"
              "%rectangle 0 0 20 20;\n"
              "%port \"U1-1\" \"GND\";\n"
              "%fill_area \"TOP\" \"GND\";\n%begin_boundary\n%outline\n"
              "%rectangle 0 0 10 10;\n%end_boundary\n"
              "%fill_area \"GND\" \"GND\";\n%begin_boundary\n%outline\n"
              "%rectangle 0 0 10 10;\n%end_boundary\n");
    // 4 mils: a gap of 0.1016 mm, circles of radius 0.0508 mm at each edge's end.
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "-EXP", "4", "a.ndd"}), 0);
    std::vector<std::string> lines = SplitLines(ReadFile(dir.File("a.qfx")));
    auto top = std::find(lines.begin(), lines.end(), ".Shape Shape$TOP Color = green");
    auto gnd = std::find(lines.begin(), lines.end(), ".Shape Shape$GND Color = green");
    ASSERT_NE(top, lines.end());
    ASSERT_NE(gnd, lines.end());
    EXPECT_TRUE(top[1].rfind("Polygon0::GND+ ", 0) == 0) << top[1];
    EXPECT_EQ(top[3], ".EndShape");
    int circles = 0, elements = 0;
    for (auto it = gnd + 1; it != lines.end() && *it != ".EndShape"; ++it) {
        if (it->rfind("+", 0) == 0) continue;
        ++elements;
        if (it->rfind("Circle", 0) == 0) {
            ++circles;
            EXPECT_EQ(it->substr(it->size() - 14), "5.080000e-02mm") << *it;
        }
    }
    EXPECT_EQ(4, circles);
    EXPECT_EQ(1 + 4 + 4, elements);
}

}  // namespace
