// What the program does with the inputs that the fuzz harnesses found crashing or hanging,
// run as the user runs it.
#include <gtest/gtest.h>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

const std::string kFindings = NDD2QFX_SOURCE_DIR "/tests/data/fuzz_regressions/";

// A round end of 1e300 mm would need more points than any memory holds, and its angle step
// would be too small to advance the angle: the shape pass stops with a memory failure.
TEST(FuzzFindings, RoundLineTooWideForAnyMemoryStopsTheShapePass) {
    ScratchDir dir;
    dir.Write("a.ndd", ReadFile(kFindings + "translate/oom-round-line-1e300.ndd"));
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "a.ndd"}), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "Insufficient Memory\n");
    EXPECT_EQ(ReadFile(dir.File("a.qfx")), "");
}

// A round end 40 km wide at the default arc length: 628 thousand chords, which the pass
// makes and the clean-up reduces in well under a second.
TEST(FuzzFindings, RoundLineOfManyChordsIsTranslated) {
    ScratchDir dir;
    dir.Write("a.ndd", ReadFile(kFindings + "translate/timeout-wide-round-line.ndd"));
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "a.ndd"}), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
    EXPECT_EQ(SplitLines(ReadFile(dir.File("a.qfx"))).back(), ".End");
}

}  // namespace
