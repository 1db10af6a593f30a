#include <gtest/gtest.h>

#include <sstream>

#include "DataCases.h"
#include "Fixtures.h"
#include "TestSupport.h"
#include "ibis/CircuitForm.h"
#include "ibis/ComponentNodes.h"
#include "ibis/LinkageWriter.h"
#include "ibis/ModelAssignment.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

using testing_support::CaptureOutput;
using testing_support::DataCase;
using testing_support::DataCases;
using testing_support::ResetGlobals;
using testing_support::SplitLines;

namespace {

void Nets(const std::vector<std::string>& sortedNames) {
    fixtures::SetNetNames(sortedNames);
    BuildDisplayNetNames();
}

ComponentRec& TwoPinPart(const std::string& refDes, double x, double y, const std::string& net1,
                         const std::string& net2) {
    ComponentRec c;
    c.refDes = refDes;
    c.partNumber = "RES";
    c.packageName = "R0603";
    c.value = "10K";
    c.x = x, c.y = y;
    c.placement = "%topplace ";
    PinRec a, b;
    a.name = "1", a.x = a.libX = -0.5, a.net = net1;
    b.name = "2", b.x = b.libX = 0.5, b.net = net2;
    c.pins = {a, b};
    return g_model.g_mapComponents.Set(refDes, c);
}

// A whole run with a linked and an unlinked component is the case
// components_give_blocks_and_linkages; here the rules on hand-built nodes.
class LinkageTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        fixtures::MakeSignalLayers({"TOP"});
        Nets({"N1", "N2"});
    }
    void TearDown() override { g_bKeepActiveFormForTests = false; }
    void Bind() {
        RebuildNodeArray();
        RebuildNodeIndex();
        models.ResolveModels();
        nodes = std::make_unique<ComponentNodes>(&g_model.g_mapComponents, &models, "in.ndd",
                                                 nullptr, nullptr, "/out/");
        bindLog = CaptureOutput([&](FILE* f) {
            nodes->log = f;
            nodes->BindPinsToNodes(models.blocks);
            nodes->log = nullptr;
        });
    }
    std::string Linkage(std::string* log) {
        std::string out;
        *log = CaptureOutput([&](FILE* logFile) {
            out = CaptureOutput([&](FILE* f) { WriteLinkageDescription(f, logFile, nodes.get()); });
        });
        return out;
    }
    ModelAssignment models{
        &g_model.g_mapComponents, "out.qfx", nullptr, nullptr, nullptr, "in.ndd"};
    std::unique_ptr<ComponentNodes> nodes;
    std::string bindLog;
};

// Nodes on TOP and two-pin parts of RES 10K, one a line: "node X Y NET" ("-" for no net) and
// "part DESIGNATOR X Y NET1 NET2" with pins at -0.5 and 0.5; "nonet" includes no-net
// elements, "links=TW" sets the two linkage switches. Expected: the node of each pin, the
// binding log, the linkage section and its log.
TEST_F(LinkageTest, NodesAndPartsGiveTheseLinkages) {
    EXPECT_EQ(NodeKey(0.5000004, -2.0, 3), "0.500000#-2.000000#3");
    for (const DataCase& c : DataCases("ibis/LinkageWriter/Nodes.txt")) {
        SetUp();
        for (const std::string& arg : c.args) {
            if (arg == "nonet") g_options.g_nIncludeNoNetEtches = 1;
            if (arg.rfind("links=", 0) == 0) {
                g_options.g_bTranslateLinkages = arg[6] - '0';
                g_options.g_bWriteLinkages = arg[7] - '0';
            }
        }
        for (const std::string& line : SplitLines(c.input)) {
            std::istringstream words(line);
            std::string kind, name, net1, net2;
            double x = 0, y = 0;
            words >> kind;
            if (kind == "node") {
                words >> x >> y >> net1;
                AddNode(nullptr, x, y, 0, net1 == "-" ? kNoNet : NetIndexByName(net1), 0, nullptr,
                        0.0);
            } else {
                words >> name >> x >> y >> net1 >> net2;
                TwoPinPart(name, x, y, net1 == "-" ? "" : net1, net2);
            }
        }
        Bind();
        std::string got = "pins";
        for (const std::string& key : g_model.g_mapComponents.Keys())
            for (const PinRec& pin : g_model.g_mapComponents.Find(key)->pins)
                got += " " + key + "." + pin.name + ":" + pin.nodeId;
        std::string log;
        got += "\n" + bindLog + "\n--- linkage\n" + Linkage(&log) + "--- log\n" + log;
        EXPECT_EQ(got, c.expected) << c.title;
    }
}

TEST_F(LinkageTest, LabelsComeFromTheNodeWhenTheyDiffer) {
    AddNode(nullptr, 0.5, 2.0, 0, 0, 0, nullptr, 0.0);
    AddNode(nullptr, 1.5, 2.0, 0, 1, 0, nullptr, 0.0);
    ComponentRec& r1 = TwoPinPart("R1", 1.0, 2.0, "n1", "N9");
    Bind();
    // Another pin on the same node took its label afterwards.
    g_model.g_aNodes[1].label = "B2";
    (void)r1;
    std::string log;
    EXPECT_EQ(Linkage(&log),
              "* Linkage description line\n"
              ".Connect R1 RES_10K\n"
              "1 $Package.Node0!!1::n1\n"
              "2 $Package.Node1!!B2::N2\n"
              ".EndC\n"
              "\n");
}

