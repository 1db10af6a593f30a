#include "app/LogLoader.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

using namespace testing_support;

namespace {

const std::string kHead = testing_support::DataFile("app/LogLoader/head.log");

const std::string kBoard = testing_support::DataFile("app/LogLoader/board.ndd");

// Batch run with its reports captured.
void StartBatchRun() {
    ResetGlobals();
    g_options.g_nBatchMode = -1;
    g_options.g_pErrorLog = std::tmpfile();
}

std::string Reports() {
    return ReadStream(g_options.g_pErrorLog);
}

struct Loaded {
    bool ok;
    std::string input, output;
};

Loaded Load(const ScratchDir& dir, const std::string& text, std::string input = "/nowhere/in.ndd",
            std::string output = "/nowhere/out.qfx") {
    std::string path = dir.Write("prev.log", text);
    bool ok = LoadLogFile(path, input, output);
    return {ok, input, output};
}

TEST(LogLoader, AllNetsLineFollowedByNetLinesRestoresAllNetsMode) {
    StartBatchRun();
    ScratchDir dir;
    Loaded r = Load(dir, std::string(kHead) +
                             "\nNets Translated : \n\tAll nets are selected\n\tCLK\tred\n"
                             "\tGND\tgreen\n\nSettings :\n");
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(g_options.g_bAllNets, 1);
    EXPECT_EQ(g_options.g_bSelectedOnly, 0);
    EXPECT_EQ(g_options.g_bAllNetsFromLog, 1);
    EXPECT_EQ(g_options.g_bLogLoaded, 1);
    EXPECT_EQ(g_options.g_nSelectedNetCount, 0);
    // The colour column is taken all the same.
    EXPECT_EQ(g_options.g_lstLogNets, (std::vector<std::string>{"CLK", "GND"}));
    EXPECT_EQ(g_options.g_lstLogColors, (std::vector<std::string>{"red", "green"}));
}

TEST(LogLoader, NetLinesSelectNetsWithTheirColours) {
    StartBatchRun();
    ScratchDir dir;
    std::string input = dir.Write("in.ndd", kBoard);
    Loaded r = Load(dir,
                    "Ndd2Qfx Version 1.0.0.1\nFrom file : in.ndd\n\nNets Translated : \n"
                    "\tGND\tblue\n\tclk\tDarkRed\n\tNOSUCH\tred\n\tDATA\tDefault\n",
                    "", "");
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(r.input, input);
    EXPECT_EQ(r.output, dir.File("in.qfx"));
    EXPECT_EQ(g_options.g_bAllNets, 0);
    EXPECT_EQ(g_options.g_bSelectedOnly, 1);
    EXPECT_EQ(g_options.g_bAllNetsFromLog, 0);
    // Table, sorted without case: CLK 0, DATA 1, GND 2, VCC 3.
    EXPECT_EQ(g_options.g_nSelectedNetCount, 4);
    EXPECT_EQ(g_options.g_pSelectedNets, (std::vector<int32_t>{2, 0, kNoNet, 1}));
    // Rotation first (1, 2, 3, 4), then the log's colours: darkred 9, blue 3, Default 0.
    EXPECT_EQ(g_options.g_pNetColors, (std::vector<int32_t>{9, 0, 3, 4}));
}

TEST(LogLoader, AFileThatIsNoLogChangesOnlyTheWriteFlags) {
    StartBatchRun();
    ScratchDir dir;
    g_options.g_bTranslateShapes = 0;
    g_options.g_bTranslateVias = 0;
    Loaded r = Load(dir, "\nHello\nNets Translated : \n\tCLK\tred\nSettings :\n\tName affix : Z\n",
                    "a.ndd", "b.qfx");
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(Reports(),
              "The file :\n" + dir.File("prev.log") + "\nis not Ndd2Qfx translation log file\n");
    EXPECT_EQ(g_options.g_bTranslateShapes, 1);
    EXPECT_EQ(g_options.g_bTranslateVias, 1);
    EXPECT_EQ(g_options.g_strNameAffix, "");
    EXPECT_TRUE(g_options.g_lstLogNets.empty());
    EXPECT_EQ(g_options.g_bLogLoaded, 0);
    EXPECT_EQ(r.input, "a.ndd");
    EXPECT_EQ(r.output, "b.qfx");
}

TEST(LogLoader, HeadPathsAcceptBothSeparatorsAndReplaceOnlyWhenDifferent) {
    StartBatchRun();
    ScratchDir dir;
    const std::string log =
        "NDD2QFX Version 1.0.0.1\n"
        "from FILE :  board.ndd \t\n"
        "To file : \\data\\run/out.qfx\\/\n";
    Loaded r = Load(dir, log, "", "");
    EXPECT_EQ(r.input, dir.File("board.ndd"));
    EXPECT_EQ(r.output, "/data/run/out.qfx");
    // A name equal but for case is kept as it was given.
    std::string upper = dir.Path() + "/BOARD.NDD";
    r = Load(dir, log, upper, "/DATA/RUN/OUT.QFX");
    EXPECT_EQ(r.input, upper);
    EXPECT_EQ(r.output, "/DATA/RUN/OUT.QFX");
    // An empty path leaves the name alone.
    r = Load(dir, "Ndd2Qfx\nFrom file : \nTo file :\n", "/x/a.b.ndd", "");
    EXPECT_EQ(r.input, "/x/a.b.ndd");
    EXPECT_EQ(r.output, "/x/a.b.qfx");
}

TEST(LogLoader, LoadNormalisesTheRecordBeforeTheSettings) {
    StartBatchRun();
    ScratchDir dir;
    // A batch run's flag without area, and a crossed range.
    g_options.g_dbSpatialMinY = 9.0;
    g_options.g_dbSpatialMaxY = 1.0;
    g_options.g_bTranslateTraces = 0;
    ASSERT_TRUE(Load(dir, std::string(kHead) + "\nSettings :\n").ok);
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 0);
    EXPECT_EQ(g_options.g_dbSpatialMaxY, 9.0);
    EXPECT_EQ(g_options.g_bTranslateTraces, 1);
}

TEST(LogLoader, LongLinesComeInPiecesOfTheLogBuffer) {
    StartBatchRun();
    ScratchDir dir;
    // A net line of 1 + 400 characters: the first piece holds 383 characters, the name cut
    // to 127; the remaining 18 characters arrive as a line of their own.
    std::string longName(400, 'N');
    ASSERT_TRUE(Load(dir, std::string(kHead) + "\nNets Translated : \n\tAll nets are selected\n\t" +
                              longName + "\n")
                    .ok);
    ASSERT_EQ(g_options.g_lstLogNets.size(), 2u);
    EXPECT_EQ(g_options.g_lstLogNets[0], std::string(127, 'N'));
    EXPECT_EQ(g_options.g_lstLogNets[1], std::string(18, 'N'));
}

}  // namespace
