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

}  // namespace
