#include "deck/Fields.h"

#include <algorithm>
#include <charconv>

namespace qfxview {

std::string FirstWord(const std::string& line) {
    return line.substr(0, line.find(' '));
}

std::string ValueOf(const std::string& line, const char* key) {
    std::string pattern = std::string(" ") + key + " = ";
    size_t at = line.find(pattern);
    if (at == std::string::npos) return std::string();
    size_t start = at + pattern.size();
    size_t end = line.find(' ', start);
    return line.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    size_t i = 0;
    while (i < line.size()) {
        size_t end = line.find(' ', i);
        if (end == std::string::npos) end = line.size();
        if (end > i) words.push_back(line.substr(i, end - i));
        i = end + 1;
    }
    return words;
}

// Read without the C locale's help: the program may run under any locale that Qt sets.
double Number(const std::string& word) {
    double value = 0.0;
    const char* begin = word.c_str();
    if (*begin == '+') ++begin;
    std::from_chars(begin, word.c_str() + word.size(), value);
    return value;
}

std::string NameBase(const std::string& name) {
    size_t cut = std::min(name.find("!!"), name.find("::"));
    return name.substr(0, cut);
}

std::string AfterDollar(const std::string& name) {
    size_t at = name.find('$');
    return at == std::string::npos ? std::string() : name.substr(at + 1);
}

}  // namespace qfxview
