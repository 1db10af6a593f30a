#pragma once
// Checks a deck statement by statement as it streams past: the form of each statement,
// the order and balance of the sections, and the names it defines and refers to.
#include <cstdint>
#include <string>

#include "deck/DeckReferences.h"
#include "deck/Findings.h"
#include "deck/SectionOrder.h"
#include "deck/Statement.h"

namespace qfxview {

struct DeckCounts {
    uint64_t layers = 0, shapes = 0, nodes = 0, traces = 0, vias = 0, padStacks = 0;
    uint64_t blocks = 0, linkages = 0;
};

class DeckChecker {
  public:
    explicit DeckChecker(Findings& findings)
        : findings_(findings), order_(findings), references_(findings) {}
    void Take(const Statement& statement);
    void Finish(uint64_t lastLine, bool cutOff);
    const DeckCounts& Counts() const { return counts_; }

  private:
    void TakeOwn(const Statement& s);
    void TakeCircuitLine(const Statement& s);
    void TakeLinkLine(const Statement& s);
    void FormError(const Statement& s, const std::string& text);

    Findings& findings_;
    SectionOrder order_;
    DeckReferences references_;
    DeckCounts counts_;
};

// "deck.qfx: 7 layers, 12 shapes, ...; 0 errors, 1 warning"
std::string SummaryLine(const std::string& deckName, const DeckCounts& counts,
                        const Findings& findings);

// Checks the deck at path; returns false if it cannot be read.
bool CheckDeck(const std::string& path, Findings& findings, DeckCounts& counts);

}  // namespace qfxview
