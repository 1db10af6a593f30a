// A batch run of a routed board: traces and arcs are read, share their nodes, and reach the
// file as node lines followed by trace lines.
#include <gtest/gtest.h>

#include "TestSupport.h"

namespace {

using namespace testing_support;

// Lines of text that begin with prefix, in order.
std::vector<std::string> LinesStartingWith(const std::string& text, const std::string& prefix) {
    std::vector<std::string> out;
    for (const std::string& line : SplitLines(text))
        if (line.compare(0, prefix.size(), prefix) == 0) out.push_back(line);
    return out;
}

TEST(TraceRun, RoutedBoardGivesNodeAndTraceLines) {
    ScratchDir dir;
    dir.Write("r.ndd",
              "%length mm;\n"
              "%signal \"TOP\" \"1\" \"x\" 0.035 \"COPPER\";\n"
              "%dielectric \"D1\" \"x\" \"FR4\" 0.2;\n"
              "%signal \"BOTTOM\" \"2\" \"x\" 0.035 \"COPPER\";\n"
              "%board_outline\n"
              "%port \"U1-1\" \"N1\";\n"
              "%trace \"TOP\" 0.1 1 1 2 1 \"N1\";\n"
              "%trace \"TOP\" 0.1 2.00005 1 2 2 \"N1\";\n"
              "%arc_trace \"BOTTOM\" 0.2 0 0 1 1 2 0 \"N1\";\n"
              "%tracerule \"N1\" 0.1;\n"
              "%trace \"TOP\" 0.1 5 5 6 6 \"N1\";\n");
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "r.ndd"}), 0);
    std::string qfx = ReadFile(dir.File("r.qfx"));
    EXPECT_EQ(LinesStartingWith(qfx, "Node"),
              (std::vector<std::string>{
                  "Node0::N1 X = 1.0000000000e+00mm Y = 1.0000000000e+00mm Layer = Signal$TOP "
                  "Contact = 1",
                  "Node1::N1 X = 2.0000000000e+00mm Y = 1.0000000000e+00mm Layer = Signal$TOP "
                  "Contact = 1",
                  "Node2::N1 X = 2.0000000000e+00mm Y = 2.0000000000e+00mm Layer = Signal$TOP "
                  "Contact = 1",
                  "Node3::N1 X = 0.0000000000e+00mm Y = 0.0000000000e+00mm Layer = "
                  "Signal$BOTTOM Contact = 1",
                  "Node4::N1 X = 1.0000000000e+00mm Y = 1.0000000000e+00mm Layer = "
                  "Signal$BOTTOM Contact = 1",
                  "Node5::N1 X = 2.0000000000e+00mm Y = 0.0000000000e+00mm Layer = "
                  "Signal$BOTTOM Contact = 1",
              }));
    EXPECT_EQ(LinesStartingWith(qfx, "Trace"),
              (std::vector<std::string>{
                  "Trace0::N1 StartingNode = Node0::N1 EndingNode = Node1::N1 Width = "
                  "1.000000e-01mm Color = red",
                  "Trace1::N1 StartingNode = Node1::N1 EndingNode = Node2::N1 Width = "
                  "1.000000e-01mm Color = red",
                  "Trace2::N1 StartingNode = Node3::N1 EndingNode = Node4::N1 Width = "
                  "2.000000e-01mm Color = red",
                  "Trace3::N1 StartingNode = Node5::N1 EndingNode = Node4::N1 Width = "
                  "2.000000e-01mm Color = red",
              }));
    // Node lines come before the trace lines, and both inside the package.
    size_t lastNode = qfx.rfind("\nNode5::N1");
    size_t firstTrace = qfx.find("\nTrace0::N1");
    size_t end = qfx.find("\n.EndPackage");
    EXPECT_LT(lastNode, firstTrace);
    EXPECT_LT(firstTrace, end);
    EXPECT_NE(end, std::string::npos);
}

}  // namespace
