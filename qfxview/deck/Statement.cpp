#include "deck/Statement.h"

#include <cstring>

#include "deck/Fields.h"

namespace qfxview {

namespace {

bool StartsWith(const std::string& s, const char* prefix) {
    return s.compare(0, std::strlen(prefix), prefix) == 0;
}

Kind DotKind(const std::string& word) {
    static const struct {
        const char* word;
        Kind kind;
    } kDotWords[] = {
        {".Transient", Kind::Transient},
        {".Mesh", Kind::Mesh},
        {".Package", Kind::PackageHead},
        {".Shape", Kind::ShapeOpen},
        {".EndShape", Kind::ShapeEnd},
        {".PadStackDef", Kind::PadStackDef},
        {".EndPadStackDef", Kind::PadStackEnd},
        {".PadDef", Kind::PadDef},
        {".EndPadDef", Kind::PadDefEnd},
        {".EndPackage", Kind::PackageEnd},
        {".PartialCkt", Kind::PartialCkt},
        {".EndPartialCkt", Kind::PartialCktEnd},
        {".Connect", Kind::Connect},
        {".EndC", Kind::ConnectEnd},
        {".End", Kind::End},
    };
    for (const auto& entry : kDotWords)
        if (word == entry.word) return entry.kind;
    return Kind::Other;
}

}  // namespace

Kind KindOf(const std::string& head) {
    if (head.empty()) return Kind::Other;
    if (head[0] == '+') return Kind::Orphan;
    if (head[0] == '*') return Kind::Comment;
    if (head[0] == '.') return DotKind(FirstWord(head));
    // Class words of object names; the longer word before the shorter one it begins with.
    static const struct {
        const char* prefix;
        Kind kind;
    } kPrefixes[] = {
        {"Title ", Kind::Title},
        {"Circle", Kind::Circle},
        {"Box", Kind::Box},
        {"Polygon", Kind::Polygon},
        {"Signal$", Kind::SignalLayer},
        {"Plane$", Kind::PlaneLayer},
        {"Medium$", Kind::MediumLayer},
        {"MediumPseudo", Kind::MediumPseudo},
        {"PlanePseudo", Kind::PlanePseudo},
        {"Patch$", Kind::Patch},
        {"Node", Kind::Node},
        {"Trace", Kind::Trace},
        {"Via", Kind::Via},
        {"Regular ", Kind::Regular},
        {"Anti ", Kind::Anti},
    };
    for (const auto& entry : kPrefixes)
        if (StartsWith(head, entry.prefix)) return entry.kind;
    return Kind::Other;
}

const char* KindName(Kind kind) {
    switch (kind) {
        case Kind::Title:
            return "title line";
        case Kind::Transient:
            return "'.Transient' line";
        case Kind::Mesh:
            return "'.Mesh' line";
        case Kind::PackageHead:
            return "'.Package' line";
        case Kind::ShapeOpen:
            return "'.Shape' line";
        case Kind::ShapeEnd:
            return "'.EndShape'";
        case Kind::Circle:
            return "circle element";
        case Kind::Box:
            return "box element";
        case Kind::Polygon:
            return "polygon element";
        case Kind::SignalLayer:
            return "signal layer line";
        case Kind::PlaneLayer:
            return "plane layer line";
        case Kind::MediumLayer:
            return "dielectric layer line";
        case Kind::MediumPseudo:
            return "added dielectric line";
        case Kind::PlanePseudo:
            return "added plane line";
        case Kind::Patch:
            return "patch statement";
        case Kind::Node:
            return "node line";
        case Kind::Trace:
            return "trace line";
        case Kind::Via:
            return "via line";
        case Kind::PadStackDef:
            return "'.PadStackDef' line";
        case Kind::PadStackEnd:
            return "'.EndPadStackDef'";
        case Kind::PadDef:
            return "'.PadDef' line";
        case Kind::PadDefEnd:
            return "'.EndPadDef'";
        case Kind::Regular:
            return "regular pad line";
        case Kind::Anti:
            return "anti pad line";
        case Kind::PackageEnd:
            return "'.EndPackage'";
        case Kind::PartialCkt:
            return "'.PartialCkt' line";
        case Kind::PartialCktEnd:
            return "'.EndPartialCkt'";
        case Kind::Connect:
            return "'.Connect' line";
        case Kind::ConnectEnd:
            return "'.EndC'";
        case Kind::End:
            return "'.End'";
        case Kind::Comment:
            return "comment";
        case Kind::Orphan:
            return "continuation line";
        case Kind::Other:
            return "statement";
    }
    return "statement";
}

bool StatementReader::Fill() {
    while (!haveAhead_ && !done_) {
        if (!lines_.Next(ahead_)) {
            done_ = true;
            break;
        }
        aheadNumber_ = lines_.Number();
        haveAhead_ = !ahead_.empty();
        if (!haveAhead_) blankBefore_ = true;
    }
    return haveAhead_;
}

bool StatementReader::Next(Statement& statement) {
    if (!Fill()) return false;
    statement.head.swap(ahead_);
    statement.line = aheadNumber_;
    statement.kind = KindOf(statement.head);
    statement.moreCount = 0;
    haveAhead_ = false;
    blankBefore_ = false;
    // An orphan continuation stands alone; it is reported, not joined to anything.
    if (statement.kind == Kind::Orphan) return true;
    while (Fill() && ahead_[0] == '+' && !blankBefore_) {
        if (statement.more.size() <= statement.moreCount) statement.more.emplace_back();
        statement.more[statement.moreCount++].swap(ahead_);
        haveAhead_ = false;
    }
    return true;
}

}  // namespace qfxview
