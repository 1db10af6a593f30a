#include "ndd/HkpReader.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "TraceTestSupport.h"
#include "model/TranslationOptions.h"
#include "model/LayoutModel.h"

namespace {

using testing_support::ScratchDir;

constexpr int32_t kGnd = 0;
constexpr int32_t kVcc = 1;

class HkpReaderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        testing_support::MakeLayerStack(
            {{"layer_1", kLayerSignal}, {"D1", kLayerDielectric}, {"layer_2", kLayerPlane}});
        testing_support::MakeNets({"GND", "VCC"});
    }

    void Read(const std::string& text) {
        g_options.g_strHkpFile = dir_.Write("layout.hkp", text);
        ParseHkpFile();
    }

    static std::vector<ShapePoint> Points(size_t i) {
        const ShapeRec& s = g_model.g_aShapes[i];
        auto first = g_model.g_aShapePoints.begin() + s.firstPoint;
        return std::vector<ShapePoint>(first, first + s.pointCount);
    }

    static void ExpectPoints(size_t i, const std::vector<ShapePoint>& expected) {
        std::vector<ShapePoint> p = Points(i);
        ASSERT_EQ(p.size(), expected.size());
        for (size_t k = 0; k < p.size(); ++k) {
            EXPECT_EQ(p[k].x, expected[k].x) << "point " << k;
            EXPECT_EQ(p[k].y, expected[k].y) << "point " << k;
        }
    }

    ScratchDir dir_;
};

const char kRectArea[] =
    " ..CONDUCTIVE_AREA\n"
    "  ...ROUTE_LYR LYR_1\n"
    "  ...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
    "   ....RECT_SHAPE\n"
    "    .....XY (1, 2) (3, 4)\n";

TEST_F(HkpReaderTest, RectangleAreaBecomesAnUndiscardableCopperShape) {
    Read(std::string(".UNITS MM\n.NET \"GND\"\n") + kRectArea);
    ASSERT_EQ(g_model.g_aShapes.size(), 1u);
    const ShapeRec& s = g_model.g_aShapes[0];
    EXPECT_EQ(s.net, kGnd);
    EXPECT_EQ(s.layer, 0);  // "LYR_1" names layer_1
    EXPECT_EQ(s.geometry, kGeometryPolygon);
    EXPECT_EQ(s.polarity, kPolarityCopper);
    EXPECT_EQ(s.undiscardable, 1);
    EXPECT_EQ(s.discarded, 0);
    ExpectPoints(0, {{1, 2}, {3, 2}, {3, 4}, {1, 4}, {1, 2}});
}

TEST_F(HkpReaderTest, UnitsScaleTheCoordinatesAndNanometresKeepTheirOddFactor) {
    Read(std::string(".UNITS TH\n.NET GND\n") + kRectArea + ".UNITS nm\n" + kRectArea +
         ".UNITS furlong\n" + kRectArea);
    ASSERT_EQ(g_model.g_aShapes.size(), 3u);
    EXPECT_EQ(Points(0)[2].x, 3 * 0.0254);
    EXPECT_EQ(Points(1)[2].x, 3 * 1e-9);
    EXPECT_EQ(Points(2)[2].x, 3 * 1e-9);  // an unknown word leaves the scale
}

TEST_F(HkpReaderTest, PolylineRunsOverItsLinesUpToTheNextRecordWithNoClosingPoint) {
    Read(
        ".NET VCC\n"
        " ..CONDUCTIVE_AREA\n"
        "  ...ROUTE_LYR \"LYR_2\"\n"
        "  ...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "   ....POLYLINE_SHAPE\n"
        "    .....XY (0, 0)\n"
        "     (4, 0)\n"
        "\n"
        "     (4, 4)\n"
        "  ...ROUTE_LYR LYR_1\n"
        "  ...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "   ....POLYLINE_SHAPE\n"
        "    .....XY (7, 7)\n"
        "     (8, 7)\n");
    ASSERT_EQ(g_model.g_aShapes.size(), 2u);
    EXPECT_EQ(g_model.g_aShapes[0].net, kVcc);
    EXPECT_EQ(g_model.g_aShapes[0].layer, 2);
    ExpectPoints(0, {{0, 0}, {4, 0}, {4, 4}});
    EXPECT_EQ(g_model.g_aShapes[1].layer, 0);
    ExpectPoints(1, {{7, 7}, {8, 7}});  // the end of the file adds the list
}

TEST_F(HkpReaderTest, NetOutsideTheSelectionIsSkippedUpToTheNextNet) {
    g_options.g_bSelectedOnly = 1;
    g_options.g_bAllNets = 0;
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {kVcc};
    g_options.g_aSortedSelectedNets = {kVcc};
    Read(std::string(".NET GND\n") + kRectArea + ".NET VCC\n" + kRectArea + ".NET GND\n" +
         kRectArea);
    ASSERT_EQ(g_model.g_aShapes.size(), 1u);
    EXPECT_EQ(g_model.g_aShapes[0].net, kVcc);
}

TEST_F(HkpReaderTest, NetWithNoNameGivesNoNetAreasOnlyWithNoNetElements) {
    Read(std::string(".NET \n") + kRectArea + ".NET \"\"\n" + kRectArea);
    EXPECT_TRUE(g_model.g_aShapes.empty());
    g_options.g_nIncludeNoNetEtches = 1;
    Read(std::string(".NET \n") + kRectArea + ".NET \"\"\n" + kRectArea);
    ASSERT_EQ(g_model.g_aShapes.size(), 2u);
    EXPECT_EQ(g_model.g_aShapes[0].net, kNoNet);
    EXPECT_EQ(g_model.g_aShapes[1].net, kNoNet);
}

TEST_F(HkpReaderTest, UnknownRouteLayerGivesLayerMinusOne) {
    Read(
        ".NET GND\n"
        "..CONDUCTIVE_AREA\n"
        "...ROUTE_LYR LYR_9\n"
        "...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n"
        ".....XY (1, 2) (3, 4)\n");
    ASSERT_EQ(g_model.g_aShapes.size(), 1u);
    EXPECT_EQ(g_model.g_aShapes[0].layer, -1);
}

TEST_F(HkpReaderTest, FirstOrSecondLevelRecordEndsTheArea) {
    Read(
        ".NET GND\n"
        "..CONDUCTIVE_AREA\n"
        "...ROUTE_LYR LYR_1\n"
        "..OTHER\n"  // ends the area: the shape below is not part of one
        "...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n"
        ".....XY (1, 2) (3, 4)\n"
        "..CONDUCTIVE_AREA\n"
        "...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n"
        ".....XY (5, 6) (7, 8)\n");
    ASSERT_EQ(g_model.g_aShapes.size(), 1u);
    EXPECT_EQ(g_model.g_aShapes[0].layer, 0);  // the layer carries over to the next area
    EXPECT_EQ(Points(0)[0].x, 5);
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
    ASSERT_EQ(g_model.g_aShapes.size(), 1u);
    ExpectPoints(0, {{0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}});
    std::string noise(".NET GND\n..CONDUCTIVE_AREA\n");
    for (int i = 0; i < 70000; ++i) noise += static_cast<char>((i * 7919 + i / 13) % 256);
    Read(noise);
    Read(std::string(".NET GND\n..CONDUCTIVE_AREA\n") + std::string(50000, '.') + "\n" +
         std::string("\0\0..CONDUCTIVE_AREA\n", 20));
    SUCCEED();
}

}  // namespace
