#pragma once
// The order of a deck's sections and the balance of its opening and closing statements:
// title, .Transient, .Mesh, .Package, shapes, layers, nodes, traces, vias, the padstack
// library, .EndPackage, circuit blocks, linkage blocks, .End.
#include <cstdint>
#include <string>

#include "deck/Findings.h"
#include "deck/Statement.h"

namespace qfxview {

// Where a statement stands, as the order tracker sees it.
enum class Place {
    Free,         // a statement of its own
    ShapeBody,    // an element of an open .Shape section
    PadBody,      // a pad line of an open .PadDef
    CircuitBody,  // a line of an open .PartialCkt block
    LinkageBody,  // a line of an open .Connect block
    Skip,         // already reported as out of place; nothing more to check
};

class SectionOrder {
  public:
    explicit SectionOrder(Findings& findings) : findings_(findings) {}
    // Takes the next statement; reports order and balance, and tells where it stands.
    Place Take(const Statement& statement);
    // At the end of the deck: unclosed sections and missing statements.
    void Finish(uint64_t lastLine, bool cutOff);

  private:
    enum class Open { None, Shape, PadStack, PadDef, PartialCkt, Connect };
    void CloseUnclosed(const Statement& statement);
    bool InOrder(const Statement& statement);
    void Missing(int upTo, uint64_t line, const char* before);
    Place Body(const Statement& statement);
    void Error(uint64_t line, const char* rule, const std::string& text);

    Findings& findings_;
    int phase_ = 0;
    Open open_ = Open::None;
    uint64_t openLine_ = 0;
    std::string openHead_;
    uint64_t padStackLine_ = 0;  // the .PadStackDef around an open .PadDef
    std::string padStackHead_;
    bool seen_[16] = {};
    bool afterEndReported_ = false;
};

}  // namespace qfxview
