#include "ndd/HkpReader.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

namespace {

using testing_support::ScratchDir;

constexpr int32_t kGnd = 0;
constexpr int32_t kVcc = 1;

class HkpReaderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeLayerStack(
            {{"layer_1", kLayerSignal}, {"D1", kLayerDielectric}, {"layer_2", kLayerPlane}});
        fixtures::MakeNets({"GND", "VCC"});
    }

    void Read(const std::string& text) {
        g_options.g_strHkpFile = dir_.Write("layout.hkp", text);
        ParseHkpFile();
    }

    ScratchDir dir_;
};

const std::string kRectArea = testing_support::DataFile("ndd/HkpReader/rect_area.hkp");

// Areas of layout.hkp as read: the file's text and the shapes it gives (see ShapesAsText).
// Nets GND 0, VCC 1; layer_1 is layer 0, layer_2 layer 2; every area is undiscardable copper.
TEST_F(HkpReaderTest, AreasGiveTheseShapes) {
    const struct {
        const char* what;
        std::string text, shapes;
    } rows[] = {
        {"a rectangle; LYR_1 names layer_1", std::string(".UNITS MM\n.NET \"GND\"\n") + kRectArea,
         "L0 N0 P+ 1,2 3,2 3,4 1,4 1,2\n"},
        // Thousandths of an inch; nanometres keep their odd factor; an unknown word keeps it.
        {"units",
         std::string(".UNITS TH\n.NET GND\n") + kRectArea + ".UNITS nm\n" + kRectArea +
             ".UNITS furlong\n" + kRectArea,
         "L0 N0 P+ 0.0254,0.0508 0.0762,0.0508 0.0762,0.1016 0.0254,0.1016 0.0254,0.0508\n"
         "L0 N0 P+ 1e-09,2e-09 3e-09,2e-09 3e-09,4e-09 1e-09,4e-09 1e-09,2e-09\n"
         "L0 N0 P+ 1e-09,2e-09 3e-09,2e-09 3e-09,4e-09 1e-09,4e-09 1e-09,2e-09\n"},
        {"a polyline runs over its lines up to the next record, with no closing point; the end "
         "of the file adds the last",
         ".NET VCC\n ..CONDUCTIVE_AREA\n  ...ROUTE_LYR \"LYR_2\"\n"
         "  ...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n   ....POLYLINE_SHAPE\n"
         "    .....XY (0, 0)\n     (4, 0)\n\n     (4, 4)\n  ...ROUTE_LYR LYR_1\n"
         "  ...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n   ....POLYLINE_SHAPE\n"
         "    .....XY (7, 7)\n     (8, 7)\n",
         "L2 N1 P+ 0,0 4,0 4,4\nL0 N1 P+ 7,7 8,7\n"},
        {"a net with no name gives no areas",
         std::string(".NET \n") + kRectArea + ".NET \"\"\n" + kRectArea, ""},
        {"an unknown route layer gives layer -1",
         ".NET GND\n..CONDUCTIVE_AREA\n...ROUTE_LYR LYR_9\n...CONDUCTIVE_AREA_OPTIONS "
         "CONDUCTIVE_SHAPE\n....RECT_SHAPE\n.....XY (1, 2) (3, 4)\n",
         "L-1 N0 P+ 1,2 3,2 3,4 1,4 1,2\n"},
        {"a first or second level record ends the area; the layer carries over",
         ".NET GND\n..CONDUCTIVE_AREA\n...ROUTE_LYR LYR_1\n..OTHER\n"
         "...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n....RECT_SHAPE\n.....XY (1, 2) (3, 4)\n"
         "..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n....RECT_SHAPE\n"
         ".....XY (5, 6) (7, 8)\n",
         "L0 N0 P+ 5,6 7,6 7,8 5,8 5,6\n"},
    };
    for (const auto& row : rows) {
        SetUp();
        Read(row.text);
        EXPECT_EQ(fixtures::ShapesAsText(), row.shapes) << row.what;
        for (const ShapeRec& shape : g_model.g_aShapes) EXPECT_EQ(shape.undiscardable, 1);
    }
}

TEST_F(HkpReaderTest, NetOutsideTheSelectionIsSkippedUpToTheNextNet) {
    g_options.g_bSelectedOnly = 1;
    g_options.g_bAllNets = 0;
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {kVcc};
    g_options.g_aSortedSelectedNets = {kVcc};
    Read(std::string(".NET GND\n") + kRectArea + ".NET VCC\n" + kRectArea + ".NET GND\n" +
         kRectArea);
    EXPECT_EQ(fixtures::ShapesAsText(), "L0 N1 P+ 1,2 3,2 3,4 1,4 1,2\n");
}

TEST_F(HkpReaderTest, NetWithNoNameGivesNoNetAreasWithNoNetElements) {
    g_options.g_nIncludeNoNetEtches = 1;
    Read(std::string(".NET \n") + kRectArea + ".NET \"\"\n" + kRectArea);
    const std::string area = "L0 N" + std::to_string(kNoNet) + " P+ 1,2 3,2 3,4 1,4 1,2\n";
    EXPECT_EQ(fixtures::ShapesAsText(), area + area);
}

TEST_F(HkpReaderTest, FileThatCannotBeOpenedIsReportedWithTwoBlanks) {
    g_options.g_nBatchMode = 1;
    g_options.g_pErrorLog = std::tmpfile();
    g_options.g_strHkpFile = dir_.File("missing.hkp");
    ParseHkpFile();
    g_options.g_strHkpFile.clear();
    ParseHkpFile();  // an empty path does nothing
    EXPECT_EQ(testing_support::ReadStream(g_options.g_pErrorLog),
              "The Input  file could not be opened\n");
}

TEST_F(HkpReaderTest, MalformedFilesNeverCrashOrHang) {
    Read(".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n");
    Read(
        ".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n");
    Read(
        ".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....POLYLINE_SHAPE\n");
    EXPECT_TRUE(g_model.g_aShapes.empty());
    Read(
        ".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n.....XY\n...ROUTE_LYR\n.UNITS\n.NET\n");
    EXPECT_EQ(fixtures::ShapesAsText(), "L-1 N0 P+ 0,0 0,0 0,0 0,0 0,0\n");
    std::string noise(".NET GND\n..CONDUCTIVE_AREA\n");
    for (int i = 0; i < 70000; ++i) noise += static_cast<char>((i * 7919 + i / 13) % 256);
    Read(noise);
    Read(std::string(".NET GND\n..CONDUCTIVE_AREA\n") + std::string(50000, '.') + "\n" +
         std::string("\0\0..CONDUCTIVE_AREA\n", 20));
}

}  // namespace
