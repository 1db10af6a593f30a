// The built program's benchmark trace and what a batch run leaves behind: the order of the
// start routine and of a translation, the name checks behind the design read, and the exit
// line of a log that a failed run left open.
#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <fstream>
#include <ctime>

#include "TestSupport.h"
#include "qfx/Naming.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

std::string RealFolder(const std::string& path) {
    char buf[PATH_MAX];
    return realpath(path.c_str(), buf) ? std::string(buf) : path;
}

// Runs the program in folder with the trace on and kept in folder/tmp; returns the trace
// lines without their time stamps ("Www Mmm dd hh:mm:ss yyyy: ").
std::vector<std::string> TracedRun(const std::string& folder, const std::string& args) {
    std::string tmp = folder + "/tmp";
    std::string cmd = "mkdir -p '" + tmp + "' && cd '" + folder + "' && TMP='" + tmp +
                      "' KEEP_BENCHMARK=yes '" NDD2QFX_BINARY "' " + args + " >/dev/null 2>&1";
    if (std::system(cmd.c_str()) == -1) ADD_FAILURE() << "cannot run " << cmd;
    std::vector<std::string> lines;
    for (const std::string& line : SplitLines(ReadFile(tmp + "/debug_bm.log")))
        lines.push_back(line.size() >= 26 ? line.substr(26) : line);
    return lines;
}

// True when every word of want appears in lines, in this order.
bool InOrder(const std::vector<std::string>& lines, const std::vector<std::string>& want) {
    size_t k = 0;
    for (const std::string& line : lines)
        if (k < want.size() && line == want[k]) ++k;
    return k == want.size();
}

TEST(TranslationOrder, StartRoutineAndDriverTraceTheirSteps) {
    ScratchDir dir;
    const std::string folder = RealFolder(dir.Path());
    dir.Write("a.ndd", "%length mm;\n");
    std::vector<std::string> lines = TracedRun(folder, "-NoUI a.ndd");
    // The output name is made only after the names are traced.
    const std::vector<std::string> start = {"start parse cmd line for Ndd",
                                            "folder file name:" + folder,
                                            "log file name:",
                                            "input file name:" + folder + "/a.ndd",
                                            "output file name:",
                                            "batch mode",
                                            "Begin"};
    ASSERT_GE(lines.size(), start.size());
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 7), start);
    EXPECT_TRUE(InOrder(
        lines, {"Begin", "ParseNet", "ParseLayer", "GetCompPlacementInfo", "GetPinNetInfo",
                "ParsePadDefData", "Transfer", "ParsePadDef", "ParseVia", "ParseElement",
                "ParseTrace, ParseArcTrace", "output", "MakePackage", "KickOutTrivialTrace",
                "Writing Shape Info...", "MakeNode", "MakeTrace", "Translation completed"}));
    EXPECT_EQ(lines.back(), "Translation completed");
}

TEST(TranslationOrder, UnknownExtensionTracesItsCode) {
    ScratchDir dir;
    std::vector<std::string> lines = TracedRun(RealFolder(dir.Path()), "-NoUI a.qfx");
    EXPECT_EQ(lines, (std::vector<std::string>{"start parse cmd line for Ndd",
                                               "Unknown file extension name(2)"}));
}

TEST(TranslationOrder, WrongInputExtensionIsFoundAfterTheDesignIsRead) {
    ScratchDir dir;
    dir.Write("e.txt", "%length mm;\n");
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "prev.log", "e.txt", "out.qfx"}), 0);
    std::vector<std::string> report = SplitLines(ReadFile(dir.File("error.log")));
    ASSERT_GE(report.size(), 2u);
    EXPECT_EQ(report[report.size() - 2], "The Extension of Input File must be NDD !");
    EXPECT_EQ(report.back(), "Please Retry .");
    // Output and log were opened before the check and stay; the log, left open, gets the
    // application's exit line.
    EXPECT_EQ(ReadFile(dir.File("out.qfx")), "");
    const std::string log = ReadFile(dir.File("out.qfx.log"));
    const std::string prefix = "Application Ended At : ";
    ASSERT_EQ(log.substr(0, prefix.size()), prefix);
    std::tm when{};
    const char* rest = strptime(log.c_str() + prefix.size(), "%A, %B %d, %Y ,%H:%M:%S", &when);
    ASSERT_NE(rest, nullptr);
    EXPECT_STREQ(rest, "  ");
}

TEST(TranslationOrder, OutputWithAnotherExtensionIsWrittenUnderItsOwnName) {
    ScratchDir dir;
    dir.Write("e.ndd", "%length mm;\n");
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "e.ndd", "b.txt"}), 0);
    // The file opened first keeps the first writing; the second writing goes to the name
    // handed on, while the log follows the run's own output name.
    EXPECT_EQ(SplitLines(ReadFile(dir.File("b.txt"))).back(), ".End");
    EXPECT_EQ(ReadFile(dir.File("b.txt.QFX")), ReadFile(dir.File("b.txt")));
    EXPECT_TRUE(std::ifstream(dir.File("b.txt.log")).good());
    EXPECT_FALSE(std::ifstream(dir.File("b.txt.QFX.log")).good());
}

TEST(TranslationOrder, BareOutputNameStaysInTheCurrentFolder) {
    ScratchDir dir;
    ASSERT_EQ(std::system(("mkdir '" + dir.File("sub") + "'").c_str()), 0);
    dir.Write("sub/a.ndd", "%length mm;\n");
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "sub/a.ndd", "b.qfx"}), 0);
    // The input's folder becomes the working folder (error.log lands there), while the bare
    // output name was completed with the folder the program started in.
    EXPECT_FALSE(std::ifstream(dir.File("sub/b.qfx")).good());
    std::vector<std::string> out = SplitLines(ReadFile(dir.File("b.qfx")));
    ASSERT_FALSE(out.empty());
    EXPECT_EQ(out.back(), ".End");
    EXPECT_EQ(ReadFile(dir.File("sub/error.log")), "");
    EXPECT_FALSE(std::ifstream(dir.File("error.log")).good());
}

TEST(Naming, TitleVersionTurnsCommasToDotsAndDropsBlanks) {
    EXPECT_EQ(TitleVersion("25, 1, 1"), "25.1.1");
    EXPECT_EQ(TitleVersion(" 1 ,0, 12"), "1.0.12");
}

}  // namespace
