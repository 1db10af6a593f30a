#include "ndd/SurfacePads.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"

namespace {

PadStackRec& Stack(const std::string& name, const std::vector<std::string>& libLayers) {
    PadStackRec& s = g_model.g_padStacks[name];
    s.name = name;
    for (const auto& word : libLayers) {
        PadEntry e;
        e.strLibLayer = word;
        e.layerName = "TOP";
        e.regular = std::make_shared<PadDefRec>();
        s.entries.push_back(e);
    }
    return s;
}

std::vector<std::string> EntryLayers(const PadStackRec& s) {
    std::vector<std::string> out;
    for (const auto& e : s.entries) out.push_back(e.layerName);
    return out;
}

TEST(SurfacePads, OnePadOnTopOrBottomIsCopiedToEveryConductorLayer) {
    testing_support::ResetGlobals();
    fixtures::MakeLayerStack({{"TOP", kLayerSignal},
                              {"D1", kLayerDielectric},
                              {"GND", kLayerPlane},
                              {"D2", kLayerDielectric},
                              {"BOT", kLayerSignal}});
    PadStackRec& smd = Stack("SMD", {"%TopPad"});
    PadStackRec& two = Stack("TWO", {"%toppad", "%bottompad"});
    PadStackRec& inner = Stack("INNER", {"GND"});
    PadStackRec& unused = Stack("UNUSED", {"%bottompad"});
    for (PadStackRec* s : {&smd, &smd, &two, &inner}) {
        ViaRec v;
        v.padStack = s;
        g_model.g_aVias.push_back(v);
    }
    SpreadSurfacePads();
    // Once per padstack, however many vias use it; the pads are shared with the first entry.
    EXPECT_EQ(EntryLayers(smd), (std::vector<std::string>{"TOP", "TOP", "GND", "BOT"}));
    EXPECT_EQ(smd.entries[3].regular, smd.entries[0].regular);
    EXPECT_EQ(two.entries.size(), 2u);
    EXPECT_EQ(inner.entries.size(), 1u);
    EXPECT_EQ(unused.entries.size(), 1u);
}

}  // namespace
