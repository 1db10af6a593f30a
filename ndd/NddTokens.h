#pragma once
// Tokens of the NDD format, shared by every NDD pass and the side-file readers.
//
// Blanks, tabs and line feeds separate tokens; a carriage return does not. A token that
// begins with a double quote runs to the next double quote, blanks included, and keeps its
// quotes until NddStripQuotes; an unclosed quote runs to the end of the text. A token that
// is exactly ";" counts as no token, and a ';' glued to the end of another token is cut
// unless the caller keeps it.
#include <string>
#include <string_view>

#include "base/TextFile.h"

// Callers set position to this before NddGetToken.
constexpr int kNoPosition = -100;

// First token of text; position receives the offset of the next token (the length of the
// text when none follows). An empty text or one that begins with a line feed gives "" and
// leaves position alone; a lone ";" gives "" and sets position to kNoPosition.
std::string NddGetToken(std::string_view text, int& position, bool cutSemicolon = true);

// Substring from position to the end; a negative start counts as 0, a start past the end
// gives "".
std::string Mid(std::string_view text, int position);

// Removes the quotes of a token; see the format's rules for a line feed at the end.
void NddStripQuotes(std::string& token);
std::string StripQuotes(std::string token);

// Like NddGetToken, going on to the following lines of the stream when text has no token.
// A line holding '#' anywhere is dropped. A line with no token, or the end of the file,
// closes the stream (stream becomes null) and gives "".
std::string NddNextWord(base::LineStream*& stream, std::string_view text, std::string& remainder,
                        bool cutSemicolon = true);

// The i-th token (1-based) of a line, in order, as repeated NddGetToken calls give it.
std::string NddToken(std::string_view line, int index, bool cutSemicolon = true);

// Blanks and commas become "_" (padstack and pad names).
std::string UnderscoreBlanksAndCommas(std::string name);

// Text helpers used by many passes.
bool StartsWith(std::string_view text, std::string_view prefix);
bool Contains(std::string_view text, std::string_view part);
bool EqualsNoCase(std::string_view a, std::string_view b);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);
std::string ToLower(std::string text);
std::string ToUpper(std::string text);
std::string Trim(std::string_view text, std::string_view chars = " \t\r\n");
// Number conversions that stop at the first character they cannot use: a bad number is 0.
double ToDouble(const std::string& text);
long ToLong(const std::string& text);
