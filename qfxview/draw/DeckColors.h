#pragma once
// The colour words of a deck as painter colours.
#include <QColor>
#include <string>

namespace qfxview {

// A colour word of the deck ("red", "darkyellow"); grey for a word that names none.
QColor DeckColor(const std::string& word);
// The paper behind everything, and what a void or an anti pad leaves.
QColor Background();

}  // namespace qfxview
