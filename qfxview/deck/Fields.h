#pragma once
// Pieces of a statement's text: words, "Key = value" pairs, lengths with their unit.
#include <string>
#include <vector>

namespace qfxview {

// The first blank-delimited word.
std::string FirstWord(const std::string& line);
// The word after "key = " ("" when the key is not there).
std::string ValueOf(const std::string& line, const char* key);
// The words of a line, split at single blanks; empty words (two blanks) are left out.
std::vector<std::string> Words(const std::string& line);
// A number with an optional "mm" behind it; 0 for text that is not one.
double Number(const std::string& word);
// A name up to its first "!!" or "::": the object and its counter, without label or net.
std::string NameBase(const std::string& name);
// The part of an object name behind its class word and "$" ("Shape$TOP" gives "TOP").
std::string AfterDollar(const std::string& name);

}  // namespace qfxview
