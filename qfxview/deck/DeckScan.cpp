#include "deck/DeckScan.h"

#include <algorithm>

#include "deck/Fields.h"

namespace qfxview {

namespace {

// A length as the writers print it: a number with "mm" behind it.
bool IsLength(const std::string& word) {
    if (word.size() < 3 || word.compare(word.size() - 2, 2, "mm") != 0) return false;
    char c = word[0] == '-' ? word[1] : word[0];
    return c >= '0' && c <= '9';
}

// The lengths of a line, its first word (a name) left out.
void LengthsOf(const std::string& line, std::vector<double>& out) {
    std::vector<std::string> words = Words(line);
    for (size_t i = 1; i < words.size(); ++i)
        if (IsLength(words[i])) out.push_back(Number(words[i]));
}

PadShape::Form FormOf(const std::string& word) {
    if (word == "Box") return PadShape::Box;
    if (word == "Square") return PadShape::Square;
    if (word == "Circle") return PadShape::Circle;
    if (word == "RoundedRect_X") return PadShape::RoundedX;
    if (word == "RoundedRect_Y") return PadShape::RoundedY;
    if (word == "Polygon") return PadShape::Polygon;
    return PadShape::None;
}

}  // namespace

void Extent::Add(double x, double y) {
    if (empty) {
        minX = maxX = x, minY = maxY = y, empty = false;
        return;
    }
    minX = std::min(minX, x), maxX = std::max(maxX, x);
    minY = std::min(minY, y), maxY = std::max(maxY, y);
}

std::vector<double> Lengths(const Statement& s) {
    std::vector<double> numbers;
    LengthsOf(s.head, numbers);
    for (size_t i = 0; i < s.moreCount; ++i) LengthsOf(s.more[i], numbers);
    return numbers;
}

PadShape ReadPadShape(const Statement& s) {
    PadShape pad;
    std::vector<std::string> words = Words(s.head);
    if (words.size() < 2) return pad;
    pad.form = FormOf(words[1]);
    std::vector<double> sizes;
    LengthsOf(s.head, sizes);
    if (sizes.size() > 0) pad.width = sizes[0];
    if (sizes.size() > 1) pad.height = sizes[1];
    for (size_t i = 0; i < s.moreCount; ++i) {
        const std::string& line = s.more[i];
        std::vector<double> numbers;
        LengthsOf(line, numbers);
        if (numbers.size() != 2) continue;
        if (line.find("offSetX") != std::string::npos)
            pad.offsetX = numbers[0], pad.offsetY = numbers[1];
        else
            pad.points.emplace_back(numbers[0], numbers[1]);
    }
    return pad;
}

int DeckScan::LayerIndex(const std::string& name) const {
    for (size_t i = 0; i < layers.size(); ++i)
        if (layers[i].name == name) return static_cast<int>(i);
    return -1;
}

void DeckScan::TakePad(const Statement& s, bool regular) {
    if (!padLayer_) return;
    (regular ? padLayer_->regular : padLayer_->anti) = ReadPadShape(s);
}

void DeckScan::Take(const Statement& s) {
    switch (s.kind) {
        case Kind::PackageHead:
            traceColor = ValueOf(s.head, "Trace_Color");
            viaColor = ValueOf(s.head, "Via_Color");
            holeColor = ValueOf(s.head, "Hole_Color");
            break;
        case Kind::Circle: {
            std::vector<double> n = Lengths(s);
            if (n.size() == 3)
                extent.Add(n[0] - n[2], n[1] - n[2]), extent.Add(n[0] + n[2], n[1] + n[2]);
            break;
        }
        case Kind::Node:
            extent.Add(Number(ValueOf(s.head, "X")), Number(ValueOf(s.head, "Y")));
            break;
        case Kind::Box:
        case Kind::Polygon: {
            std::vector<double> n = Lengths(s);
            if (s.kind == Kind::Box && n.size() == 4) n = {n[0], n[1], n[0] + n[2], n[1] + n[3]};
            for (size_t i = 0; i + 1 < n.size(); i += 2) extent.Add(n[i], n[i + 1]);
            break;
        }
        case Kind::SignalLayer:
        case Kind::PlaneLayer:
        case Kind::MediumLayer:
        case Kind::MediumPseudo:
        case Kind::PlanePseudo: {
            DeckLayer layer;
            layer.name = FirstWord(s.head);
            layer.kind = s.kind;
            layer.color = ValueOf(s.head, "Color");
            layer.thickness = Number(ValueOf(s.head, "Thickness"));
            layers.push_back(layer);
            break;
        }
        case Kind::PadStackDef: {
            std::vector<std::string> words = Words(s.head);
            padStack_ = words.size() > 1 ? &padStacks[words[1]] : nullptr;
            if (padStack_ && words.size() > 2) padStack_->drillRadius = Number(words.back());
            padLayer_ = nullptr;
            break;
        }
        case Kind::PadDef: {
            std::vector<std::string> words = Words(s.head);
            padLayer_ = padStack_ && words.size() > 1 ? &padStack_->layers[words[1]] : nullptr;
            break;
        }
        case Kind::Regular:
            TakePad(s, true);
            break;
        case Kind::Anti:
            TakePad(s, false);
            break;
        case Kind::PadStackEnd:
            padStack_ = nullptr, padLayer_ = nullptr;
            break;
        default:
            break;
    }
}

}  // namespace qfxview
