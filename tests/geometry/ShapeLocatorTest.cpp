#include "geometry/ShapeLocator.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "ShapeTestSupport.h"
#include "TestSupport.h"
#include "geometry/ShapeBoxes.h"

namespace {

using namespace testing_support;

// The locator answers exactly the shapes whose box holds the point, in table order, for
// points inside, on the sides and at the corners of boxes.
TEST(ShapeLocator, FindsExactlyTheBoxesHoldingAPointInTableOrder) {
    ResetGlobals();
    std::mt19937 rng(3);
    std::uniform_int_distribution<int> pos(0, 40), size(0, 12);
    for (int i = 0; i < 400; ++i) AddSquare(0, kPolarityVoid, 0, pos(rng), pos(rng), size(rng));
    AddCircle(0, kPolarityCopper, 0, 20, 20, 30);  // a box over everything
    BuildShapeBoxes();
    const LayerShapeLocator locator(ShapeRun{0, g_model.ShapeCount()});
    for (double x = -1; x <= 53; x += 0.5)
        for (double y = -1; y <= 53; y += 0.5) {
            std::vector<int32_t> expected, found;
            for (int32_t i = 0; i < g_model.ShapeCount(); ++i) {
                BoundingBox b = ShapeBox(i);
                if (x >= b.minX && x <= b.maxX && y >= b.minY && y <= b.maxY) expected.push_back(i);
            }
            locator.Each(x, y, -1, [&](int32_t i) {
                found.push_back(i);
                return false;
            });
            ASSERT_EQ(found, expected) << x << ", " << y;
        }
    // Starting above an index, and stopping when asked.
    std::vector<int32_t> found;
    EXPECT_TRUE(locator.Each(20, 20, 399, [&](int32_t i) {
        found.push_back(i);
        return true;
    }));
    EXPECT_EQ(found, std::vector<int32_t>{400});
}

}  // namespace
