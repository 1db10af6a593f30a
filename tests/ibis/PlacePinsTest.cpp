#include <gtest/gtest.h>

#include <cstdio>

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
    // The nodes as "layer x,y net label mMIRRORED cCONTACT rROTATION padstack", then the vias
    // as "via x Lstart-end net nNOCONTACT rROTATION padstack drill", and the pins as
    // "pin name node hasNode padstack".
    static std::string Placed() {
        auto num = [](double v) {
            char buf[32];
            std::snprintf(buf, sizeof buf, "%.17g", v);
            return std::string(buf);
        };
        auto net = [](int32_t n) {
            return n == kNoNet ? std::string("nonet") : g_model.g_strNetNames[n].name;
        };
        auto stack = [](const PadStackRec* s) { return s ? s->name : std::string("-"); };
        std::string t;
        for (const NodeRec& n : g_model.g_setNodes)
            t += "node L" + std::to_string(n.layer) + " " + num(n.x) + "," + num(n.y) + " " +
                 net(n.net) + " " + n.label + " m" + std::to_string(n.mirrored) + " c" +
                 std::to_string(n.contact) + " r" + num(n.rotation) + " " + stack(n.padStack) +
                 "\n";
        for (const ViaRec& v : g_model.g_aVias)
            t += "via " + num(v.x) + " L" + std::to_string(v.startLayer) + "-" +
                 std::to_string(v.endLayer) + " " + net(v.net) + " n" +
                 std::to_string(v.noContact) + " r" + num(v.rotation) + " " + stack(v.padStack) +
                 " " + num(g_model.g_aDrillRadii.at(v.drillIndex).radius) + "\n";
        for (const std::string& key : g_model.g_mapComponents.Keys())
            for (const PinRec& pin : g_model.g_mapComponents.Find(key)->pins)
                t += "pin " + key + "." + pin.name + " " + pin.nodeId + " h" +
                     std::to_string(pin.hasNode) + " " + stack(pin.padStack) + "\n";
        return t;
    }
};

TEST_F(PlacePinsTest, TopSurfacePinBecomesANodeOnThePadstackLayer) {
    AddPin(Part("R1", 30.0, "%topplace "), "1", "SMD", "N2", 1.5, -0.5, 350.0);
    ASSERT_EQ(PlacePins(), 1);
    EXPECT_EQ(Placed(), "node L0 11.5,19.5 N2 1 m0 c1 r20 SMD\npin R1.1 0 h1 SMD\n");
}

TEST_F(PlacePinsTest, BottomPinIsMirroredInXAndLiesOnTheBottomConductor) {
    AddPin(Part("C2", 0.0, "%bottomplace "), "2", "SMD", "N1", 1.5, -0.5, 0.0);
    ASSERT_EQ(PlacePins(), 1);
    EXPECT_EQ(Placed(), "node L2 8.5,19.5 N1 2 m1 c1 r0 SMD\npin C2.2 0 h1 SMD\n");
}

TEST_F(PlacePinsTest, RotationsAreReducedByTheirOddRule) {
    const double sums[][2] = {{-400.0, 320.0}, {-1000.0, -280.0}, {-30.0, -30.0},
                              {720.0, 0.0},    {359.0, 359.0},    {-360.0, 0.0}};
    for (const auto& sum : sums) {
        ResetGlobals();
        SetUp();
        AddPin(Part("R1", sum[0], "%topplace "), "1", "SMD", "N1", 0.0, 0.0, 0.0);
        PlacePins();
        ASSERT_EQ(g_model.g_setNodes.size(), 1u);
        EXPECT_EQ(g_model.g_setNodes.begin()->rotation, sum[1]) << sum[0];
    }
}

// The no-connect pin still has its node, with no net.
TEST_F(PlacePinsTest, DrilledPinAddsAViaThroughTheStackWithItsDrill) {
    g_options.g_nIncludeNoNetEtches = 1;
    ComponentRec& c = Part("J1", 0.0, "%topplace ");
    AddPin(c, "1", "TH_1", "N1", 0.0, 0.0, 90.0);
    AddPin(c, "2", "TH_1", "%no_connect", 2.54, 0.0, 0.0);
    ASSERT_EQ(PlacePins(), 1);
    EXPECT_EQ(Placed(),
              "node L0 10,20 N1 1 m0 c1 r90 TH 1\n"
              "node L0 12.539999999999999,20 nonet 2 m0 c1 r0 TH 1\n"
              "via 10 L0-2 N1 n0 r90 TH 1 0.14999999999999999\n"
              "via 12.539999999999999 L0-2 nonet n1 r0 TH 1 0.14999999999999999\n"
              "pin J1.1 0 h1 TH 1\npin J1.2 1 h1 TH 1\n");
    EXPECT_EQ(g_model.g_aDrillRadii.size(), 1u);
    EXPECT_EQ(g_model.g_padStacks.Find("TH_1")->drill, 0.15);
}

TEST_F(PlacePinsTest, PinsWithoutNetPadstackOrPlaceAreSkipped) {
    ComponentRec& c = Part("U1", 0.0, "%topplace ");
    AddPin(c, "1", "SMD", "", 0.0, 0.0, 0.0);
    AddPin(c, "2", "SMD", "%no_connect", 1.0, 0.0, 0.0);
    AddPin(c, "3", "NOPE", "N1", 2.0, 0.0, 0.0);
    AddPin(c, "4", "SMD", "N1", 50.0, 0.0, 0.0);
    AddPin(Part("U2", 0.0, ""), "1", "SMD", "N1", 0.0, 0.0, 0.0);
    g_options.g_bSpatialLimit = 1;
    g_model.g_dbWorkMinX = g_model.g_dbWorkMinY = 0.0;
    g_model.g_dbWorkMaxX = g_model.g_dbWorkMaxY = 30.0;
    ASSERT_EQ(PlacePins(), 1);
    EXPECT_EQ(Placed(),
              "pin U1.1  h0 -\npin U1.2  h0 -\npin U1.3  h0 -\npin U1.4  h0 SMD\n"
              "pin U2.1  h0 -\n");
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
