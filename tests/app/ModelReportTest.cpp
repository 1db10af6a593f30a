#include "app/ModelReport.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "TestSupport.h"
#include "app/TranslationDriver.h"
#include "model/TranslationOptions.h"
#include "base/Platform.h"

using namespace testing_support;

namespace {

const char kBoard[] =
    "%length TN;\n"
    "%signal \"TOP\" \"1\" \"x\" 3500 \"COPPER\";\n"
    "%dielectric \"D1\" \"x\" \"FR4\" 20000;\n"
    "%power \"GND\" \"2\" \"x\" 3500 \"COPPER\";\n"
    "%port \"U1-1\" \"CLK\";\n"
    "%port \"U1-2\" \"GND\";\n"
    "%port \"U1-3\" \"VCC\";\n"
    "%port \"U1-4\" \"DATA\";\n"
    "%trace \"TOP\" 23500 1524000 1016000 1571184 1063184 \"CLK\";\n"
    "%trace \"TOP\" 23500 1571184 1063184 1600000 1063184 \"CLK\";\n"
    "%trace \"TOP\" 10000 0 0 100000 0 \"DATA\";\n";

void StartBatchRun() {
    ResetGlobals();
    g_options.g_nBatchMode = -1;
    g_options.g_nQuiet = -1;
    g_options.g_pErrorLog = std::tmpfile();
}

int Translate(const std::string& input, const std::string& output) {
    g_options.g_strInputFile = input;
    g_options.g_strOutputFile = output;
    TranslationDriver driver;
    return driver.Translate(input, output);
}

std::string Reports() {
    return ReadStream(g_options.g_pErrorLog);
}

size_t Count(const std::string& text, const std::string& part) {
    size_t n = 0;
    for (size_t p = text.find(part); p != std::string::npos; p = text.find(part, p + 1)) ++n;
    return n;
}

// The log without its date line, which differs from run to run.
std::vector<std::string> LogWithoutDate(const std::string& path) {
    std::vector<std::string> lines = SplitLines(ReadFile(path));
    if (lines.size() > 3) lines.erase(lines.begin() + 3);
    return lines;
}

TEST(ModelReport, SecondWritingReplacesTheFirstAndIgnoresTheElementSwitches) {
    ScratchDir dir;
    std::string input = dir.Write("board.ndd", kBoard);

    StartBatchRun();
    std::string all = dir.File("all.qfx");
    ASSERT_EQ(Translate(input, all), 1);

    StartBatchRun();
    g_options.g_bTranslateShapes = g_options.g_bTranslateLayers = 0;
    g_options.g_bTranslateTraces = g_options.g_bTranslateVias = 0;
    std::string none = dir.File("none.qfx");
    // Warnings printed before the report step are dropped with the first log.
    g_options.g_pLogFile = std::fopen((none + ".log").c_str(), "w");
    std::fputs("stale warning\n", g_options.g_pLogFile);
    dir.Write("none.qfxtemp.log", "model messages\n");
    ASSERT_EQ(Translate(input, none), 1);
    EXPECT_EQ(Reports(), "");

    std::string text = ReadFile(none);
    EXPECT_EQ(text, ReadFile(all));
    EXPECT_EQ(Count(text, "Title - BOLT9000"), 1u);
    EXPECT_EQ(Count(text, ".EndPackage\n"), 1u);
    ASSERT_GE(text.size(), 5u);
    EXPECT_EQ(text.substr(text.size() - 5), ".End\n");
    EXPECT_FALSE(base::PathExists(dir.File("none.qfxtemp.log")));

    std::string log = ReadFile(none + ".log");
    EXPECT_EQ(log.find("stale warning"), std::string::npos);
    EXPECT_EQ(log.rfind("Ndd2Qfx Version ", 0), 0u);
    EXPECT_NE(log.find("From file : " + input + "\nTo file : " + none + "\n"), std::string::npos);
    EXPECT_NE(log.find("\n\nWarning(s):\n\n\nComponent Model Info :\n\n"
                       "\nTotal No Of Components in Design File = 0\n"),
              std::string::npos);
    EXPECT_EQ(g_options.g_pLogFile, nullptr);
    EXPECT_EQ(g_options.g_pOutputFile, nullptr);
}

// An output without the QFX extension keeps the first writing under its own name while the
// second writing goes to the name with ".QFX" added, so the two can be compared: every writer
// must print the same text when it runs the second time.
TEST(ModelReport, SecondWritingEqualsTheFirstForABoardWithoutComponents) {
    ScratchDir dir;
    std::string input = dir.Write("board.ndd", kBoard);
    std::string output = dir.File("out.txt");
    StartBatchRun();
    ASSERT_EQ(Translate(input, output), 1);
    std::string first = ReadFile(output);
    std::string second = ReadFile(output + ".QFX");
    EXPECT_NE(first.find("Signal$TOP "), std::string::npos) << first;
    EXPECT_NE(first.find("\nNode"), std::string::npos) << first;
    EXPECT_NE(first.find("\nTrace"), std::string::npos) << first;
    EXPECT_EQ(second, first);
    // The log follows the run's own output name.
    EXPECT_TRUE(base::PathExists(output + ".log"));
    EXPECT_FALSE(base::PathExists(output + ".QFX.log"));
}

TEST(ModelReport, OutputThatCannotBeOpenedFailsWithNothingWritten) {
    ScratchDir dir;
    std::string input = dir.Write("board.ndd", kBoard);
    dir.Write("blocker", "a file where a folder should be\n");
    std::string output = dir.File("blocker/out.qfx");
    StartBatchRun();
    EXPECT_EQ(Translate(input, output), 0);
    EXPECT_EQ(Reports(), "Cannot open file : " + output + "\n");
    EXPECT_FALSE(base::PathExists(output));
    EXPECT_FALSE(base::PathExists(output + ".log"));
    EXPECT_EQ(ReadFile(dir.File("blocker")), "a file where a folder should be\n");
}

TEST(ModelReport, LogThatCannotBeWrittenIsReportedAndTheRunGoesOn) {
    ScratchDir dir;
    std::string input = dir.Write("board.ndd", kBoard);
    std::string output = dir.File("out.qfx");
    ASSERT_EQ(::mkdir((output + ".log").c_str(), 0755), 0);
    StartBatchRun();
    EXPECT_EQ(Translate(input, output), 1);
    EXPECT_EQ(Reports(), "Cannot open log file : " + output + ".log\n");
    EXPECT_TRUE(base::IsFolder(output + ".log"));
    std::string text = ReadFile(output);
    ASSERT_GE(text.size(), 5u);
    EXPECT_EQ(text.substr(text.size() - 5), ".End\n");
}

TEST(ModelReport, BatchRunReportsAnUnwritableLogInErrorLog) {
    ScratchDir dir;
    dir.Write("board.ndd", kBoard);
    ASSERT_EQ(::mkdir(dir.File("out.qfx.log").c_str(), 0755), 0);
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "board.ndd", "out.qfx"}, &err), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")),
              "Cannot open log file : " + dir.File("out.qfx") + ".log\n");
    EXPECT_TRUE(base::PathExists(dir.File("out.qfx")));
}

