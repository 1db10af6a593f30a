#include <gtest/gtest.h>

#include <cstring>

#include "Fixtures.h"
#include "TestSupport.h"
#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

using testing_support::ResetGlobals;

namespace {

class PlacePinsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        fixtures::MakeThreeLayerStack();
        fixtures::SetNetNames({"N1", "N2"});
        BuildDisplayNetNames();

        PadStackRec smd;
        smd.name = "SMD";
        smd.layer = 0;
        smd.nType = 1;
        g_model.g_padStacks.Set("SMD", smd);
        PadStackRec th;
        th.name = "TH 1";
        th.nType = 2;
        g_model.g_padStacks.Set("TH_1", th);
        auto size = std::make_unique<PadStackSizeRec>();
        size->name = "TH_1";
        size->dbMinRadius = 0.15;
        g_model.g_mapPadStackSizes.Set("TH_1", size.get());
        g_model.g_lstPadStackSizes.push_back(std::move(size));
    }

    ComponentRec& Part(const std::string& refDes, double rotation, const std::string& placement) {
        ComponentRec c;
        c.refDes = refDes;
        c.x = 10.0, c.y = 20.0;
        c.rotation = rotation;
        c.placement = placement;
        c.layer = placement.find("bottom") != std::string::npos ? 2 : 0;
        return g_model.g_mapComponents.Set(refDes, c);
    }
    PinRec& AddPin(ComponentRec& c, const std::string& name, const std::string& padStack,
                   const std::string& net, double x, double y, double rotation) {
        PinRec pin;
        pin.name = name, pin.padStackName = padStack, pin.net = net;
        pin.x = x, pin.y = y, pin.rotation = rotation;
        c.pins.push_back(pin);
        return c.pins.back();
    }
    const NodeRec& OnlyNode() {
        EXPECT_EQ(g_model.g_setNodes.size(), 1u);
        return *g_model.g_setNodes.begin();
    }
};

TEST_F(PlacePinsTest, TopSurfacePinBecomesANodeOnThePadstackLayer) {
    ComponentRec& c = Part("R1", 30.0, "%topplace ");
    PinRec& pin = AddPin(c, "1", "SMD", "N2", 1.5, -0.5, 350.0);
    ASSERT_EQ(PlacePins(), 1);
    const NodeRec& node = OnlyNode();
    EXPECT_EQ(node.layer, 0);
    EXPECT_EQ(node.x, 11.5);
    EXPECT_EQ(node.y, 19.5);
    EXPECT_EQ(node.net, 1);
    EXPECT_EQ(node.label, "1");
    EXPECT_EQ(node.mirrored, 0);
    EXPECT_EQ(node.contact, 1);
    EXPECT_EQ(node.rotation, 20.0);
    EXPECT_EQ(node.padStack, g_model.g_padStacks.Find("SMD"));
    EXPECT_EQ(pin.nodeId, "0");
    EXPECT_EQ(pin.hasNode, 1u);
    EXPECT_EQ(pin.padStack, g_model.g_padStacks.Find("SMD"));
    EXPECT_TRUE(g_model.g_aVias.empty());
}

TEST_F(PlacePinsTest, BottomPinIsMirroredInXAndLiesOnTheBottomConductor) {
    ComponentRec& c = Part("C2", 0.0, "%bottomplace ");
    AddPin(c, "2", "SMD", "N1", 1.5, -0.5, 0.0);
    ASSERT_EQ(PlacePins(), 1);
    const NodeRec& node = OnlyNode();
    EXPECT_EQ(node.layer, 2);
    EXPECT_EQ(node.x, 8.5);
    EXPECT_EQ(node.y, 19.5);
    EXPECT_EQ(node.mirrored, 1);
}

TEST_F(PlacePinsTest, RotationsAreReducedByTheirOddRule) {
    const double sums[][2] = {{-400.0, 320.0}, {-1000.0, -280.0}, {-30.0, -30.0},
                              {720.0, 0.0},    {359.0, 359.0},    {-360.0, 0.0}};
    for (const auto& sum : sums) {
        ResetGlobals();
        SetUp();
        ComponentRec& c = Part("R1", sum[0], "%topplace ");
        AddPin(c, "1", "SMD", "N1", 0.0, 0.0, 0.0);
        PlacePins();
        EXPECT_EQ(OnlyNode().rotation, sum[1]) << sum[0];
    }
}

