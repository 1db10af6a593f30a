#include <gtest/gtest.h>

#include <cmath>

#include "DataCases.h"
#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/GapStrokes.h"
#include "model/TranslationOptions.h"
#include "ndd/BoardOutline.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/ParseElement.h"

using namespace fixtures;

namespace {

const std::string kHead = testing_support::DataFile("ndd/ShapeRecords/head.ndd");

class ShapeRecords : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeSignalLayers({"TOP", "GND"});
        g_model.g_dbLengthScale = 1.0;
    }
    // Reads text (after the common head) with the net table and the shape pass.
    void Read(const std::string& body) {
        ForgetNddInput();
        path_ = dir_.Write("b.ndd", kHead + body);
        ParseNet(*OpenNdd(path_));
        ASSERT_EQ(1, ParseElement(path_));
    }
    testing_support::ScratchDir dir_;
    std::string path_;
};

// Shape records as read, before any clean-up: the text after the common head, and the shapes
// it gives (see ShapesAsText). Arguments: "nonet" for no-net elements, "onlyvcc" for a
// selection of VCC alone.
TEST_F(ShapeRecords, RecordsGiveTheseShapes) {
    for (const testing_support::DataCase& c :
         testing_support::DataCases("ndd/ShapeRecords/Records.txt")) {
        SetUp();
        g_options.g_nIncludeNoNetEtches = c.Has("nonet");
        if (c.Has("onlyvcc")) {
            g_options.g_nSelectedNetCount = 1;
            g_options.g_pSelectedNets = {1};
            SetNetSelectionMode();
        }
        Read(c.input);
        EXPECT_EQ(ShapesAsText(), c.expected) << c.title;
    }
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
    AddPolygon(1, kPolarityCopper, 0, {{0, 0}, {4, 0}, {4, 4}, {0, 0}});
    AddPolygon(0, kPolarityCopper, 0, {{0, 0}, {4, 0}, {4, 4}, {0, 0}});
    AddCircle(1, kPolarityCopper, 0, 1, 1, 1);
    AddGapStrokesOnPlaneLayers(0.2);
    // Three edges on GND, each a circle and a rectangle.
    ASSERT_EQ(3 + 6, g_model.ShapeCount());
    EXPECT_EQ(kGeometryCircle, g_model.g_aShapes[3].geometry);
    EXPECT_EQ(kPolarityVoid, g_model.g_aShapes[3].polarity);  // a gap, at the edge's end
    EXPECT_EQ((std::vector<ShapePoint>{{4, 0}, {0.1, 0.1}}), PointsOf(3));
    EXPECT_EQ((std::vector<ShapePoint>{{0, -0.1}, {0, 0.1}, {4, 0.1}, {4, -0.1}, {0, -0.1}}),
              PointsOf(4));
    EXPECT_EQ((std::vector<ShapePoint>{{0, 0}, {0.1, 0.1}}), PointsOf(7));
    for (int i = 3; i < 9; ++i) EXPECT_EQ(1, g_model.g_aShapes[i].layer);
}

}  // namespace
