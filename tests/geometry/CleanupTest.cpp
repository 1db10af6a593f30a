#include <gtest/gtest.h>

#include <cmath>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/CleanPolygon.h"
#include "geometry/FinishShapes.h"
#include "geometry/SeparateTouchingEdges.h"
#include "geometry/ShapeCleanupRound.h"
#include "geometry/SortShapes.h"

using namespace fixtures;

namespace {

class Cleanup : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeSignalLayers({"TOP", "GND"});
    }
};

void ExpectPoints(const std::vector<ShapePoint>& expected, int32_t shape) {
    std::vector<ShapePoint> got = PointsOf(shape);
    ASSERT_EQ(expected.size(), got.size()) << "shape " << shape;
    for (size_t k = 0; k < got.size(); ++k) {
        EXPECT_NEAR(expected[k].x, got[k].x, 1e-12) << "shape " << shape << " point " << k;
        EXPECT_NEAR(expected[k].y, got[k].y, 1e-12) << "shape " << shape << " point " << k;
    }
}

// Outer square 0..10 joined by a slit along y = 5 to a hole 3..7, closed by its first point.
const std::vector<ShapePoint> kKeyhole{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 5}, {3, 5}, {3, 7},
                                       {7, 7}, {7, 3},  {3, 3},   {3, 5},  {0, 5}, {0, 0}};

// CleanPolygon on one polygon: its points, and the shapes it leaves (see ShapesAsText).
TEST_F(Cleanup, CleanPolygon) {
    const struct {
        const char* what;
        int32_t polarity;
        std::vector<ShapePoint> points;
        const char* shapes;
    } rows[] = {
        {"a keyhole slit becomes two shapes, the hole of opposite polarity", kPolarityCopper,
         kKeyhole, "L0 N1 P+ 10,0 10,10 0,10 0,5 0,0\nL0 N1 P- 3,7 7,7 7,3 3,3\n"},
        {"the keyhole of a void gives a copper island", kPolarityVoid, kKeyhole,
         "L0 N1 P- 10,0 10,10 0,10 0,5 0,0\nL0 N1 P+ 3,7 7,7 7,3 3,3\n"},
        // The repeated closing point goes first: its neighbours are itself and the next point.
        {"a collinear point is dropped below the tolerance",
         kPolarityCopper,
         {{0, 0}, {5, 0.00009}, {10, 0}, {10, 10}, {0, 10}, {0, 0}},
         "L0 N1 P+ 10,0 10,10 0,10 0,0\n"},
        {"and kept above it",
         kPolarityCopper,
         {{0, 0}, {5, 0.00011}, {10, 0}, {10, 10}, {0, 10}, {0, 0}},
         "L0 N1 P+ 5,0.00011 10,0 10,10 0,10 0,0\n"},
        {"a rectangle loses its mid-edge point",
         kPolarityCopper,
         {{0, 0}, {0, 2}, {0, 4}, {3, 4}, {3, 0}},
         "L0 N1 P+ 0,0 0,4 3,4 3,0\n"},
    };
    for (const auto& row : rows) {
        SetUp();
        AddPolygon(0, row.polarity, 1, row.points);
        CleanPolygon(0);
        EXPECT_EQ(ShapesAsText(), row.shapes) << row.what;
    }
}

TEST_F(Cleanup, RoundSortsTheHoleBeforeTheRingAndDropsTheSlitFoot) {
    AddPolygon(0, kPolarityCopper, 1, kKeyhole);
    RunShapeCleanupRound();
    EXPECT_EQ(ShapesAsText(), "L0 N1 P- 3,7 7,7 7,3 3,3\nL0 N1 P+ 10,0 10,10 0,10 0,0\n");
    EXPECT_EQ(16.0, g_model.g_aShapes[0].area);
    EXPECT_EQ(100.0, g_model.g_aShapes[1].area);
    ASSERT_EQ(2u, g_model.g_aShapeBoxes.size());
    EXPECT_EQ(3.0, g_model.g_aShapeBoxes[0].minX);
    EXPECT_EQ(7.0, g_model.g_aShapeBoxes[0].maxY);
    EXPECT_EQ(10.0 * 0.00390625, g_model.g_aLayers[0].gridX);
    EXPECT_EQ(0.0, g_model.g_aLayers[1].gridX);
}

