#include <gtest/gtest.h>

#include <sstream>

#include "DataCases.h"
#include "Fixtures.h"
#include "TestSupport.h"
#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

using testing_support::DataCase;
using testing_support::DataCases;
using testing_support::ResetGlobals;
using testing_support::SplitLines;

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
    // as "via x Lstart-end net nNOCONTACT rROTATION padstack drill/padstack-drill of
    // drills", and the pins as
    // "pin name node hasNode padstack".
    static std::string Placed() {
        auto net = [](int32_t n) {
            return n == kNoNet ? std::string("nonet") : g_model.g_strNetNames[n].name;
        };
        auto stack = [](const PadStackRec* s) { return s ? s->name : std::string("-"); };
        std::string t;
        for (const NodeRec& n : g_model.g_setNodes)
            t += "node L" + std::to_string(n.layer) + " " + testing_support::Exact(n.x) + "," +
                 testing_support::Exact(n.y) + " " + net(n.net) + " " + n.label.str() + " m" +
                 std::to_string(n.mirrored) + " c" + std::to_string(n.contact) + " r" +
                 testing_support::Exact(n.pad.rotation()) + " " + stack(n.pad.padStack()) + "\n";
        for (const ViaRec& v : g_model.g_aVias)
            t += "via " + testing_support::Exact(v.x) + " L" + std::to_string(v.startLayer) + "-" +
                 std::to_string(v.endLayer) + " " + net(v.net) + " n" +
                 std::to_string(v.noContact) + " r" + testing_support::Exact(v.rotation) + " " +
                 stack(v.padStack) + " " +
                 testing_support::Exact(g_model.g_aDrillRadii.at(v.drillIndex).radius) + "/" +
                 testing_support::Exact(v.padStack->drill) + " of " +
                 std::to_string(g_model.g_aDrillRadii.size()) + "\n";
        for (const std::string& key : g_model.g_mapComponents.Keys())
            for (const PinRec& pin : g_model.g_mapComponents.Find(key)->pins)
                t += "pin " + key + "." + pin.name + " " + pin.nodeId + " h" +
                     std::to_string(pin.hasNode) + " " + stack(pin.padStack) + "\n";
        return t;
    }
};

// Components at (10, 20) and their pins, one a line: "part DESIGNATOR ROTATION PLACEMENT"
// and "pin NAME PADSTACK NET X Y ROTATION" ("-" for no net); "nonet" includes no-net
// elements, "area" limits the work to 0..30 mm. Expected: what Placed() shows.
TEST_F(PlacePinsTest, PinsGiveTheseNodesAndVias) {
    for (const DataCase& c : DataCases("ibis/PlacePins/Pins.txt")) {
        SetUp();
        for (const std::string& arg : c.args) {
            if (arg == "nonet") g_options.g_nIncludeNoNetEtches = 1;
            if (arg == "area") g_options.g_bSpatialLimit = 1;
        }
        g_model.g_dbWorkMaxX = g_model.g_dbWorkMaxY = 30.0;
        ComponentRec* part = nullptr;
        for (const std::string& line : SplitLines(c.input)) {
            std::istringstream words(line);
            std::string kind, name, word;
            double x = 0, y = 0, rotation = 0;
            words >> kind >> name;
            if (kind == "part") {
                words >> rotation >> word;
                part = &Part(name, rotation, word == "-" ? "" : "%" + word + " ");
            } else {
                std::string net;
                words >> word >> net >> x >> y >> rotation;
                AddPin(*part, name, word, net == "-" ? "" : net, x, y, rotation);
            }
        }
        ASSERT_EQ(PlacePins(), 1) << c.title;
        EXPECT_EQ(Placed(), c.expected) << c.title;
    }
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
        EXPECT_EQ(g_model.g_setNodes.begin()->pad.rotation(), sum[1]) << sum[0];
    }
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
