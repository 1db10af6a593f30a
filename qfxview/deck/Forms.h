#pragma once
// The printf forms of the statements, as the translator's writers print them, and a matcher
// of lines against them.
#include <string>

#include "deck/Statement.h"

namespace qfxview {

// Matches a line against a form in which "{N}" stands for a name (one or more characters
// other than a blank), "{S}" for a shape element's name with its sign ("+" or "-") at the
// end, "{E}" for a number printed by %e, "{T}" by %.10e, "{F}" by %.6f and "{D}" by %d. Any
// other character of the form stands for itself. Numbers may be "inf" or "nan", as printf
// prints them.
bool MatchesForm(const char* form, const std::string& line);

// Whether a statement that stands on its own (outside a circuit or linkage block) has a form
// that the writers print, continuation lines included.
bool HasWriterForm(const Statement& statement);

// Whether a statement holds a number that printf printed as not finite ("inf", "-nan"); the
// first such word goes to word.
bool HoldsNonFinite(const Statement& statement, std::string& word);

// Lines of a block's body.
bool IsLinkLine(const std::string& line);           // "PIN $Package.NodeNAME"
bool IsPartialCktHead(const Statement& statement);  // passive or active header

}  // namespace qfxview
