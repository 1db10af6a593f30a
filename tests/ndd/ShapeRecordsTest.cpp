#include <gtest/gtest.h>

#include <cmath>

#include "TestSupport.h"
#include "model/TranslationOptions.h"
#include "geometry/GapStrokes.h"
#include "geometry/ShapeFixtures.h"
#include "ndd/BoardOutline.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/ParseElement.h"

using namespace shape_fixtures;

namespace {

const char kHead[] =
    "%board_outline\n"
    "%rectangle 0 0 100 50;\n"
    "%port \"U1-1\" \"GND\";\n"
    "%port \"U1-2\" \"VCC\";\n";

class ShapeRecords : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        SetUpLayers({"TOP", "GND"});
        g_model.g_dbLengthScale = 1.0;
    }
    // Reads text (after the common head) with the net table and the shape pass.
    void Read(const std::string& body) {
        path_ = dir_.Write("b.ndd", kHead + body);
        ParseNet(*OpenNdd(path_));
        ASSERT_EQ(1, ParseElement(path_));
    }
    testing_support::ScratchDir dir_;
    std::string path_;
};

TEST_F(ShapeRecords, CircleSizeLosesTheLastThreeCharacters) {
    Read(
        "%fill_area \"TOP\" \"GND\";\n%begin_boundary\n%outline\n%circle 0 0 100 ;\n"
        "%cutout\n%circle 1 2 100;\n%end_boundary\n");
    ASSERT_EQ(2, g_model.ShapeCount());
    EXPECT_EQ(kGeometryCircle, g_model.g_aShapes[0].geometry);
    EXPECT_EQ(kPolarityCopper, g_model.g_aShapes[0].polarity);
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {100, 100}}), PointsOf(0));
    EXPECT_EQ(kPolarityVoid, g_model.g_aShapes[1].polarity);
    EXPECT_EQ((std::vector<ShapePoint>{{1, 2}, {10, 10}}), PointsOf(1));
    EXPECT_EQ(0, g_model.g_aShapes[1].layer);
    EXPECT_EQ(0, g_model.g_aShapes[1].net);  // GND sorts first
}

TEST_F(ShapeRecords, FillWithoutBoundaryCoversTheBoardOutline) {
    Read(
        "%fill_area \"GND\" \"GND\";\n\n%fill_area \"TOP\" \"VCC\";\n%fill_area \"GND\" "
        "\"VCC\";\n");
    const std::vector<ShapePoint> board{{0, 0}, {0, 50}, {100, 50}, {100, 0}, {0, 0}};
    EXPECT_EQ(board, g_model.g_lstBoardOutline);
    ASSERT_EQ(3, g_model.ShapeCount());
    EXPECT_EQ(1, g_model.g_aShapes[0].layer);
    EXPECT_EQ(0, g_model.g_aShapes[1].layer);
    EXPECT_EQ(1, g_model.g_aShapes[1].net);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(board, PointsOf(i)) << i;
}

TEST_F(ShapeRecords, PolygonRunsOverLinesAndEndsAtALoneSemicolonLine) {
    Read(
        "%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%outline\n%polygon 0 0 10 0\n10 10 0\n"
        "10 ;\n%cutout\n%rectangle 2 3 4 5;\n%end_boundary\n");
    ASSERT_EQ(2, g_model.ShapeCount());
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}), PointsOf(0));
    EXPECT_EQ(kPolarityVoid, g_model.g_aShapes[1].polarity);
    EXPECT_EQ((std::vector<ShapePoint>{{2, 3}, {2, 5}, {4, 5}, {4, 3}, {2, 3}}), PointsOf(1));
}

TEST_F(ShapeRecords, PolygonCutOffByTheEndOfTheFileKeepsWhatItRead) {
    Read("%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%outline\n%polygon 0 0 10 0\n10 10 7");
    ASSERT_EQ(1, g_model.ShapeCount());
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {10, 0}, {10, 10}, {0, 0}}), PointsOf(0));
}

TEST_F(ShapeRecords, LinePathLooksAheadAndLeavesTheCutoutToBeRead) {
    Read(
        "%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%outline\n%line 0 0 10 0;\n"
        "%arc 10 0 12 5 10 10;\n%line 10 10 0 0;\n%cutout\n%circle 5 5 2 ;\n%end_boundary\n");
    ASSERT_EQ(2, g_model.ShapeCount());
    EXPECT_EQ((std::vector<ShapePoint>{
                  {0, 0}, {10, 0}, {10, 0}, {12, 5}, {10, 10}, {10, 10}, {0, 0}, {0, 0}}),
              PointsOf(0));
    EXPECT_EQ(kGeometryCircle, g_model.g_aShapes[1].geometry);
    EXPECT_EQ(kPolarityVoid, g_model.g_aShapes[1].polarity);
}

TEST_F(ShapeRecords, RoundLineGoesRoundBothEnds) {
    g_options.g_dbMaxArcLength = 0.7;  // radius 1: a step of 0.7
    Read(
        "%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%outline\n"
        "%round_endpoint_line 0 0 10 0 2;\n%end_boundary\n");
    ASSERT_EQ(1, g_model.ShapeCount());
    std::vector<ShapePoint> p = PointsOf(0);
    const double h = 3.141592653589793 / 2;
    std::vector<double> first{h + 0.7, h + 1.4, h + 2.1, h + 2.8, 3 * h};
    std::vector<double> second{-h, -h + 0.7, -h + 1.4, -h + 2.1, -h + 2.8};
    ASSERT_EQ(12u, p.size());
    for (size_t k = 0; k < 5; ++k) {
        EXPECT_NEAR(std::cos(first[k]), p[k].x, 1e-12) << k;
        EXPECT_NEAR(std::sin(first[k]), p[k].y, 1e-12) << k;
        EXPECT_NEAR(10 + std::cos(second[k]), p[5 + k].x, 1e-12) << k;
        EXPECT_NEAR(std::sin(second[k]), p[5 + k].y, 1e-12) << k;
    }
    EXPECT_NEAR(10, p[10].x, 1e-12);
    EXPECT_EQ(1.0, p[10].y);
    EXPECT_NEAR(0, p[11].x, 1e-12);
    EXPECT_EQ(1.0, p[11].y);
}

