// A batch translation of a small board with components: the reading passes, the model step,
// the pin binding and the two component sections, as the driver runs them.
#include <gtest/gtest.h>

#include "TestSupport.h"

using testing_support::ReadFile;
using testing_support::RunProgram;
using testing_support::ScratchDir;

namespace {

const char kBoard[] =
    "%length mm;\n"
    "%signal \"TOP\" \"1\" \"x\" 0.035 \"CU\";\n"
    "%dielectric \"D1\" \"x\" \"FR4\" 0.2;\n"
    "%signal \"BOTTOM\" \"2\" \"x\" 0.035 \"CU\";\n"
    "%board_outline\n"
    "%packagedef \"CHIP\"\n"
    "%pinloc\n"
    " \"1\" \"SMD\" -1 0 0;\n"
    " \"2\" \"SMD\" 1 0 0;\n"
    "\n"
    "%partinst \"R1\" \"CHIP\" 10 10 0 %topplace ;\n"
    "%prop \"ICX_VALUE\" \"RES 10K\"\n"
    "%partinst \"U7\" \"CHIP\" 20 10 0 %topplace ;\n"
    "%gate \"R1\"\n"
    "%prop \"ICX_REF_DES\" \"R1\"\n"
    "%prop \"ICX_PART_NUMBER\" \"RES\"\n"
    "%port \"1\" \"N1\";\n"
    "%prop \"ICX_PIN_NUMBER\" \"1\"\n"
    "%port \"2\" \"N2\";\n"
    "%prop \"ICX_PIN_NUMBER\" \"2\"\n"
    "%gate \"U7\"\n"
    "%prop \"ICX_REF_DES\" \"U7\"\n"
    "%prop \"ICX_PART_NUMBER\" \"BUF\"\n"
    "%port \"1\" \"N2\";\n"
    "%prop \"ICX_PIN_NUMBER\" \"1\"\n"
    "%port \"2\" \"N3\";\n"
    "%prop \"ICX_PIN_NUMBER\" \"2\"\n"
    "%trace \"TOP\" 0.1 5 10 9 10 \"N1\";\n"
    "%trace \"TOP\" 0.1 11 10 19 10 \"N2\";\n";

TEST(ComponentPipeline, BatchRunWritesBlocksAndLinkagesOfTheBoard) {
    ScratchDir dir;
    dir.Write("board.ndd", kBoard);
    ASSERT_EQ(RunProgram(dir.Path(), {"-NoUI", "board.ndd"}), 0);
    std::string qfx = ReadFile(dir.File("board.qfx"));
    size_t circuit = qfx.find(".EndPackage\n* Circuit description block\n");
    ASSERT_NE(circuit, std::string::npos) << qfx;
    EXPECT_NE(qfx.find(".PartialCkt  RES_10K ExtNode = 1 2\nR 1 2 10K\n.EndPartialCkt\n"),
              std::string::npos)
        << qfx;
    EXPECT_NE(qfx.find(".PartialCkt  BUF_CHIP ExtNode = 1 2\n.EndPartialCkt\n"), std::string::npos)
        << qfx;
    const char kTail[] =
        "\n* Linkage description line\n"
        ".Connect R1 RES_10K\n"
        "1 $Package.Node1!!1::N1\n"
        "2 $Package.Node2!!2::N2\n"
        ".EndC\n"
        "\n"
        ".End\n";
    size_t linkage = qfx.find(kTail);
    ASSERT_NE(linkage, std::string::npos) << qfx;
    EXPECT_EQ(linkage + sizeof kTail - 1, qfx.size());
    EXPECT_GT(linkage, circuit);
    EXPECT_EQ(qfx.find(".Connect U7"), std::string::npos);
    std::string log = ReadFile(dir.File("board.qfx.log"));
    EXPECT_NE(log.find("\n\nComponent Linkage Info :\n\n"
                       "1] Component : U7 is Not Linked\n"
                       "\nTotal No Of Components Not Linked = 1\n"),
              std::string::npos)
        << log;
}

}  // namespace