TEST_F(PlacePinsTest, DrilledPinAddsAViaThroughTheStackWithItsDrill) {
    g_options.g_nIncludeNoNetEtches = 1;
    ComponentRec& c = Part("J1", 0.0, "%topplace ");
    AddPin(c, "1", "TH_1", "N1", 0.0, 0.0, 90.0);
    AddPin(c, "2", "TH_1", "%no_connect", 2.54, 0.0, 0.0);
    ASSERT_EQ(PlacePins(), 1);
    ASSERT_EQ(g_model.g_aVias.size(), 2u);
    const ViaRec& a = g_model.g_aVias[0];
    EXPECT_EQ(a.x, 10.0);
    EXPECT_EQ(a.startLayer, 0);
    EXPECT_EQ(a.endLayer, 2);
    EXPECT_EQ(a.net, 0);
    EXPECT_EQ(a.noContact, 0);
    EXPECT_EQ(a.rotation, 90.0);
    EXPECT_EQ(a.padStack, g_model.g_padStacks.Find("TH_1"));
    ASSERT_EQ(g_model.g_aDrillRadii.size(), 1u);
    EXPECT_EQ(g_model.g_aDrillRadii[a.drillIndex].radius, 0.15);
    EXPECT_EQ(g_model.g_padStacks.Find("TH_1")->drill, 0.15);
    const ViaRec& b = g_model.g_aVias[1];
    EXPECT_EQ(b.net, kNoNet);
    EXPECT_EQ(b.noContact, 1);
    // The no-connect pin still has its node, with no net.
    EXPECT_EQ(g_model.g_setNodes.size(), 2u);
}

TEST_F(PlacePinsTest, PinsWithoutNetPadstackOrPlaceAreSkipped) {
    ComponentRec& c = Part("U1", 0.0, "%topplace ");
    PinRec& noNet = AddPin(c, "1", "SMD", "", 0.0, 0.0, 0.0);
    PinRec& noConnect = AddPin(c, "2", "SMD", "%no_connect", 1.0, 0.0, 0.0);
    PinRec& unknownPad = AddPin(c, "3", "NOPE", "N1", 2.0, 0.0, 0.0);
    PinRec& far = AddPin(c, "4", "SMD", "N1", 50.0, 0.0, 0.0);
    ComponentRec& unplaced = Part("U2", 0.0, "");
    AddPin(unplaced, "1", "SMD", "N1", 0.0, 0.0, 0.0);
    g_options.g_bSpatialLimit = 1;
    g_model.g_dbWorkMinX = g_model.g_dbWorkMinY = 0.0;
    g_model.g_dbWorkMaxX = g_model.g_dbWorkMaxY = 30.0;
    ASSERT_EQ(PlacePins(), 1);
    EXPECT_TRUE(g_model.g_setNodes.empty());
    EXPECT_EQ(noNet.hasNode, 0u);
    EXPECT_EQ(noConnect.hasNode, 0u);
    EXPECT_EQ(unknownPad.padStack, nullptr);
    EXPECT_EQ(far.nodeId, "");
}

TEST_F(PlacePinsTest, AStackWithADielectricOnTopRunsFromOneToTheLastButOne) {
    SetLayerName(g_model.g_aLayers[3], "BOTTOM_D");
    g_model.g_aLayers[3].kind = kLayerDielectric;
    g_model.g_nLayerCount = 4;
    g_model.g_aLayers[0].kind = kLayerDielectric;
    g_model.g_aLayers[1].kind = kLayerSignal;
    ComponentRec& c = Part("J1", 0.0, "%topplace ");
    c.layer = 1;
    AddPin(c, "1", "TH_1", "N1", 0.0, 0.0, 0.0);
    ASSERT_EQ(PlacePins(), 1);
    ASSERT_EQ(g_model.g_aVias.size(), 1u);
    EXPECT_EQ(g_model.g_aVias[0].startLayer, 1);
    EXPECT_EQ(g_model.g_aVias[0].endLayer, 2);
}

}  // namespace
