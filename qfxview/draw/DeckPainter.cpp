#include "draw/DeckPainter.h"

#include <QPolygonF>
#include <QTransform>
#include <algorithm>

#include "deck/Fields.h"
#include "deck/NameHash.h"
#include "draw/DeckColors.h"
#include "draw/PadPath.h"

namespace qfxview {

DeckPainter::DeckPainter(const DeckScan& scan, const std::vector<LayerCanvas*>& canvases,
                         bool nodeMarks)
    : scan_(scan), canvases_(canvases), nodeMarks_(nodeMarks) {}

LayerCanvas* DeckPainter::Canvas(int layer) const {
    if (layer < 0 || layer >= static_cast<int>(canvases_.size())) return nullptr;
    return canvases_[static_cast<size_t>(layer)];
}

void DeckPainter::Take(const Statement& s) {
    switch (s.kind) {
        case Kind::ShapeOpen: {
            // "Shape$X" holds the shapes of the layer "Signal$X" or "Plane$X".
            std::string rest = AfterDollar(Words(s.head).at(1));
            shapeLayer_ = scan_.LayerIndex("Signal$" + rest);
            if (shapeLayer_ < 0) shapeLayer_ = scan_.LayerIndex("Plane$" + rest);
            sectionColor_ = DeckColor(ValueOf(s.head, "Color"));
            break;
        }
        case Kind::ShapeEnd:
            shapeLayer_ = -1;
            break;
        case Kind::Circle:
        case Kind::Box:
        case Kind::Polygon:
            Element(s);
            break;
        case Kind::Node:
            Node(s);
            break;
        case Kind::Trace:
            Trace(s);
            break;
        case Kind::Via:
            Via(s);
            break;
        default:
            break;
    }
}

void DeckPainter::Element(const Statement& s) {
    LayerCanvas* canvas = Canvas(shapeLayer_);
    if (!canvas) return;
    std::vector<double> n = Lengths(s);
    QPainterPath path;
    if (s.kind == Kind::Circle && n.size() == 3) {
        path.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
    } else if (s.kind == Kind::Box && n.size() == 4) {
        path.addRect(n[0], n[1], n[2], n[3]);
    } else if (s.kind == Kind::Polygon && n.size() >= 6) {
        QPolygonF polygon;
        for (size_t i = 0; i + 1 < n.size(); i += 2) polygon << QPointF(n[i], n[i + 1]);
        path.addPolygon(polygon);
        path.closeSubpath();
    } else {
        return;
    }
    const std::string name = FirstWord(s.head);
    const bool positive = !name.empty() && name.back() == '+';
    std::string color = ValueOf(s.head, "Color");
    canvas->Fill(path, !positive ? Background() : color.empty() ? sectionColor_ : DeckColor(color));
}

void DeckPainter::Node(const Statement& s) {
    NodePlace place;
    place.hash = HashName(FirstWord(s.head));
    place.x = static_cast<float>(Number(ValueOf(s.head, "X")));
    place.y = static_cast<float>(Number(ValueOf(s.head, "Y")));
    place.layer = scan_.LayerIndex(ValueOf(s.head, "Layer"));
    if (nodesSorted_)
        lateNodes_.emplace(place.hash, place);
    else
        nodes_.push_back(place);
    const QPointF at(place.x, place.y);
    std::string padStack = ValueOf(s.head, "PadStack");
    if (!padStack.empty())
        Pad(place.layer, padStack, at, Number(ValueOf(s.head, "AbsoluteRotation")),
            DeckColor(scan_.viaColor));
    if (nodeMarks_ && Canvas(place.layer)) Canvas(place.layer)->Mark(at, QColor(0, 0, 0));
}

const DeckPainter::NodePlace* DeckPainter::FindNode(const std::string& name) {
    if (!nodesSorted_) {
        std::sort(nodes_.begin(), nodes_.end(),
                  [](const NodePlace& a, const NodePlace& b) { return a.hash < b.hash; });
        nodesSorted_ = true;
    }
    uint64_t hash = HashName(name);
    auto it = std::lower_bound(nodes_.begin(), nodes_.end(), hash,
                               [](const NodePlace& n, uint64_t h) { return n.hash < h; });
    if (it != nodes_.end() && it->hash == hash) return &*it;
    auto late = lateNodes_.find(hash);
    return late == lateNodes_.end() ? nullptr : &late->second;
}

void DeckPainter::Trace(const Statement& s) {
    const NodePlace* from = FindNode(ValueOf(s.head, "StartingNode"));
    const NodePlace* to = FindNode(ValueOf(s.head, "EndingNode"));
    if (!from || !to) return;
    LayerCanvas* canvas = Canvas(from->layer);
    if (!canvas) return;
    std::string color = ValueOf(s.head, "Color");
    canvas->Line(QPointF(from->x, from->y), QPointF(to->x, to->y), Number(ValueOf(s.head, "Width")),
                 DeckColor(color.empty() ? scan_.traceColor : color));
}

void DeckPainter::Pad(int layer, const std::string& padStack, const QPointF& at, double rotation,
                      const QColor& color) {
    LayerCanvas* canvas = Canvas(layer);
    auto stack = scan_.padStacks.find(padStack);
    if (!canvas || stack == scan_.padStacks.end()) return;
    QTransform place;
    place.translate(at.x(), at.y());
    place.rotate(rotation);
    auto pads = stack->second.layers.find(scan_.layers[static_cast<size_t>(layer)].name);
    if (pads != stack->second.layers.end()) {
        canvas->Fill(place.map(PadPath(pads->second.anti)), Background());
        canvas->Fill(place.map(PadPath(pads->second.regular)), color);
    }
}

// A via stretch joins two nodes; its barrel passes every conductor layer between them, with
// the padstack's pad on each and the drill through all.
void DeckPainter::Via(const Statement& s) {
    const NodePlace* upper = FindNode(ValueOf(s.head, "UpperNode"));
    const NodePlace* lower = FindNode(ValueOf(s.head, "LowerNode"));
    if (!upper || !lower || upper->layer < 0 || lower->layer < 0) return;
    const QPointF at(upper->x, upper->y);
    const std::string padStack = ValueOf(s.head, "PadStack");
    const double rotation = Number(ValueOf(s.head, "AbsoluteRotation"));
    auto stack = scan_.padStacks.find(padStack);
    const double drill = stack == scan_.padStacks.end() ? 0.0 : stack->second.drillRadius;
    const QColor color = DeckColor(ValueOf(s.head, "Color"));
    const QColor hole = DeckColor(scan_.holeColor);
    for (int layer = std::min(upper->layer, lower->layer);
         layer <= std::max(upper->layer, lower->layer); ++layer) {
        LayerCanvas* canvas = Canvas(layer);
        if (!canvas) continue;
        Pad(layer, padStack, at, rotation, color);
        if (drill > 0.0) {
            QPainterPath path;
            path.addEllipse(at, drill, drill);
            canvas->Fill(path, hole);
        }
    }
}

}  // namespace qfxview