TEST_F(ShapeRecords, KeyholePolygonSplitsOnItsRepeatedPoints) {
    Read(
        "%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%outline\n"
        "%polygon 0 0 10 0 10 10 0 10 0 5 3 5 3 7 7 7 7 3 3 3 3 5 0 5;\n%end_boundary\n");
    ASSERT_EQ(2, g_model.ShapeCount());
    EXPECT_EQ(kPolaritySplit, g_model.g_aShapes[0].polarity);
    EXPECT_EQ((std::vector<ShapePoint>{{3, 5}, {3, 7}, {7, 7}, {7, 3}, {3, 3}, {3, 5}}),
              PointsOf(0));
    EXPECT_EQ(kPolarityCopper, g_model.g_aShapes[1].polarity);
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 5}, {0, 0}}),
              PointsOf(1));
}

TEST_F(ShapeRecords, RepeatedNeighbourPointsMergeWithoutCase) {
    Read(
        "%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%outline\n"
        "%polygon 0 0 1e1 0 1E1 0 10 10;\n%end_boundary\n");
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {10, 0}, {10, 10}, {0, 0}}), PointsOf(0));
}

TEST_F(ShapeRecords, FillsWithoutANetNeedTheNoNetOption) {
    const std::string body =
        "%fill_area \"TOP\" \"\";\n%begin_boundary\n%outline\n%rectangle 0 0 1 1;\n"
        "%end_boundary\n";
    Read(body);
    EXPECT_EQ(0, g_model.ShapeCount());
    g_options.g_nIncludeNoNetEtches = 1;
    Read(body);
    ASSERT_EQ(1, g_model.ShapeCount());
    EXPECT_EQ(kNoNet, g_model.g_aShapes[0].net);
}

TEST_F(ShapeRecords, FillOfAnUnselectedNetIsPassedOverWithItsVoids) {
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {1};  // VCC
    SetNetSelectionMode();
    Read(
        "# Board Geometry section.\n"
        "%fill_area \"TOP\" \"GND\";\n%begin_boundary\n%outline\n%rectangle 0 0 1 1;\n"
        "%cutout\n%circle 0 0 1 ;\n%end_boundary\n"
        "%fill_area \"TOP\" \"VCC\";\n%begin_boundary\n%cutout\n%circle 5 5 2 ;\n"
        "%end_boundary\n");
    ASSERT_EQ(1, g_model.ShapeCount());
    EXPECT_EQ(1, g_model.g_aShapes[0].net);
    EXPECT_EQ((std::vector<ShapePoint>{{5, 5}, {2, 2}}), PointsOf(0));
}

TEST_F(ShapeRecords, UnknownLayerGivesLayerMinusOne) {
    Read(
        "%fill_area \"NOPE\" \"VCC\";\n%begin_boundary\n%outline\n%rectangle 0 0 1 1;\n"
        "%end_boundary\n");
    ASSERT_EQ(1, g_model.ShapeCount());
    EXPECT_EQ(-1, g_model.g_aShapes[0].layer);
}

TEST_F(ShapeRecords, BoardOutlineFromALinePathOrAPolygon) {
    std::string path = dir_.Write(
        "l.ndd", "%board_outline\n# c\n%line 0 0 5 0;\n%line 5 0 5 5;\nx\n%end_boundary\n");
    ParseBoardOutline(path);
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {5, 0}, {5, 0}, {5, 5}, {0, 0}}),
              g_model.g_lstBoardOutline);
    ForgetNddInput();
    path = dir_.Write("p.ndd", "%board_outline\n\n%polygon 0 0 4 0\n# c\n4 4;\n");
    ParseBoardOutline(path);
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {4, 0}, {4, 4}, {0, 0}}), g_model.g_lstBoardOutline);
}

TEST_F(ShapeRecords, GapStrokesFollowPolygonsOnPlaneLayersOnly) {
    g_model.g_mapLayerKind.Set("TOP", "S");
    g_model.g_mapLayerKind.Set("GND", "P");
    AddPolygon(1, 0, kPolarityCopper, {{0, 0}, {4, 0}, {4, 4}, {0, 0}});
    AddPolygon(0, 0, kPolarityCopper, {{0, 0}, {4, 0}, {4, 4}, {0, 0}});
    AddCircle(1, 0, 1, 1, 1);
    AddGapStrokesOnPlaneLayers(0.2);
    // Three edges on GND, each a circle and a rectangle.
    ASSERT_EQ(3 + 6, g_model.ShapeCount());
    EXPECT_EQ(kGeometryCircle, g_model.g_aShapes[3].geometry);
    EXPECT_EQ((std::vector<ShapePoint>{{4, 0}, {0.1, 0.1}}), PointsOf(3));
    EXPECT_EQ((std::vector<ShapePoint>{{0, -0.1}, {0, 0.1}, {4, 0.1}, {4, -0.1}, {0, -0.1}}),
              PointsOf(4));
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {0.1, 0.1}}), PointsOf(7));
    for (int i = 3; i < 9; ++i) EXPECT_EQ(1, g_model.g_aShapes[i].layer);
}

}  // namespace
