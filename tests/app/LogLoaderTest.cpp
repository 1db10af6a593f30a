#include "app/LogLoader.h"

#include <gtest/gtest.h>

#include "DataCases.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

using namespace testing_support;

namespace {

std::string Join(const std::vector<std::string>& words) {
    std::string t;
    for (const std::string& w : words) t += " " + w;
    return t;
}

std::string Join(const std::vector<int32_t>& numbers) {
    std::string t;
    for (int32_t n : numbers) t += " " + (n == kNoNet ? std::string("nonet") : std::to_string(n));
    return t;
}

// What loading a log leaves: the result, the two names, the net mode and selection, the
// write flags, the settings the cases touch, and the reports of the batch run.
std::string State(bool ok, const std::string& input, const std::string& output) {
    const TranslationOptions& o = g_options;
    char range[64];
    std::snprintf(range, sizeof range, "%g..%g", o.g_dbSpatialMinY, o.g_dbSpatialMaxY);
    return std::string(ok ? "loaded" : "refused") + "\nin " + input + "\nout " + output + "\nall " +
           std::to_string(o.g_bAllNets) + " selected " + std::to_string(o.g_bSelectedOnly) +
           " all-from-log " + std::to_string(o.g_bAllNetsFromLog) + " loaded " +
           std::to_string(o.g_bLogLoaded) + " count " + std::to_string(o.g_nSelectedNetCount) +
           "\nnets" + Join(o.g_lstLogNets) + "\ncolours" + Join(o.g_lstLogColors) + "\nselection" +
           Join(o.g_pSelectedNets) + "\nnet colours" + Join(o.g_pNetColors) + "\nwrite shapes " +
           std::to_string(o.g_bTranslateShapes) + " vias " + std::to_string(o.g_bTranslateVias) +
           " traces " + std::to_string(o.g_bTranslateTraces) + "\naffix " + o.g_strNameAffix +
           "\nvoid via " + std::to_string(o.g_bExcludeVoidEnclosingVia) + " y " + range + "\n" +
           ReadStream(o.g_pErrorLog);
}

// Logs loaded in a batch run; the "--" line gives the input and output names before ("-" for
// empty, "{dir}" for the folder that holds prev.log and in.ndd), and "preset" switches the
// write flags off and crosses the y range first. "{head}" stands for head.log.
TEST(LogLoader, LogsGiveTheseSettings) {
    ScratchDir dir;
    dir.Write("in.ndd", DataFile("app/LogLoader/board.ndd"));
    auto expand = [&](std::string text) {
        for (const auto& [word, by] : {std::pair<std::string, std::string>{"{dir}", dir.Path()},
                                       {"{head}\n", DataFile("app/LogLoader/head.log")}})
            for (size_t at; (at = text.find(word)) != std::string::npos;)
                text.replace(at, word.size(), by);
        return text;
    };
    for (const DataCase& c : DataCases("app/LogLoader/Logs.txt")) {
        ResetGlobals();
        g_options.g_nBatchMode = -1;
        g_options.g_pErrorLog = std::tmpfile();
        ASSERT_GE(c.args.size(), 2u) << c.title;
        std::string input = c.args[0] == "-" ? "" : expand(c.args[0]);
        std::string output = c.args[1] == "-" ? "" : expand(c.args[1]);
        if (c.args.size() > 2) {
            g_options.g_bTranslateShapes = g_options.g_bTranslateVias = 0;
            g_options.g_bTranslateTraces = 0;
            g_options.g_dbSpatialMinY = 9.0;
            g_options.g_dbSpatialMaxY = 1.0;
        }
        bool ok = LoadLogFile(dir.Write("prev.log", expand(c.input)), input, output);
        EXPECT_EQ(State(ok, input, output), expand(c.expected)) << c.title;
    }
}

}  // namespace
