#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "base/Platform.h"
#include "model/TranslationOptions.h"

namespace {

// What one command line leaves behind; "~/" in a name stands for the current folder.
struct Parsed {
    int result;
    std::string log, input, output, traces, hkp;
    int batch;
    bool operator==(const Parsed& o) const {
        return std::tie(result, log, input, output, traces, hkp, batch) ==
               std::tie(o.result, o.log, o.input, o.output, o.traces, o.hkp, o.batch);
    }
};

std::ostream& operator<<(std::ostream& os, const Parsed& p) {
    return os << p.result << " log=" << p.log << " in=" << p.input << " out=" << p.output
              << " traces=" << p.traces << " hkp=" << p.hkp << " batch=" << p.batch;
}

std::string Here(std::string name) {
    if (name.rfind("~/", 0) == 0) name = base::CurrentFolder() + name.substr(1);
    return name;
}

Parsed Parse(std::vector<std::string> args) {
    testing_support::ResetGlobals();
    args.insert(args.begin(), "ndd2qfx");
    Parsed p{};
    p.result = ParseCommandLine(args, p.log, p.input, p.output);
    p.traces = g_options.g_strTraceFile;
    p.hkp = g_options.g_strHkpFile;
    p.batch = g_options.g_nBatchMode;
    return p;
}

TEST(CommandLine, NamesOptionsAndResults) {
    const struct {
        std::vector<std::string> args;
        Parsed want;
    } rows[] = {
        {{"-NoUI", "  a.NDD ", "b.qfx", "20"},
         {kCmdFilesTaken, "", "~/a.NDD", "b.qfx", "", "", -1}},
        {{"dir\\prev.LOG", "in.ndd", "out.qfx"},
         {kCmdFilesTaken, "~/dir/prev.LOG", "in.ndd", "out.qfx", "", "", 0}},
        {{"-NoUI", "-b", "a.ndd"}, {kCmdFilesTaken, "", "~/a.ndd", "", "", "", -1}},
        {{"/b", "/noui", "a.ndd"}, {kCmdFilesTaken, "", "~/a.ndd", "", "", "", -1}},
        {{"-B", "-log", "/v", "-splitplane", "a.ndd"},
         {kCmdFilesTaken, "", "~/a.ndd", "", "", "", 1}},
        // The side files' values become absolute paths, even when they look like file names.
        {{"-NoUI", "-traces", "pcb/traces", "-hkp", "/d/layout.hkp", "a.ndd"},
         {kCmdFilesTaken, "", "~/a.ndd", "", "~/pcb/traces", "/d/layout.hkp", -1}},
        {{"/TRACES", "t.txt", "/Hkp", "dir\\x.hkp", "-b", "a.ndd"},
         {kCmdFilesTaken, "", "~/a.ndd", "", "~/t.txt", "~/dir/x.hkp", 1}},
        {{"-hkp", "b.ndd", "a.ndd"}, {kCmdFilesTaken, "", "~/a.ndd", "", "", "~/b.ndd", 0}},
        {{"-traces"}, {kCmdNoFile, "", "", "", "", "", 0}},
        // Started by the parent tool: the run mode options stand, names are not read.
        {{"-pipe"}, {kCmdPipeStart, "", "", "", "", "", 0}},
        {{"/PIPE", "-NoUI"}, {kCmdPipeStart, "", "", "", "", "", -1}},
        {{"-b", "-Pipe", "a.ndd", "b.qfx"}, {kCmdPipeStart, "", "", "", "", "", 1}},
        {{"a.ndd", "-pipe"}, {kCmdFilesTaken, "", "~/a.ndd", "-pipe", "", "", 0}},
    };
    for (const auto& row : rows) {
        Parsed want = row.want;
        for (std::string* name : {&want.log, &want.input, &want.output, &want.traces, &want.hkp})
            *name = Here(*name);
        EXPECT_EQ(Parse(row.args), want) << row.args.size() << " arguments";
    }
    EXPECT_EQ(Parse({"a.qfx"}).result, kCmdUnknownExtension);
    EXPECT_EQ(Parse({"-x", "a.ndd"}).result, kCmdUnknownExtension);  // -x is the first name
    EXPECT_EQ(Parse({"-pipes"}).result, kCmdUnknownExtension);
    EXPECT_EQ(Parse({}).result, kCmdNoFile);
    EXPECT_EQ(Parse({"-NoUI"}).result, kCmdNoFile);
}

TEST(CommandLine, GapPercentVerboseDrillAndGap) {
    Parse({"-B", "/v", "a.ndd", "b.qfx", "20"});
    EXPECT_EQ(g_options.g_strTraceGapPercent, "20");
    EXPECT_EQ(g_options.g_bVerboseFlag, 1);
    // Drill and gap exclude each other by order.
    Parse({"-drill", "5", "-EXP", "3", "a.ndd"});
    EXPECT_DOUBLE_EQ(g_options.g_dbDrillClearance, 5 * 0.0254);
    EXPECT_EQ(g_options.g_dbGapAroundAreaFillOnPlaneLayers, -1.0);
    Parse({"-EXP", "3", "/DRILL", "5", "a.ndd"});
    EXPECT_EQ(g_options.g_dbDrillClearance, -1.0);
    EXPECT_DOUBLE_EQ(g_options.g_dbGapAroundAreaFillOnPlaneLayers, 3 * 0.0254);
    Parse({"-drill", "abc", "a.ndd"});
    EXPECT_EQ(g_options.g_dbDrillClearance, 0.0);
}

TEST(DefaultOutputName, CutsAtTheDotOfTheExtensionOnly) {
    EXPECT_EQ(DefaultOutputName("/d/my.board.ndd"), "/d/my.board.qfx");
    EXPECT_EQ(DefaultOutputName("/d/boardndd"), "/d/boardndd.qfx");
    EXPECT_EQ(DefaultOutputName("/d/a.NDD"), "/d/a.qfx");
}

}  // namespace