// Two shapes sharing an edge on one layer, after the edge separation (see ShapesAsText): copper
// of another net or a split piece moves inward by 0.1, a void never moves but makes the copper
// move, two fills of one net stay; a narrow neighbour limits the move to its edges' midpoints.
TEST_F(Cleanup, TouchingEdgesMoveApart) {
    using Points = std::vector<ShapePoint>;
    const Points square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    const Points right{{10, 0}, {20, 0}, {20, 10}, {10, 10}};
    const struct {
        Points first;
        int32_t net2, polarity2;
        Points second;
        const char* shapes;
    } rows[] = {
        {square, 1, kPolaritySplit, right,
         "L0 N1 P+ 0,0 9.9,0 9.9,10 0,10\nL0 N1 Ps 10.1,0 20,0 20,10 10.1,10\n"},
        {square, 2, kPolarityCopper, right,
         "L0 N1 P+ 0,0 9.9,0 9.9,10 0,10\nL0 N2 P+ 10.1,0 20,0 20,10 10.1,10\n"},
        {square, 1, kPolarityVoid, right,
         "L0 N1 P+ 0,0 9.9,0 9.9,10 0,10\nL0 N1 P- 10,0 20,0 20,10 10,10\n"},
        {square, 1, kPolarityCopper, right,
         "L0 N1 P+ 0,0 10,0 10,10 0,10\nL0 N1 P+ 10,0 20,0 20,10 10,10\n"},
        {{{0, 0}, {0, 10}, {10, 10}, {10, 0}},
         2,
         kPolarityCopper,
         right,
         "L0 N1 P+ 0,0 0,10 9.9,10 9.9,0\nL0 N2 P+ 10.1,0 20,0 20,10 10.1,10\n"},
        {{{0, 0}, {10, 0}, {10, 0.1}, {0, 0.1}},
         2,
         kPolarityCopper,
         {{0, 0.1}, {10, 0.1}, {10, 5}, {0, 5}},
         "L0 N1 P+ 0,0 10,0 10,0.05 0,0.05\nL0 N2 P+ 0,0.2 10,0.2 10,5 0,5\n"},
        // A flat layer has no grid: nothing moves.
        {{{0, 0}, {0, 5}, {0, 10}},
         2,
         kPolarityCopper,
         {{0, 10}, {0, 5}, {0, 0}},
         "L0 N1 P+ 0,0 0,5 0,10\nL0 N2 P+ 0,10 0,5 0,0\n"},
    };
    for (const auto& row : rows) {
        SetUp();
        AddPolygon(0, kPolarityCopper, 1, row.first);
        AddPolygon(0, row.polarity2, row.net2, row.second);
        SetLayerExtents();
        SeparateTouchingEdges();
        EXPECT_EQ(ShapesAsText(), row.shapes);
    }
    EXPECT_EQ(0.0, g_model.g_aLayers[0].gridX);
}