TEST(ModelReport, BatchRunIntoAFileInsteadOfAFolderReportsTheOutput) {
    ScratchDir dir;
    dir.Write("board.ndd", kBoard);
    dir.Write("blocker", "x");
    std::string err;
    RunProgram(dir.Path(), {"-NoUI", dir.File("board.ndd"), dir.File("blocker/out.qfx")}, &err);
    EXPECT_NE(err.find("Cannot open file : " + dir.File("blocker/out.qfx") + "\n"),
              std::string::npos)
        << err;
    EXPECT_FALSE(base::PathExists(dir.File("blocker/out.qfx")));
}

// Runs the program on the log of a finished translation and expects the same output and,
// but for the date, the same log.
void ExpectLogRerunGivesTheSameFiles(const ScratchDir& dir, const std::string& output) {
    std::string firstQfx = ReadFile(output);
    std::vector<std::string> firstLog = LogWithoutDate(output + ".log");
    dir.Write("saved.log", ReadFile(output + ".log"));
    ResetGlobals();
    std::string err;
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", dir.File("saved.log")}, &err), 0) << err;
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
    EXPECT_EQ(ReadFile(output), firstQfx);
    EXPECT_EQ(LogWithoutDate(output + ".log"), firstLog);
}

TEST(ModelReport, LoadedLogReproducesTheTranslationByteForByte) {
    ScratchDir dir;
    std::string input = dir.Write("board.ndd", kBoard);
    std::string output = dir.File("first.qfx");

    StartBatchRun();
    TranslationOptions& o = g_options;
    o.g_strNameAffix = "AB";
    o.g_bExcludeVoidEnclosingVia = 1;
    o.g_dbViaVoidArea = 3.0;
    o.g_dbVoidAreaLimit = 0.5;
    o.g_dbTraceUnionLength = 0.25;
    o.g_dbMaxArcLength = 0.1;
    o.g_strTraceGapPercent = "20";
    o.g_strValueFieldName = "VAL";
    o.g_nIncludeNoNetEtches = 1;
    o.g_bSpatialLimit = 1;
    o.g_dbSpatialMinX = -1.0;
    o.g_dbSpatialMinY = -2.0;
    o.g_dbSpatialMaxX = 100.0;
    o.g_dbSpatialMaxY = 200.0;
    o.g_nSelectedNetCount = 2;
    o.g_pSelectedNets = {2, 0};  // GND, CLK
    ASSERT_EQ(Translate(input, output), 1);
    ExpectLogRerunGivesTheSameFiles(dir, output);
    // The settings did reach the log of both runs.
    std::string log = ReadFile(output + ".log");
    // Net colours follow the net table: CLK 0 red, DATA 1 green, GND 2 blue.
    EXPECT_NE(log.find("\tGND\tblue\n\tCLK\tred\n"), std::string::npos) << log;
    EXPECT_NE(log.find("\tName affix : AB\n"), std::string::npos);
    EXPECT_NE(log.find("\tExclude void shapes enclosing vias with area less than 3.000000 mm x "
                       "mm\n"),
              std::string::npos);
}

