#include "ndd/NddTokens.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace {

bool IsSeparator(char c) {
    return c == ' ' || c == '\t' || c == '\n';
}

}  // namespace

std::string NddGetToken(std::string_view text, int& position, bool cutSemicolon) {
    if (text.empty() || text[0] == '\n') return std::string();
    size_t i = 0;
    while (i < text.size() && IsSeparator(text[i])) ++i;
    if (i >= text.size()) {
        position = static_cast<int>(text.size());
        return std::string();
    }
    size_t start = i;
    if (text[i] == '"') {
        size_t close = text.find('"', i + 1);
        i = close == std::string_view::npos ? text.size() : close + 1;
    } else {
        while (i < text.size() && !IsSeparator(text[i])) ++i;
    }
    std::string token(text.substr(start, i - start));
    while (i < text.size() && IsSeparator(text[i])) ++i;
    if (token == ";") {
        position = kNoPosition;
        return std::string();
    }
    position = static_cast<int>(i);
    if (cutSemicolon && token.size() > 1 && token.back() == ';') token.pop_back();
    return token;
}

std::string Mid(std::string_view text, int position) {
    size_t start = position < 0 ? 0 : static_cast<size_t>(position);
    if (start >= text.size()) return std::string();
    return std::string(text.substr(start));
}

void NddStripQuotes(std::string& token) {
    if (token.empty()) return;
    if (token[0] == '"') {
        size_t cut = token.back() == '\n' ? 3 : 1;
        token = token.size() >= 1 + cut ? token.substr(1, token.size() - 1 - cut) : std::string();
    } else if (token.back() == '"') {
        token.pop_back();
    }
}

std::string StripQuotes(std::string token) {
    NddStripQuotes(token);
    return token;
}

std::string NddNextWord(base::LineStream*& stream, std::string_view text, std::string& remainder,
                        bool cutSemicolon) {
    int pos = kNoPosition;
    std::string token = NddGetToken(text, pos, cutSemicolon);
    if (!token.empty()) {
        remainder = Mid(text, pos);
        return token;
    }
    std::string line;
    while (stream) {
        if (!stream->ReadLine(line, base::kNddLineBuffer)) break;
        if (line.find('#') != std::string::npos) continue;
        pos = kNoPosition;
        token = NddGetToken(line, pos, cutSemicolon);
        if (token.empty()) break;
        remainder = Mid(line, pos);
        return token;
    }
    stream = nullptr;
    remainder.clear();
    return std::string();
}

std::string NddToken(std::string_view line, int index, bool cutSemicolon) {
    std::string rest(line);
    std::string token;
    for (int i = 0; i < index; ++i) {
        int pos = kNoPosition;
        token = NddGetToken(rest, pos, cutSemicolon);
        rest = Mid(rest, pos);
    }
    return token;
}

std::string UnderscoreBlanksAndCommas(std::string name) {
    for (char& c : name)
        if (c == ' ' || c == ',') c = '_';
    return name;
}

bool StartsWith(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && text.compare(0, prefix.size(), prefix) == 0;
}

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && EqualsNoCase(text.substr(0, prefix.size()), prefix);
}

std::string ToLower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string ToUpper(std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

std::string Trim(std::string_view text, std::string_view chars) {
    size_t b = text.find_first_not_of(chars);
    if (b == std::string_view::npos) return std::string();
    size_t e = text.find_last_not_of(chars);
    return std::string(text.substr(b, e - b + 1));
}

double ToDouble(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

long ToLong(const std::string& text) {
    return std::strtol(text.c_str(), nullptr, 10);
}