TEST_F(Cleanup, SortPutsCopperFirstOnEqualAreasWithinALayer) {
    AddPolygon(1, kPolarityVoid, 1, {{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    AddPolygon(1, kPolarityCopper, 1, {{5, 5}, {6, 5}, {6, 6}, {5, 6}});
    AddPolygon(0, kPolarityVoid, 1, {{0, 0}, {4, 0}, {4, 4}, {0, 4}});
    AddPolygon(-1, kPolarityCopper, 1, {{0, 0}, {2, 0}, {2, 2}, {0, 2}});
    SortShapes();
    EXPECT_EQ(ShapesAsText(),
              "L-1 N1 P+ 0,0 2,0 2,2 0,2\nL0 N1 P- 0,0 4,0 4,4 0,4\n"
              "L1 N1 P+ 5,5 6,5 6,6 5,6\nL1 N1 P- 0,0 1,0 1,1 0,1\n");
    EXPECT_EQ(5.0, g_model.g_aShapeBoxes[2].minX);
    ShapeRun run = FindLayerShapeRun(1);
    EXPECT_EQ(2, run.first);
    EXPECT_EQ(4, run.end);
    run = FindLayerShapeRun(5);
    EXPECT_EQ(run.first, run.end);
}

TEST_F(Cleanup, DegenerateShapesPassTheRoundSafely) {
    AddPolygon(0, kPolarityCopper, 1, {{1, 1}});
    AddPolygon(0, kPolarityCopper, 1, {{1, 1}, {2, 2}});
    AddPolygon(0, kPolarityCopper, 1, {{3, 3}, {3, 3}, {3, 3}});  // chords of length 0
    AddPolygon(0, kPolarityCopper, 1, {});
    AddPolygon(1, kPolarityCopper, 1, {{0, 0}, {0, 0}, {0, 0}, {0, 0}});
    AddPolygon(7, kPolarityCopper, 1, {{0, 0}, {1, 0}, {1, 1}});  // no such layer
    AddPolygon(0, kPolarityCopper, 1,
               {{NAN, 0}, {1, INFINITY}, {2, 2}, {-INFINITY, 0}, {NAN, NAN}});
    AddCircle(0, kPolarityCopper, 1, 0, 0, 0);
    RunShapeCleanupRound();
    RunShapeCleanupRound();
    EXPECT_EQ(8, g_model.ShapeCount());
    EXPECT_EQ(8u, g_model.g_aShapeBoxes.size());
}

}  // namespace

namespace {

// A 100 x 100 ring with a saw-toothed bottom (so no point of it is collinear) and `holes`
// square holes of 4 x 10 hanging from slits that come down from the top edge.
std::vector<ShapePoint> CombOfKeyholes(int holes) {
    std::vector<ShapePoint> p;
    for (int k = 0; k <= 100; ++k) p.push_back({double(k), (k % 2) * 0.5});
    p.push_back({100, 100});
    for (int j = holes - 1; j >= 0; --j) {
        double x = 10.0 * j + 5;
        p.push_back({x, 100});
        p.push_back({x, 60});
        p.push_back({x + 2, 60});
        p.push_back({x + 2, 50});
        p.push_back({x - 2, 50});
        p.push_back({x - 2, 60});
        p.push_back({x, 60});
        p.push_back({x, 100});
    }
    p.push_back({0, 100});
    return p;
}

TEST_F(Cleanup, ManySlitsOfALargeRingEachGiveAHole) {
    std::vector<ShapePoint> comb = CombOfKeyholes(9);
    AddPolygon(0, kPolarityCopper, 1, comb);
    CleanPolygon(0);
    ASSERT_EQ(10, g_model.ShapeCount());
    // The ring keeps the saw teeth, the top corners and each slit's top point once.
    EXPECT_EQ(101 + 1 + 9 + 1, g_model.g_aShapes[0].pointCount);
    for (int i = 1; i <= 9; ++i) {
        double x = 10.0 * (9 - i) + 5;  // the last hole of the walk is split first
        EXPECT_EQ(kPolarityVoid, g_model.g_aShapes[i].polarity) << i;
        ExpectPoints({{x + 2, 60}, {x + 2, 50}, {x - 2, 50}, {x - 2, 60}}, i);
    }
    std::vector<ShapePoint> ring = PointsOf(0);
    for (const ShapePoint& q : ring) EXPECT_TRUE(q.y <= 0.5 || q.y == 100) << q.x << " " << q.y;
}

}  // namespace