TEST_F(LinkageTest, ATraceAcrossThePadGivesThePinANode) {
    PadStackRec stack;
    stack.name = "SMD";
    g_model.g_padStacks.Set("SMD", stack);
    auto size = std::make_unique<PadStackSizeRec>();
    size->name = "SMD";
    size->lstRoundCorners = {"-10000.000000", "-5000.000000", "10000.000000", "5000.000000"};
    g_model.g_mapPadStackSizes.Set("SMD", size.get());
    g_model.g_lstPadStackSizes.push_back(std::move(size));

    // A trace of N1 from (9.5, 10) ends inside pin 1's pad, which spans x 9.9..10.1.
    int32_t a = AddNode(nullptr, 9.5, 10.0, 0, 0, 0, nullptr, 0.0);
    int32_t b = AddNode(nullptr, 10.02, 10.0, 0, 0, 0, nullptr, 0.0);
    TraceRec trace;
    trace.layer = 0, trace.startNode = a, trace.endNode = b, trace.width = 0.1;
    g_model.g_aTraces.push_back(trace);
    // And one of N2 that passes pin 2's pad (x 10.9..11.1) above it.
    int32_t c = AddNode(nullptr, 10.5, 10.2, 0, 1, 0, nullptr, 0.0);
    int32_t d = AddNode(nullptr, 11.5, 10.2, 0, 1, 0, nullptr, 0.0);
    trace.startNode = c, trace.endNode = d;
    g_model.g_aTraces.push_back(trace);

    ComponentRec& r1 = TwoPinPart("R1", 10.5, 10.0, "N1", "N2");
    for (PinRec& pin : r1.pins) {
        pin.padStackName = "SMD";
        pin.padStack = g_model.g_padStacks.Find("SMD");
    }
    Bind();
    ASSERT_EQ(r1.pins.front().nodeId, "");
    std::string log;
    Linkage(&log);
    EXPECT_EQ(r1.pins.front().nodeId, "4");
    EXPECT_EQ(r1.pins.back().nodeId, "");
    ASSERT_EQ(nodes->extraNodes.size(), 1u);
    EXPECT_EQ(nodes->extraNodes[0],
              "Node4!!1::N1 X= 1.000000e+01mm Y= 1.000000e+01mm Layer = Signal$TOP Contact = 1\n");
    const NodeRec* node = nodes->NodeOf("4");
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->label, "1");
    EXPECT_EQ(node->net, 0);
    EXPECT_EQ(node->x, 10.0);
    EXPECT_EQ(g_model.g_aNodes.size(), 5u);
    // One linked pin only: the component is reported, and a second writing adds no node.
    EXPECT_NE(log.find("1] Component : R1 is Not Linked\n"), std::string::npos);
    Linkage(&log);
    EXPECT_EQ(g_model.g_aNodes.size(), 5u);
    EXPECT_EQ(nodes->extraNodes.size(), 1u);
}

TEST_F(LinkageTest, ActiveFormSwitchedOnTiesIbisNodesAndPowerGroups) {
    g_bKeepActiveFormForTests = true;
    ResetGlobals();
    fixtures::MakeSignalLayers({"TOP"});
    Nets({"N7", "VCC"});
    AddNode(nullptr, 1.0, 0.0, 0, 0, 0, nullptr, 0.0);  // node 0 under pin 7
    AddNode(nullptr, 3.0, 0.0, 0, 1, 0, nullptr, 0.0);  // node 1 under power pin 9
    RebuildNodeArray();
    RebuildNodeIndex();
    ComponentRec u;
    u.refDes = "U1", u.partNumber = "U74", u.blockName = "U74_PKG", u.isActive = 1;
    PinRec out, spare, power;
    out.name = "7", out.net = "N7", out.pinClass = 0, out.nodeId = "0";
    out.EditModel().ioNode = "nd_out_7_3-state", out.EditModel().pullupRef = "VCCGRP";
    for (const char* node : {"nd_pu", "nd_pd", "nd_out", "nd_pc", "nd_gc"})
        out.EditModel().nodeNames.push_back(std::string(node) + "_7_3-state");
    spare.name = "8", spare.net = "N7", spare.pinClass = 0;
    power.name = "9", power.net = "VCC", power.pinClass = 1, power.nodeId = "1";
    u.pins = {out, spare, power};
    u.pinNodes.Set("7", "0");
    GroupRec group;
    group.name = "VCCGRP", group.kind = "PU", group.pins = {"9"};
    u.groups.Set("VCCGRP", group);
    g_model.g_mapComponents.Set("U1", u);
    models.ibisParts.Set("U74", "T");
    nodes = std::make_unique<ComponentNodes>(&g_model.g_mapComponents, &models, "in.ndd", nullptr,
                                             nullptr, "");
    nodes->RebuildNodePosition();
    std::string log;
    std::string text = Linkage(&log);
    EXPECT_EQ(text,
              "* Linkage description line\n"
              ".Connect U1 U74_PKG\n"
              "nd_out_7_3-state $Package.Node0!!7::N7\n"
              "VCCGRP $Package.Node1!!9::VCC\n"
              ".EndC\n"
              "\n");
    // The empty power clamp was mended from the pullup, since the model has nd_pc.
    EXPECT_EQ(g_model.g_mapComponents.Find("U1")->pins.front().Model().powerClampRef, "VCCGRP");
}

}  // namespace
