// Inputs that are damaged or odd, run through the built program as a user runs it: each must
// give a finished file or a clear message, never a crash or a hang.
#include <gtest/gtest.h>

#include <algorithm>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

const char kStack[] =
    "%length mm;\n"
    "%signal \"TOP\" \"1\" \"x\" 0.035 \"CU\";\n"
    "%board_outline\n"
    "%port \"U1-1\" \"N\";\n";

std::string Translate(const ScratchDir& dir, const std::string& text) {
    dir.Write("a.ndd", text);
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "a.ndd"}), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
    return ReadFile(dir.File("a.qfx"));
}

std::vector<std::string> LinesStartingWith(const std::string& text, const std::string& head) {
    std::vector<std::string> found;
    for (const std::string& line : SplitLines(text))
        if (line.compare(0, head.size(), head) == 0) found.push_back(line);
    return found;
}

TEST(BadInputs, CrlfLineEndsGiveTheSameFileAsLf) {
    ScratchDir dir;
    std::string lf = ReadFile(NDD2QFX_SOURCE_DIR "/examples/board.ndd");
    std::string crlf;
    for (char c : lf) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    std::string fromLf = Translate(dir, lf);
    std::string fromCrlf = Translate(dir, crlf);
    EXPECT_NE(fromLf.find(".Connect U1"), std::string::npos);
    EXPECT_EQ(fromCrlf, fromLf);
}

// An unclosed quote runs to the end of its line only: the net word of the first trace is
// emptied by the quote rule, so that trace has no net and goes; the next line reads normally.
TEST(BadInputs, AnUnclosedQuoteEndsWithItsLine) {
    ScratchDir dir;
    std::string qfx = Translate(dir, std::string(kStack) +
                                         "%trace \"TOP\" 0.1 1 1 2 2 \"N;\n"
                                         "%trace \"TOP\" 0.1 3 3 4 4 \"N\";\n");
    EXPECT_EQ(LinesStartingWith(qfx, "Trace"),
              std::vector<std::string>{"Trace0::N StartingNode = Node0::N EndingNode = Node1::N "
                                       "Width = 1.000000e-01mm Color = red"});
    EXPECT_EQ(LinesStartingWith(qfx, "Node0::N"),
              std::vector<std::string>{"Node0::N X = 3.0000000000e+00mm Y = 3.0000000000e+00mm "
                                       "Layer = Signal$TOP Contact = 1"});
}

// Numbers are read as the C library reads them: 1e999 is infinite, "nan" is no number, and
// both are printed as the C library prints them.
TEST(BadInputs, InfiniteAndNanNumbersArePrintedAsRead) {
    ScratchDir dir;
    std::string qfx = Translate(dir,
                                "%length mm;\n"
                                "%signal \"TOP\" \"1\" \"x\" 1e999 \"CU\";\n"
                                "%dielectric \"D\" \"x\" \"FR4\" nan;\n"
                                "%board_outline\n"
                                "%port \"U1-1\" \"N\";\n"
                                "%trace \"TOP\" 1e999 1 1 2 2 \"N\";\n");
    EXPECT_EQ(LinesStartingWith(qfx, "Signal$TOP"),
              std::vector<std::string>{
                  "Signal$TOP Thickness = infmm Conductivity = 0.000000e+00 Color = blue"});
    EXPECT_EQ(LinesStartingWith(qfx, "Medium$D"),
              std::vector<std::string>{"Medium$D Thickness = nanmm Permittivity = 4.000000e+00"});
    EXPECT_EQ(LinesStartingWith(qfx, "Trace0"),
              std::vector<std::string>{"Trace0::N StartingNode = Node0::N EndingNode = Node1::N "
                                       "Width = infmm Color = red"});
}

// A number is read up to the first character that cannot belong to it.
TEST(BadInputs, TextAfterANumberIsIgnored) {
    ScratchDir dir;
    std::string qfx =
        Translate(dir, std::string(kStack) + "%trace \"TOP\" 0.1abc 1 1 2y 2/0 \"N\";\n");
    EXPECT_EQ(LinesStartingWith(qfx, "Trace0"),
              std::vector<std::string>{"Trace0::N StartingNode = Node0::N EndingNode = Node1::N "
                                       "Width = 1.000000e-01mm Color = red"});
    EXPECT_EQ(LinesStartingWith(qfx, "Node1::N"),
              std::vector<std::string>{"Node1::N X = 2.0000000000e+00mm Y = 2.0000000000e+00mm "
                                       "Layer = Signal$TOP Contact = 1"});
}

// The end of the file ends a boundary as "%end_boundary" would, and a last record needs
// neither its ';' nor a line feed.
TEST(BadInputs, RecordsCutOffByTheEndOfTheFileAreReadAsFarAsTheyGo) {
    ScratchDir dir;
    const std::string fill =
        "%fill_area \"TOP\" \"N\";\n%begin_boundary\n%outline\n%rectangle 0 0 10 10;\n";
    std::string ended = Translate(dir, std::string(kStack) + fill + "%end_boundary\n");
    std::string cut = Translate(dir, std::string(kStack) + fill);
    EXPECT_EQ(LinesStartingWith(cut, "Polygon0::N+"), LinesStartingWith(ended, "Polygon0::N+"));
    EXPECT_EQ(LinesStartingWith(cut, "Polygon0::N+").size(), 1u);

    std::string trace = Translate(dir, std::string(kStack) + "%trace \"TOP\" 0.1 1 1 2 2 \"N\"");
    EXPECT_EQ(LinesStartingWith(trace, "Trace"),
              std::vector<std::string>{"Trace0::N StartingNode = Node0::N EndingNode = Node1::N "
                                       "Width = 1.000000e-01mm Color = red"});
    // Cut inside the record: the net is missing, and a trace with no net is left out.
    std::string half = Translate(dir, std::string(kStack) + "%trace \"TOP\" 0.1 1 1 2");
    EXPECT_TRUE(LinesStartingWith(half, "Trace").empty());
    EXPECT_EQ(SplitLines(half).back(), ".End");
}

}  // namespace
