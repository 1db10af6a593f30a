// The built program run as a user runs it: names, folders, error.log and exit statuses.
#include <gtest/gtest.h>

#include <fstream>

#include "TestSupport.h"

namespace {

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;
using testing_support::SplitLines;

const char kHead[] =
    "Title - BOLT9000 file for version 2000.02 translated by Ndd2Qfx 1.0.0 from Mentor's NDD "
    "file .\n"
    "\n"
    ".Transient Timesteps = 100 Viewstep = 10 DC = No Window = Yes\n"
    "\n"
    ".Mesh Pkg = $Package Mesh_X = 30 Mesh_Y = 30\n"
    "\n"
    ".Package $Package Trace_Color = blue Via_Color = red Hole_Color = yellow\n"
    "\n";

TEST(BatchRun, VersionAnywhereOnTheLine) {
    ScratchDir dir;
    std::string cmd = "cd '" + dir.Path() + "' && '" NDD2QFX_BINARY "' a.ndd -V > out.txt";
    ASSERT_EQ(std::system(cmd.c_str()), 0);
    EXPECT_EQ(ReadFile(dir.File("out.txt")), "Ndd2Qfx 1, 0, 0\n");
    EXPECT_FALSE(std::ifstream(dir.File("error.log")).good());
}

TEST(BatchRun, TranslatesIntoTheInputFolderAndLeavesErrorLog) {
    ScratchDir dir;
    dir.Write("A.NDD", "%length mm;\n");
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "A.NDD"}), 0);
    std::string qfx = ReadFile(dir.File("A.qfx"));
    ASSERT_GE(qfx.size(), sizeof kHead - 1);
    EXPECT_EQ(qfx.substr(0, sizeof kHead - 1), kHead);
    EXPECT_EQ(SplitLines(qfx).back(), ".End");
    EXPECT_EQ(ReadFile(dir.File("error.log")), "");
}

TEST(BatchRun, OutputFolderBecomesTheWorkingFolder) {
    ScratchDir in, out;
    in.Write("a.ndd", "%length mm;\n");
    EXPECT_EQ(RunProgram(in.Path(), {"-b", in.File("a.ndd"), out.File("b.qfx")}), 0);
    EXPECT_TRUE(std::ifstream(out.File("b.qfx")).good());
    EXPECT_TRUE(std::ifstream(out.File("error.log")).good());
    EXPECT_FALSE(std::ifstream(in.File("error.log")).good());
}

TEST(BatchRun, NoFileNamedLeavesOneLineInErrorLog) {
    ScratchDir dir;
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI"}, &err), 0);
    EXPECT_EQ(ReadFile(dir.File("error.log")), "Please specify a NDD file\n");
    EXPECT_EQ(err, "Invalid arguments: file name missing.\nPlease specify a NDD file\n");
}

TEST(BatchRun, UnknownExtensionStopsBeforeAnything) {
    ScratchDir dir;
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "a.qfx"}, &err), 254);  // start routine gave 0
    EXPECT_EQ(err, "Unknown file extension name.\n");
    EXPECT_FALSE(std::ifstream(dir.File("error.log")).good());
    EXPECT_EQ(RunProgram(dir.Path(), {"-b", "a.qfx"}, &err), 255);
}

TEST(BatchRun, GapOptionIsReportedOnStandardErrorInABatchRun) {
    ScratchDir dir;
    dir.Write("a.ndd", "");
    std::string err;
    RunProgram(dir.Path(), {"-NoUI", "-EXP", "3", "a.ndd"}, &err);
    EXPECT_EQ(SplitLines(err).at(0), "g_dbGapAroundAreaFillOnPlaneLayers = 0.076200");
}

TEST(BatchRun, DialogRunIsRefusedClearly) {
    ScratchDir dir;
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"a.ndd"}, &err), 2);
    EXPECT_NE(err.find("only batch runs (-NoUI, -b)"), std::string::npos);
}

TEST(BatchRun, UnreadableInputsGiveTheInputMessage) {
    ScratchDir dir;
    ASSERT_EQ(std::system(("mkdir '" + dir.File("folder.ndd") + "'").c_str()), 0);
    for (const char* name : {"missing.ndd", "folder.ndd"}) {
        EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", name}), 0) << name;
        EXPECT_EQ(ReadFile(dir.File("error.log")),
                  "Unable To open The Input NDD File\nPlease Check the Permissions\n")
            << name;
    }
}

TEST(BatchRun, OutputThatCannotBeOpenedIsReported) {
    ScratchDir dir;
    dir.Write("a.ndd", "");
    dir.Write("file", "");
    // The output's folder is a file: error.log cannot be made there either, so the report
    // reaches standard error only.
    std::string target = dir.File("file") + "/b.qfx";
    std::string err;
    EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", "a.ndd", target}, &err), 0);
    EXPECT_EQ(err, "Cannot open file : " + target + "\n");
}

TEST(BatchRun, StrangeInputsTranslateWithoutCrashing) {
    ScratchDir dir;
    std::string binary;
    for (int i = 0; i < 4096; ++i) binary += static_cast<char>((i * 7919) & 0xFF);
    dir.Write("empty.ndd", "");
    dir.Write("binary.ndd", binary);
    dir.Write("longline.ndd", "%port a " + std::string(1 << 20, 'q') + "\n%length mm;\n");
    for (const char* name : {"empty.ndd", "binary.ndd", "longline.ndd"}) {
        EXPECT_EQ(RunProgram(dir.Path(), {"-NoUI", name}), 0) << name;
        std::string out = std::string(name).substr(0, std::string(name).size() - 4) + ".qfx";
        EXPECT_EQ(SplitLines(ReadFile(dir.File(out))).back(), ".End") << name;
    }
}

}  // namespace
