// The polygon clean-up's cases are board scripts under tests/data/geometry/Cleanup; here a
// large ring with many slits.
#include <gtest/gtest.h>

#include <cmath>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/CleanPolygon.h"

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
