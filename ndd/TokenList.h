#pragma once
// The first tokens of one line, cut as repeated NddGetToken calls cut them: after a lone ";"
// every further token of the line reads as empty.
#include <string>
#include <string_view>
#include <vector>

// Tokens 1 to count of line (index 0 holds token 1); missing tokens are empty strings.
std::vector<std::string> NddTokenList(std::string_view line, size_t count,
                                      bool cutSemicolon = true);
