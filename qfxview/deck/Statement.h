#pragma once
// One statement of a deck: its first line and the continuation lines ("+" in the first
// column) that follow it, with the kind that its leading word gives it.
#include <cstdint>
#include <string>
#include <vector>

#include "deck/DeckLines.h"

namespace qfxview {

enum class Kind {
    Title,
    Transient,
    Mesh,
    PackageHead,
    ShapeOpen,
    ShapeEnd,
    Circle,
    Box,
    Polygon,
    SignalLayer,
    PlaneLayer,
    MediumLayer,
    MediumPseudo,
    PlanePseudo,
    Patch,
    Node,
    Trace,
    Via,
    PadStackDef,
    PadStackEnd,
    PadDef,
    PadDefEnd,
    Regular,
    Anti,
    PackageEnd,
    PartialCkt,
    PartialCktEnd,
    Connect,
    ConnectEnd,
    End,
    Comment,
    Orphan,  // a continuation line with no statement before it
    Other,   // any other leading word: a body line of a block, or unknown
};

// The kind of a statement by its first line alone.
Kind KindOf(const std::string& head);
// How a finding names a statement of this kind ("node line", "'.EndShape'").
const char* KindName(Kind kind);

struct Statement {
    Kind kind = Kind::Other;
    uint64_t line = 0;              // number of the first line
    std::string head;               // the first line
    std::vector<std::string> more;  // continuation lines, each with its "+"
    size_t moreCount = 0;           // how many of them are in use
};

// Groups the lines of a deck into statements; blank lines stand between statements and are
// passed over; a continuation line after a blank line continues nothing. Keeps one line of
// look-ahead and the longest statement's lines, no more.
class StatementReader {
  public:
    explicit StatementReader(DeckLines& lines) : lines_(lines) {}
    bool Next(Statement& statement);
    // Whether the deck's last line had no line end.
    bool CutOff() const { return lines_.LastLineUnended(); }

  private:
    bool Fill();
    DeckLines& lines_;
    std::string ahead_;
    uint64_t aheadNumber_ = 0;
    bool haveAhead_ = false;
    bool blankBefore_ = false;  // a blank line stands between the statement and ahead_
    bool done_ = false;
};

}  // namespace qfxview
