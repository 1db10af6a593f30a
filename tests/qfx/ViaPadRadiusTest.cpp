// The via pass's cases are board scripts under tests/data/qfx/MakeVias.
#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "qfx/ViaContact.h"

namespace {

using namespace testing_support;
using namespace fixtures;

TEST(ViaPadRadius, FromTheLayersEntry) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}, {"INNER", kLayerSignal}, {"BOT", kLayerSignal}});
    PadStackRec stack;
    ViaRec via;
    via.padStack = &stack;
    EXPECT_EQ(ViaPadRadius(via, 1), 0.0001);  // no entries at all
    PadEntry top, inner;
    top.layerName = "TOP";
    inner.layerName = "Inner";
    stack.entries = {top, inner};
    EXPECT_EQ(ViaPadRadius(via, 1), 0.0);  // an entry without a regular pad
    stack.entries[1].regular = std::make_shared<PadDefRec>();
    stack.entries[1].regular->shapeName = "POLYGON";
    stack.entries[1].regular->width = 9;
    stack.entries[1].regular->points = {{-0.25, 1}, {0.5, 2}, {0.75, 3}};
    EXPECT_EQ(ViaPadRadius(via, 1), 0.5);  // the mean of |x|
    stack.entries[1].regular->shapeName = "RECTANGLE";
    EXPECT_EQ(ViaPadRadius(via, 1), 4.5);
    EXPECT_EQ(ViaPadRadius(via, 2), 0.0001);  // no entry names BOT
}

}  // namespace
