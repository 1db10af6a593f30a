#include "deck/SectionOrder.h"

#include "deck/Fields.h"

namespace qfxview {

namespace {

enum Phase {
    kStart,
    kTitle,
    kTransient,
    kMesh,
    kPackage,
    kShapes,
    kLayers,
    kNodes,
    kTraces,
    kVias,
    kPadStacks,
    kPackageEnd,
    kCircuit,
    kLinkage,
    kEnd,
};

const char* const kPhaseNames[] = {
    "start",          "title line",       "'.Transient' line",
    "'.Mesh' line",   "'.Package' line",  "shape sections",
    "layer lines",    "node lines",       "trace lines",
    "via lines",      "padstack library", "'.EndPackage'",
    "circuit blocks", "linkage blocks",   "'.End'",
};

// The phase of a statement's kind; -1 for statements that may stand anywhere.
int PhaseOf(Kind kind) {
    switch (kind) {
        case Kind::Title:
            return kTitle;
        case Kind::Transient:
            return kTransient;
        case Kind::Mesh:
            return kMesh;
        case Kind::PackageHead:
            return kPackage;
        case Kind::ShapeOpen:
        case Kind::ShapeEnd:
        case Kind::Circle:
        case Kind::Box:
        case Kind::Polygon:
            return kShapes;
        case Kind::SignalLayer:
        case Kind::PlaneLayer:
        case Kind::MediumLayer:
        case Kind::MediumPseudo:
        case Kind::PlanePseudo:
        case Kind::Patch:
            return kLayers;
        case Kind::Node:
            return kNodes;
        case Kind::Trace:
            return kTraces;
        case Kind::Via:
            return kVias;
        case Kind::PadStackDef:
        case Kind::PadStackEnd:
        case Kind::PadDef:
        case Kind::PadDefEnd:
        case Kind::Regular:
        case Kind::Anti:
            return kPadStacks;
        case Kind::PackageEnd:
            return kPackageEnd;
        case Kind::PartialCkt:
        case Kind::PartialCktEnd:
            return kCircuit;
        case Kind::Connect:
        case Kind::ConnectEnd:
            return kLinkage;
        case Kind::End:
            return kEnd;
        default:
            return -1;
    }
}

// Statements that stand once in a deck.
bool IsSingle(int phase) {
    return phase == kTitle || phase == kTransient || phase == kMesh || phase == kPackage ||
           phase == kPackageEnd || phase == kEnd;
}

bool IsElement(Kind kind) {
    return kind == Kind::Circle || kind == Kind::Box || kind == Kind::Polygon;
}

}  // namespace

void SectionOrder::Error(uint64_t line, const char* rule, const std::string& text) {
    findings_.Add(line, Severity::Error, rule, text);
}

// The statements that must stand before the given phase and did not.
void SectionOrder::Missing(int upTo, uint64_t line, const char* before) {
    for (int p : {kTitle, kTransient, kMesh, kPackage, kPackageEnd}) {
        if (p >= upTo || seen_[p]) continue;
        seen_[p] = true;  // reported once
        Error(line, "missing-statement",
              std::string("no ") + kPhaseNames[p] + " before this " + before);
    }
}

// A statement that cannot stand inside the open section closes it, with a finding.
void SectionOrder::CloseUnclosed(const Statement& s) {
    if (open_ == Open::None) return;
    Error(s.line, "section-balance",
          "'" + FirstWord(openHead_) + "' opened at line " + std::to_string(openLine_) +
              " is not closed before this " + KindName(s.kind));
    // An open .PadDef falls back to its .PadStackDef when this statement can go on there;
    // one finding says enough.
    if (open_ == Open::PadDef && (s.kind == Kind::PadStackEnd || s.kind == Kind::PadDef)) {
        open_ = Open::PadStack, openLine_ = padStackLine_, openHead_ = padStackHead_;
        return;
    }
    open_ = Open::None;
}

bool SectionOrder::InOrder(const Statement& s) {
    int phase = PhaseOf(s.kind);
    if (phase < 0) return true;
    if (phase_ == kEnd) {
        if (!afterEndReported_) Error(s.line, "section-order", "statement after '.End'");
        afterEndReported_ = true;
        return false;
    }
    if (phase < phase_) {
        Error(s.line, "section-order",
              std::string(KindName(s.kind)) + " after the " + kPhaseNames[phase_]);
        return false;
    }
    if (phase == phase_ && IsSingle(phase)) {
        Error(s.line, "section-order", std::string("second ") + KindName(s.kind));
        return false;
    }
    Missing(phase, s.line, KindName(s.kind));
    seen_[phase] = true;
    phase_ = phase;
    return true;
}

// Statements inside an open section, and the closing statements.
Place SectionOrder::Body(const Statement& s) {
    switch (open_) {
        case Open::Shape:
            if (IsElement(s.kind)) return Place::ShapeBody;
            if (s.kind == Kind::ShapeEnd) return open_ = Open::None, Place::Free;
            break;
        case Open::PadDef:
            if (s.kind == Kind::Regular || s.kind == Kind::Anti) return Place::PadBody;
            if (s.kind == Kind::PadDefEnd) {
                open_ = Open::PadStack, openLine_ = padStackLine_, openHead_ = padStackHead_;
                return Place::Free;
            }
            break;
        case Open::PadStack:
            if (s.kind == Kind::PadStackEnd) return open_ = Open::None, Place::Free;
            break;
        case Open::PartialCkt:
            if (s.kind == Kind::PartialCktEnd) return open_ = Open::None, Place::Free;
            if (s.kind == Kind::Other || s.kind == Kind::Orphan) return Place::CircuitBody;
            break;
        case Open::Connect:
            if (s.kind == Kind::ConnectEnd) return open_ = Open::None, Place::Free;
            // A pin of any name may stand at the head of a link line.
            if (s.kind != Kind::Comment && s.head[0] != '.') return Place::LinkageBody;
            break;
        case Open::None:
            break;
    }
    return Place::Skip;
}

Place SectionOrder::Take(const Statement& s) {
    if (s.kind == Kind::Comment) return Place::Free;
    if (open_ != Open::None) {
        Place place = Body(s);
        if (place != Place::Skip) return place;
        // PadDef opens inside a PadStackDef; anything else closes what is open.
        if (!(open_ == Open::PadStack && s.kind == Kind::PadDef)) {
            CloseUnclosed(s);
            if (open_ != Open::None && (place = Body(s)) != Place::Skip) return place;
        }
    }
    if (s.kind == Kind::Other || s.kind == Kind::Orphan) return Place::Free;
    if (!InOrder(s)) return Place::Skip;
    const char* stray = nullptr;
    switch (s.kind) {
        case Kind::ShapeOpen:
            open_ = Open::Shape;
            break;
        case Kind::PadStackDef:
            open_ = Open::PadStack;
            break;
        case Kind::PartialCkt:
            open_ = Open::PartialCkt;
            break;
        case Kind::Connect:
            open_ = Open::Connect;
            break;
        case Kind::PadDef:
            if (open_ != Open::PadStack) {
                stray = "outside a '.PadStackDef' section";
                break;
            }
            padStackLine_ = openLine_, padStackHead_ = openHead_;
            open_ = Open::PadDef;
            break;
        case Kind::Circle:
        case Kind::Box:
        case Kind::Polygon:
            stray = "outside a '.Shape' section";
            break;
        case Kind::Regular:
        case Kind::Anti:
            stray = "outside a '.PadDef' section";
            break;
        case Kind::ShapeEnd:
        case Kind::PadStackEnd:
        case Kind::PadDefEnd:
        case Kind::PartialCktEnd:
        case Kind::ConnectEnd:
            stray = "with no section open";
            break;
        default:
            return Place::Free;
    }
    if (stray) {
        Error(s.line, "section-balance", std::string(KindName(s.kind)) + " " + stray);
        return Place::Skip;
    }
    openLine_ = s.line;
    openHead_ = s.head;
    return Place::Free;
}

void SectionOrder::Finish(uint64_t lastLine, bool cutOff) {
    if (phase_ == kStart && open_ == Open::None) {
        // Nothing but blank lines and comments: a translation that stopped before writing.
        Error(lastLine, "missing-statement", "the deck is empty");
        return;
    }
    if (cutOff) Error(lastLine, "cut-off", "last line has no line end: the deck is cut off");
    if (open_ != Open::None)
        Error(lastLine, "section-balance",
              "'" + FirstWord(openHead_) + "' opened at line " + std::to_string(openLine_) +
                  " is not closed at the end of the deck");
    Missing(kEnd, lastLine, "end of the deck");
    if (!seen_[kEnd]) Error(lastLine, "missing-statement", "no '.End' at the end of the deck");
}

}  // namespace qfxview