TEST(ModelReport, ExampleBoardRerunFromItsLogIsIdentical) {
    ScratchDir dir;
    std::string input =
        dir.Write("board.ndd", ReadFile(std::string(NDD2QFX_SOURCE_DIR) + "/examples/board.ndd"));
    std::string output = dir.File("board.qfx");
    StartBatchRun();
    g_options.g_strNameAffix = "EX";
    g_options.g_strTraceGapPercent = "20";
    g_options.g_dbMaxArcLength = 0.05;
    g_options.g_dbTraceUnionLength = 0.01;
    g_options.g_nIncludeNoNetEtches = 1;
    ASSERT_EQ(Translate(input, output), 1);
    ASSERT_NE(ReadFile(output).find("Signal$EX"), std::string::npos);
    ExpectLogRerunGivesTheSameFiles(dir, output);
}

TEST(ModelReport, LogOnTheCommandLineRestoresPathsAndSettings) {
    ScratchDir dir;
    dir.Write("board.ndd", kBoard);
    dir.Write("prev.log",
              "Ndd2Qfx Version 1.0.0.1\n"
              "From file : board.ndd\n"
              "To file : result.qfx\n"
              "\nNets Translated : \n\tDATA\tred\n"
              "\nSettings :\n\tName affix : Z9\n\tUnion traces shorter than 0.500000 mm\n");
    std::string err;
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "prev.log"}, &err), 0) << err;
    std::string log = ReadFile(dir.File("result.qfx.log"));
    EXPECT_NE(log.find("From file : " + dir.File("board.ndd") +
                       "\nTo file : " + dir.File("result.qfx") + "\n"),
              std::string::npos)
        << log;
    // The log chose DATA; its colour follows the net table (CLK 0, DATA 1: green).
    EXPECT_NE(log.find("\nNets Translated : \n\tDATA\tgreen\n\nSettings :\n"), std::string::npos);
    EXPECT_NE(log.find("\tUnion traces shorter than 0.500000 mm\n"), std::string::npos);
    EXPECT_NE(log.find("\tName affix : Z9\n"), std::string::npos);
    EXPECT_TRUE(base::PathExists(dir.File("result.qfx")));
}

TEST(ModelReport, BatchRunWithAFileThatIsNoLogTranslatesNothing) {
    ScratchDir dir;
    dir.Write("notes.log", "shopping list\n");
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "notes.log"}, &err), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "The file :\n" + dir.File("notes.log") +
                                                   "\nis not Ndd2Qfx translation log file\n"
                                                   "Please specify a NDD file\n");
}

TEST(ModelReport, LogBeforeTheFileNamesKeepsThoseNames) {
    ScratchDir dir;
    dir.Write("board.ndd", kBoard);
    dir.Write("prev.log", "Ndd2Qfx Version 1.0.0.1\n\nSettings :\n\tName affix : Q\n");
    std::string err;
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "prev.log", "board.ndd", "named.qfx"}, &err), 0)
        << err;
    std::string log = ReadFile(dir.File("named.qfx.log"));
    EXPECT_NE(log.find("\tName affix : Q\n"), std::string::npos) << log;
    EXPECT_NE(log.find("\tAll nets are selected\n\tCLK\tred\n\tDATA\tgreen\n"), std::string::npos);
}

}  // namespace
