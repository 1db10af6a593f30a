#include "ndd/TokenList.h"

#include "ndd/NddTokens.h"

std::vector<std::string> NddTokenList(std::string_view line, size_t count, bool cutSemicolon) {
    std::vector<std::string> tokens;
    tokens.reserve(count);
    std::string rest(line);
    while (tokens.size() < count) {
        int pos = kNoPosition;
        tokens.push_back(NddGetToken(rest, pos, cutSemicolon));
        rest = Mid(rest, pos);
    }
    return tokens;
}
