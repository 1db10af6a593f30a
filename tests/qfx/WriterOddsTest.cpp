// What the writers do besides printing their sections; the sections themselves are board
// scripts under tests/data/qfx.
#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "qfx/Naming.h"
#include "qfx/NodeWriter.h"

namespace {

TEST(WriteNodes, PadstacksWithoutDrillTakeTheirViasDrillRadius) {
    testing_support::ResetGlobals();
    PadStackRec noDrill, zeroDrill, ownDrill;
    noDrill.drill = -1.0;
    zeroDrill.drill = 0.0;
    ownDrill.drill = 0.05;
    // Sorted by radius; each radius keeps the index of its first use.
    g_model.g_aDrillRadii = {{0.1, 1}, {0.2, 0}};
    const std::pair<PadStackRec*, uint32_t> vias[] = {
        {&noDrill, 0}, {&zeroDrill, 1}, {&ownDrill, 0}, {nullptr, 0}};
    for (const auto& [stack, drillIndex] : vias) {
        ViaOutRec via;
        via.padStack = stack;
        via.drillIndex = drillIndex;
        g_model.g_aViaOut.push_back(via);
    }
    EXPECT_EQ(testing_support::CaptureOutput([](FILE* f) { WriteNodes(f); }), "");
    EXPECT_EQ(noDrill.drill, 0.2);
    EXPECT_EQ(zeroDrill.drill, 0.1);
    EXPECT_EQ(ownDrill.drill, 0.05);
}

TEST(Naming, TitleVersionTurnsCommasToDotsAndDropsBlanks) {
    EXPECT_EQ(TitleVersion("25, 1, 1"), "25.1.1");
    EXPECT_EQ(TitleVersion(" 1 ,0, 12"), "1.0.12");
}

}  // namespace
