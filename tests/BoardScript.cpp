// The commands of a board script. NET is a name of the net table, a number, "-" (65535) or
// "alt" (65534); POL is + (copper), - (void) or s (split); points are x,y; L is a layer index.
//   board S:TOP D:D1 P:GND   the layer stack, top first; nets A B   the net table
//   set OPTION VALUE         a translation option by its field name; "scale" the NDD unit,
//                            "tiny" the tiny-trace length
//   display NET NAME         a net's display name; layer L thickness|hasShapes VALUE
//   polygon L POL NET x,y..  square L POL NET X Y SIDE   circle L POL NET X Y R
//   last area|undiscardable|discarded VALUE    of the last shape
//   trace L X1 Y1 X2 Y2 NET [W]   between new nodes; readtrace: as the trace reader adds it
//   tracerec L START END NET W|deleted [color=C]   a trace record between node numbers
//   traceset T flag|width VALUE   nddline TEXT, then parsetrace: NDD read by the trace reader
//   stack NAME DRILL         a padstack; pad LAYER SHAPE|- [W H [OX OY]] adds an entry,
//                            anti SHAPE W H [OX OY] its anti pad, points x,y.. the last pad's
//   via X Y NET START END STACK [rot=R] [nocontact=1]
//   node X Y L NET CONTACT [STACK ROT] [label=T] [mirrored=M]   vianode X Y L NET CONTACT VIAREF
//   nodeset ID label|traceRefs|viaRefs|net VALUE   in the flat array
//   noderow COUNT X0 L       COUNT trace ends at x = X0, X0 + 1, ..
//   viaout NUMBER NET UPPERNET LOWERNET STACK   a via stretch from node 0 to node 1, rotation 90
//   logfile                  a translation log; reset   a fresh model
//   run PASS                 sort, boxes, vias, rebuild, makenode, flip, voidcheck, kickout,
//                            tiny, gaps, round, separate, clean N, nullstreams (the padstack
//                            writers on no stream)
//   write SECTION            library, mirrored, packageend, shapes, layers, nodes, traces, vias
//   print WHAT               shapes, flags, boxes, count, nodes, state, gaps, log, run L,
//                            node L X Y, inside S (whether each trace runs into void S),
//                            area S, pointin S box|nobox x,y.., strict S N x,y.., byid ID,
//                            index, capacity (of the flat array), walk L X0 X1 [STOP]
//   quiet COMMAND            the command, its output not compared
#include "BoardScript.h"

#include <cstdlib>
#include <map>
#include <sstream>
#include <variant>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/CheckUndiscardableVoids.h"
#include "geometry/CleanPolygon.h"
#include "geometry/FinishShapes.h"
#include "geometry/MakeNode.h"
#include "geometry/PointInShape.h"
#include "geometry/SeparateTouchingEdges.h"
#include "geometry/ShapeArea.h"
#include "geometry/ShapeBoxes.h"
#include "geometry/ShapeCleanupRound.h"
#include "geometry/TraceCleanup.h"
#include "geometry/TraceInVoid.h"
#include "model/TranslationOptions.h"
#include "ndd/TraceReader.h"
#include "qfx/LayerWriter.h"
#include "qfx/MakeVias.h"
#include "qfx/NodeWriter.h"
#include "qfx/PadStackSection.h"
#include "qfx/ShapeWriter.h"
#include "qfx/Skeleton.h"
#include "qfx/TraceWriter.h"
#include "qfx/ViaWriter.h"

