#include "ndd/LayerStack.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "RecordingHost.h"
#include "TestSupport.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"

using namespace testing_support;

namespace {

class LayerStackTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }

    int Parse(const std::string& text) { return ParseLayer(dir_.Write("board.ndd", text)); }
    const LayerRec& Layer(int i) const { return g_model.g_aLayers[i]; }
    std::string Kind(const std::string& name) const {
        const std::string* kind = g_model.g_mapLayerKind.Find(name);
        return kind ? *kind : "?";
    }

    ScratchDir dir_;
    RecordingHost host_;
    HostScope hostScope_{host_};
};

const std::string kStack = testing_support::DataFile("ndd/LayerStack/stack.ndd");

// The layer lines themselves are checked through whole runs (tests/data/cases/layer_*); here
// the lookups that later passes use.
TEST_F(LayerStackTest, LookupsByNameKindAndIdentifier) {
    ASSERT_EQ(Parse(kStack), 1);
    EXPECT_EQ(Kind("TOP"), "S");
    EXPECT_EQ(Kind("GND"), "P");
    EXPECT_EQ(Kind("D"), "D");
    EXPECT_EQ(Kind("mW_PLANE"), "?");
    ASSERT_NE(g_model.g_mapLayerId.Find("2"), nullptr);
    EXPECT_EQ(*g_model.g_mapLayerId.Find("2"), "GND");
    // A dropped line, and a line after the outline, leave the identifier map alone.
    EXPECT_EQ(g_model.g_mapLayerId.Find("7"), nullptr);
    EXPECT_EQ(g_model.g_mapLayerId.Find("5"), nullptr);
    EXPECT_EQ(LayerIndexByName("GND"), 2);
    EXPECT_EQ(LayerIndexByName("D"), -1);
    EXPECT_EQ(FirstConductorLayer(), 0);
    EXPECT_EQ(LastConductorLayer(), 6);
    EXPECT_EQ(Layer(2).conductivity, 37000000);  // cut to a whole number
}

TEST_F(LayerStackTest, A257thLayerStopsWithAMessage) {
    std::string text;
    for (int i = 0; i < 257; ++i)
        text += "%signal \"L" + std::to_string(i) + "\" \"1\" \"x\" 1 \"CU\";\n";
    EXPECT_EQ(Parse(text), 0);
    EXPECT_EQ(g_model.g_nLayerCount, 256);
    EXPECT_EQ(LayerName(Layer(255)), "L255");
    EXPECT_EQ(host_.messages.size(), 1u);
}

}  // namespace
