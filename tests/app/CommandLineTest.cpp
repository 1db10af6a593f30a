#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "DataCases.h"
#include "TestSupport.h"
#include "base/Platform.h"
#include "model/TranslationOptions.h"

namespace {

using namespace testing_support;

// What one command line leaves behind: the result (0 no file, 1 files taken, 2 unknown
// extension, 4 pipe start), the names, the side files, the run mode and the numeric options.
std::string Parse(std::vector<std::string> args) {
    ResetGlobals();
    args.insert(args.begin(), "ndd2qfx");
    std::string log, input, output;
    int result = ParseCommandLine(args, log, input, output);
    const TranslationOptions& o = g_options;
    char numbers[96];
    std::snprintf(numbers, sizeof numbers, "drill %.17g gap %.17g", o.g_dbDrillClearance,
                  o.g_dbGapAroundAreaFillOnPlaneLayers);
    return std::to_string(result) + " log=" + log + " in=" + input + " out=" + output +
           " traces=" + o.g_strTraceFile + " hkp=" + o.g_strHkpFile +
           " batch=" + std::to_string(o.g_nBatchMode) + "\nverbose " +
           std::to_string(o.g_bVerboseFlag) + " percent " + o.g_strTraceGapPercent + " " + numbers +
           "\n";
}

// One argument a line; "~/" stands for the current folder.
TEST(CommandLine, ArgumentsGiveTheseOptions) {
    for (const DataCase& c : DataCases("app/CommandLine/Lines.txt")) {
        std::string got = Parse(SplitLines(c.input));
        const std::string here = base::CurrentFolder() + "/";
        for (size_t at; (at = got.find(here)) != std::string::npos;)
            got.replace(at, here.size(), "~/");
        EXPECT_EQ(got, c.expected) << c.title;
    }
}

TEST(DefaultOutputName, CutsAtTheDotOfTheExtensionOnly) {
    EXPECT_EQ(DefaultOutputName("/d/my.board.ndd"), "/d/my.board.qfx");
    EXPECT_EQ(DefaultOutputName("/d/boardndd"), "/d/boardndd.qfx");
    EXPECT_EQ(DefaultOutputName("/d/a.NDD"), "/d/a.qfx");
}

}  // namespace