namespace board_script {
namespace {

using Words = std::vector<std::string>;
using Option = std::variant<int32_t TranslationOptions::*, double TranslationOptions::*,
                            std::string TranslationOptions::*>;
#define OPTION(f) \
    { #f, &TranslationOptions::f }
// clang-format off
const std::map<std::string, Option> kOptions = {
    OPTION(g_nTranslatePads), OPTION(g_bAllowPatches), OPTION(g_bAddPseudoPlane),
    OPTION(g_nIncludeNoNetEtches), OPTION(g_bAppendNetName), OPTION(g_strNameAffix),
    OPTION(g_bColorShapesByNet), OPTION(g_dbVoidAreaLimit), OPTION(g_dbViaVoidArea),
    OPTION(g_bExcludeVoidEnclosingVia), OPTION(g_strTraceGapPercent), OPTION(g_dbDrillClearance),
    OPTION(g_dbGapAroundAreaFillOnPlaneLayers)};
// clang-format on
#undef OPTION

double Num(const std::string& word) {
    return std::strtod(word.c_str(), nullptr);
}

int32_t Net(const std::string& word) {
    if (word == "-") return kNoNet;
    if (word == "alt") return kNoNetAlt;
    if (word.find_first_not_of("0123456789") == std::string::npos) return std::atoi(word.c_str());
    return NetIndexByName(word);
}

int32_t Polarity(const std::string& word) {
    return word == "-" ? kPolarityVoid : word == "s" ? kPolaritySplit : kPolarityCopper;
}

std::vector<ShapePoint> Points(const Words& w, size_t from) {
    std::vector<ShapePoint> points;
    for (size_t i = from; i < w.size(); ++i)
        points.push_back({Num(w[i]), Num(w[i].substr(w[i].find(',') + 1))});
    return points;
}

// key=value words after the fixed arguments.
std::string Extra(const Words& w, const std::string& key, const std::string& otherwise = "") {
    for (const std::string& word : w)
        if (word.compare(0, key.size() + 1, key + "=") == 0) return word.substr(key.size() + 1);
    return otherwise;
}

std::shared_ptr<PadDefRec> PadDef(const Words& w, size_t at) {
    auto pad = std::make_shared<PadDefRec>();
    pad->shapeName = w[at];
    pad->width = Num(w[at + 1]);
    pad->height = Num(w[at + 2]);
    if (w.size() > at + 4) pad->offsetX = Num(w[at + 3]), pad->offsetY = Num(w[at + 4]);
    return pad;
}

std::string NodeText(const NodeRec* n) {
    if (!n) return "none\n";
    char buf[160];
    std::snprintf(buf, sizeof buf, "node %u L%d %.17g,%.17g n%d c%u t%u v%u", n->id, n->layer, n->x,
                  n->y, n->net, n->contact, n->traceRefs, n->viaRefs);
    std::string text = buf;
    if (!n->label.empty()) text += " " + n->label.str();
    const PadStackRec* stack = n->pad.padStack();
    if (stack || n->pad.rotation() != 0)
        text += " " + (stack ? stack->name : "-") + "@" + std::to_string(n->pad.rotation());
    return text + "\n";
}

// Each trace as "start-end", "x" before a deleted one; then each node's trace references.
std::string TraceState() {
    std::string t;
    for (const TraceRec& tr : g_model.g_aTraces)
        t += (tr.width == kDeletedTraceWidth ? "x" : "") + std::to_string(tr.startNode) + "-" +
             std::to_string(tr.endNode) + " ";
    t += "|";
    for (size_t id = 0; id < g_model.g_aNodes.size(); ++id)
        t += " " + std::to_string(NodeById(static_cast<int32_t>(id))->traceRefs);
    return t + "\n";
}

// Shape by shape: layer, first point, the undiscardable and discarded flags.
std::string Flags() {
    std::string t;
    char buf[96];
    for (const ShapeRec& s : g_model.g_aShapes) {
        const ShapePoint& p = g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
        std::snprintf(buf, sizeof buf, "L%d %g,%g u%d d%d\n", s.layer, p.x, p.y, s.undiscardable,
                      s.discarded);
        t += buf;
    }
    return t;
}

// Shape by shape: area and box; then each layer's extent and grid cell.
std::string Boxes() {
    std::string t;
    char buf[128];
    for (size_t i = 0; i < g_model.g_aShapes.size() && i < g_model.g_aShapeBoxes.size(); ++i) {
        const BoundingBox& b = g_model.g_aShapeBoxes[i];
        std::snprintf(buf, sizeof buf, "%g %g,%g %g,%g\n", g_model.g_aShapes[i].area, b.minX,
                      b.minY, b.maxX, b.maxY);
        t += buf;
    }
    for (int i = 0; i < g_model.g_nLayerCount; ++i) {
        const LayerRec& l = g_model.g_aLayers[i];
        std::snprintf(buf, sizeof buf, "L%d %g,%g %.17g,%.17g\n", i, l.minX, l.minY, l.gridX,
                      l.gridY);
        t += buf;
    }
    return t;
}

// Nothing, when word is one of the blank-separated names; a complaint that fails the case
// otherwise.
std::string Known(const std::string& names, const std::string& word) {
    return names.find(" " + word + " ") == std::string::npos ? "unknown word " + word + "\n" : "";
}

const char kBuildCommands[] =
    " board nets display set polygon square circle last trace readtrace traceset tracerec layer "
    "stack pad anti points via node vianode nodeset noderow viaout logfile ";

class Runner {
  public:
    std::string Do(const std::string& command) {
        std::istringstream words(command);
        Words w;
        for (std::string word; words >> word;) w.push_back(word);
        const std::string& c = w[0];
        if (c == "quiet") return Do(command.substr(6)), "";
        if (c == "nddline") return ndd_ += command.substr(8) + "\n", "";
        if (c == "parsetrace") {
            dir_ = std::make_unique<testing_support::ScratchDir>();
            return ParseTrace(dir_->Write("a.ndd", ndd_), 0) == 1 ? "" : "failed\n";
        }
        if (c == "write") return Write(w[1]);
        if (c == "reset") return testing_support::ResetGlobals(), "";
        if (c == "print") return Print(w);
        if (c == "run") return Pass(w);
        Build(w);
        return Known(kBuildCommands, c);
    }

  private:
    void Build(const Words& w) {
        const std::string& c = w[0];
        if (c == "board") return Board(w);
        if (c == "nets") return fixtures::MakeNets(Words(w.begin() + 1, w.end()));
        if (c == "display") g_model.g_strDisplayNetNames[static_cast<size_t>(Net(w[1]))] = w[2];
        if (c == "set") return Set(w);
        if (c == "polygon") fixtures::AddPolygon(L(w[1]), Polarity(w[2]), Net(w[3]), Points(w, 4));
        if (c == "square")
            fixtures::AddSquare(L(w[1]), Polarity(w[2]), Net(w[3]), Num(w[4]), Num(w[5]),
                                Num(w[6]));
        if (c == "circle")
            fixtures::AddCircle(L(w[1]), Polarity(w[2]), Net(w[3]), Num(w[4]), Num(w[5]),
                                Num(w[6]));
        if (c == "last") return LastShape(w);
        if (c == "trace")
            fixtures::AddTraceLine(L(w[1]), Num(w[2]), Num(w[3]), Num(w[4]), Num(w[5]), Net(w[6]),
                                   w.size() > 7 ? Num(w[7]) : 0.1);
        if (c == "readtrace" && GrowTraceArrays())
            AddTraceRecord(Num(w[2]), Num(w[3]), Num(w[4]), Num(w[5]), 0.1, L(w[1]), Net(w[6]));
        if (c == "traceset") return TraceSet(w);
        if (c == "tracerec") return TraceRecord(w);
        if (c == "layer") return Layer(w);
        if (c == "stack") return Stack(w);
        if (c == "pad") return Pad(w);
        if (c == "anti") stack_->entries.back().anti = pad_ = PadDef(w, 1);
        if (c == "points")
            for (const ShapePoint& p : Points(w, 1)) pad_->points.emplace_back(p.x, p.y);
        if (c == "via") return Via(w);
        if (c == "node") return Node(w);
        if (c == "vianode")
            AddViaNode(Num(w[1]), Num(w[2]), L(w[3]), Net(w[4]), static_cast<uint16_t>(Num(w[5])),
                       static_cast<uint16_t>(Num(w[6])));
        if (c == "nodeset") return NodeSet(w);
        if (c == "noderow") return NodeRow(w);
        if (c == "viaout") return ViaOut(w);
        if (c == "logfile") g_options.g_pLogFile = std::tmpfile();
    }

    static int32_t L(const std::string& word) { return std::atoi(word.c_str()); }

    static void Board(const Words& w) {
        std::vector<std::pair<std::string, uint8_t>> layers;
        for (size_t i = 1; i < w.size(); ++i)
            layers.emplace_back(w[i].substr(2), w[i][0] == 'S'   ? kLayerSignal
                                                : w[i][0] == 'P' ? kLayerPlane
                                                                 : kLayerDielectric);
        fixtures::MakeLayerStack(layers);
        for (int i = 0; i < g_model.g_nLayerCount; ++i) {
            LayerRec& l = g_model.g_aLayers[i];
            l.thickness = 0.035;
            l.conductivity = 58;
            l.permittivity = 4.3;
            l.ordinal = static_cast<uint8_t>(i);
        }
    }

    static void Set(const Words& w) {
        if (w[1] == "scale") {
            g_model.g_dbLengthScale = Num(w[2]);
            return;
        }
        if (w[1] == "tiny") {
            g_model.g_dbTinyTraceLimitSquared = Num(w[2]) * Num(w[2]);
            return;
        }
        const Option& o = kOptions.at(w[1]);
        if (auto i = std::get_if<int32_t TranslationOptions::*>(&o)) g_options.*(*i) = L(w[2]);
        if (auto d = std::get_if<double TranslationOptions::*>(&o)) g_options.*(*d) = Num(w[2]);
        if (auto s = std::get_if<std::string TranslationOptions::*>(&o))
            g_options.*(*s) = w.size() > 2 ? w[2] : "";
    }

    static void LastShape(const Words& w) {
        ShapeRec& s = g_model.g_aShapes.back();
        if (w[1] == "area") s.area = Num(w[2]);
        if (w[1] == "undiscardable") s.undiscardable = L(w[2]);
        if (w[1] == "discarded") s.discarded = L(w[2]);
    }

    static void TraceRecord(const Words& w) {
        TraceRec t;
        t.layer = L(w[1]);
        t.startNode = L(w[2]);
        t.endNode = L(w[3]);
        t.width = w[5] == "deleted" ? kDeletedTraceWidth : Num(w[5]);
        t.color = L(Extra(w, "color", "0"));
        g_model.g_aTraces.push_back(t);
        g_model.g_aTraceNets.push_back(Net(w[4]));
        g_model.g_aTraceFlags.push_back(0);
    }

    static void Layer(const Words& w) {
        LayerRec& l = g_model.g_aLayers[L(w[1])];
        if (w[2] == "thickness") l.thickness = Num(w[3]);
        if (w[2] == "hasShapes") l.hasShapes = static_cast<uint16_t>(L(w[3]));
    }

    static void TraceSet(const Words& w) {
        const size_t t = static_cast<size_t>(L(w[1]));
        if (w[2] == "flag") g_model.g_aTraceFlags[t] = static_cast<uint8_t>(L(w[3]));
        if (w[2] == "width")
            g_model.g_aTraces[t].width = w[3] == "deleted" ? kDeletedTraceWidth : Num(w[3]);
    }

    void Stack(const Words& w) {
        PadStackRec stack;
        stack.name = w[1];
        stack.drill = Num(w[2]);
        stack_ = &g_model.g_padStacks.Set(w[1], std::move(stack));
    }

    void Pad(const Words& w) {
        PadEntry entry;
        entry.layerName = w[1] == "\"\"" ? "" : w[1];
        if (w[2] != "-") entry.regular = pad_ = PadDef(w, 2);
        stack_->entries.push_back(entry);
    }

    static PadStackRec* StackNamed(const std::string& name) {
        return g_model.g_padStacks.Find(name);
    }

    static void Via(const Words& w) {
        ViaRec via;
        via.x = Num(w[1]);
        via.y = Num(w[2]);
        via.net = Net(w[3]);
        via.startLayer = static_cast<uint16_t>(L(w[4]));
        via.endLayer = static_cast<uint16_t>(L(w[5]));
        via.padStack = StackNamed(w[6]);
        via.rotation = Num(Extra(w, "rot", "0"));
        via.noContact = static_cast<uint8_t>(L(Extra(w, "nocontact", "0")));
        g_model.g_aVias.push_back(via);
    }

    static void Node(const Words& w) {
        const NodeRec* n = nullptr;
        AddNode(&n, Num(w[1]), Num(w[2]), L(w[3]), Net(w[4]), static_cast<uint16_t>(L(w[5])),
                w.size() > 7 && w[6].find('=') == std::string::npos ? StackNamed(w[6]) : nullptr,
                w.size() > 7 && w[6].find('=') == std::string::npos ? Num(w[7]) : 0.0);
        n->label = Extra(w, "label", n->label);
        n->mirrored = L(Extra(w, "mirrored", std::to_string(n->mirrored)));
    }

    static void ViaOut(const Words& w) {
        ViaOutRec v;
        v.number = static_cast<uint32_t>(L(w[1]));
        v.upperNode = 0;
        v.lowerNode = 1;
        v.net = Net(w[2]);
        v.upperNet = Net(w[3]);
        v.lowerNet = Net(w[4]);
        v.padStack = StackNamed(w[5]);
        v.rotation = 90;
        g_model.g_aViaOut.push_back(v);
    }

    static void NodeSet(const Words& w) {
        NodeRec* n = NodeById(L(w[1]));
        if (w[2] == "label") n->label = w[3];
        if (w[2] == "traceRefs") n->traceRefs = static_cast<uint32_t>(L(w[3]));
        if (w[2] == "viaRefs") n->viaRefs = static_cast<uint32_t>(L(w[3]));
        if (w[2] == "net") n->net = L(w[3]);
    }

    static void NodeRow(const Words& w) {
        for (int i = 0; i < L(w[1]); ++i)
            AddNode(nullptr, Num(w[2]) + i, 0.0, L(w[3]), 0, 1, nullptr, 0.0);
    }

    // The nodes of layer L that the walk from (X0, -1) to (X1, 1) visits, up to node STOP.
    static std::string Walk(const Words& w) {
        std::string t;
        WalkNodeRange(L(w[2]), Num(w[3]), -1.0, Num(w[4]), 1.0, [&](const NodeRec& node) {
            t += " " + std::to_string(node.id);
            return w.size() > 5 && node.id == static_cast<uint32_t>(L(w[5]));
        });
        return t.substr(t.empty() ? 0 : 1) + "\n";
    }

    static std::string Pass(const Words& w) {
        const std::string& p = w[1];
        if (p == "vias") return MakeVias() == 1 ? "" : "MakeVias failed\n";
        if (p == "sort") SortShapes();
        if (p == "boxes") BuildShapeBoxes();
        if (p == "rebuild") RebuildNodeArray(), RebuildNodeIndex();
        if (p == "makenode") MakeNode();
        if (p == "flip") FlipMirroredBottomNodes();
        if (p == "voidcheck") CheckUndiscardableVoids();
        if (p == "kickout") KickOutTrivialTrace();
        if (p == "tiny") ClearTinyTraces();
        if (p == "gaps") GenerateTraceGaps();
        if (p == "round") RunShapeCleanupRound();
        if (p == "separate") SetLayerExtents(), SeparateTouchingEdges();
        if (p == "clean") CleanPolygon(L(w[2]));
        if (p == "nullstreams") WritePadStackLibrary(nullptr), WriteMirroredPadStacks(nullptr);
        return Known(
            " sort boxes rebuild makenode flip voidcheck kickout tiny gaps round separate clean "
            "nullstreams ",
            p);
    }

    static std::string Write(const std::string& what) {
        const std::map<std::string, void (*)(FILE*)> writers = {
            {"library", WritePadStackLibrary}, {"mirrored", WriteMirroredPadStacks},
            {"packageend", WritePackageEnd},   {"shapes", WriteShapes},
            {"layers", WriteLayers},           {"nodes", WriteNodes},
            {"traces", WriteTraces},           {"vias", WriteVias}};
        auto writer = writers.find(what);
        if (writer == writers.end()) return "unknown word " + what + "\n";
        return testing_support::CaptureOutput(writer->second);
    }

    static std::string Print(const Words& w) {
        if (w[1] == "shapes") return fixtures::ShapesAsText();
        if (w[1] == "flags") return Flags();
        if (w[1] == "boxes") return Boxes();
        if (w[1] == "count")
            return std::to_string(g_model.ShapeCount()) + " shapes " +
                   std::to_string(g_model.g_aShapeBoxes.size()) + " boxes\n";
        if (w[1] == "nodes") {
            std::string t;
            for (const NodeRec& n : g_model.g_aNodes) t += NodeText(&n);
            return t;
        }
        if (w[1] == "run") {
            const ShapeRun run = FindLayerShapeRun(L(w[2]));
            return std::to_string(run.first) + "-" + std::to_string(run.end) + "\n";
        }
        if (w[1] == "state") return TraceState();
        if (w[1] == "walk") return Walk(w);
        if (w[1] == "byid") return NodeText(NodeById(L(w[2])));
        if (w[1] == "index") {
            std::string t;
            for (uint32_t place : g_model.g_aNodeIndex) t += " " + std::to_string(place);
            return t.substr(t.empty() ? 0 : 1) + "\n";
        }
        if (w[1] == "capacity")
            return std::to_string(g_model.g_aNodes.size()) + " of " +
                   std::to_string(g_model.g_aNodes.capacity()) + " from node " +
                   std::to_string(g_model.g_aNodes.empty() ? -1 : g_model.g_aNodes[0].id) + "\n";
        if (w[1] == "pointin" || w[1] == "strict") return PointTests(w);
        if (w[1] == "area") {
            char buf[32];
            std::snprintf(buf, sizeof buf, "%.17g\n", ShapeArea(L(w[2])));
            return buf;
        }
        if (w[1] == "inside") {
            std::string t;
            for (int32_t i = 0; i < g_model.TraceCount(); ++i)
                t += " " + std::to_string(TraceInVoid(i, L(w[2])));
            return t.substr(t.empty() ? 0 : 1) + "\n";
        }
        if (w[1] == "gaps") {
            std::string t;
            for (const TraceRec& trace : g_model.g_aTraces) t += " " + std::to_string(trace.gap);
            return t.substr(t.empty() ? 0 : 1) + "\n";
        }
        if (w[1] == "node") return NodeText(FindNode(L(w[2]), Num(w[3]), Num(w[4])));
        if (w[1] == "log") {
            std::string text = testing_support::ReadStream(g_options.g_pLogFile);
            std::fclose(g_options.g_pLogFile);
            g_options.g_pLogFile = nullptr;
            return text;
        }
        return "unknown word " + w[1] + "\n";
    }

    // "pointin S box|nobox x,y..": PointInShape; "strict S N x,y..": PointInPolygonStrict on
    // the first N points of shape S.
    static std::string PointTests(const Words& w) {
        const int32_t i = L(w[2]);
        const ShapePoint* points = &g_model.g_aShapePoints[static_cast<size_t>(
            g_model.g_aShapes[static_cast<size_t>(i)].firstPoint)];
        std::string t;
        for (const ShapePoint& p : Points(w, 4))
            t += " " + std::to_string(w[1] == "pointin"
                                          ? PointInShape(i, p.x, p.y, w[3] == "box")
                                          : PointInPolygonStrict(p.x, p.y, i, points, L(w[3])));
        return t.substr(1) + "\n";
    }

    std::unique_ptr<testing_support::ScratchDir> dir_;
    std::string ndd_;
    PadStackRec* stack_ = nullptr;
    std::shared_ptr<PadDefRec> pad_;
};

}  // namespace

std::vector<Step> Run(const std::string& script) {
    testing_support::ResetGlobals();
    std::vector<Step> steps;
    std::istringstream in(script);
    int number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.compare(0, 1, "#") == 0) continue;
        if (line.compare(0, 2, "> ") != 0) {
            if (!steps.empty()) steps.back().expected += line + "\n";
            continue;
        }
        Step step;
        step.line = number;
        step.command = line.substr(2);
        steps.push_back(step);
    }
    Runner runner;
    for (Step& step : steps) step.actual = runner.Do(step.command);
    if (g_options.g_pLogFile) std::fclose(g_options.g_pLogFile), g_options.g_pLogFile = nullptr;
    return steps;
}

}  // namespace board_script
