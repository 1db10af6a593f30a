#pragma once
// What the checker found: one line each, "deck.qfx:LINE: error: text [rule]" in the manner of
// a compiler, and the counts of the summary line.
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace qfxview {

enum class Severity { Error, Warning };

struct Finding {
    uint64_t line;
    Severity severity;
    std::string text;
    std::string rule;
};

// Findings in the order of their lines. A deck that is wrong throughout would otherwise fill
// memory with findings: past a limit per rule only the count goes on.
class Findings {
  public:
    static constexpr size_t kKeptPerRule = 1000;
    void Add(uint64_t line, Severity severity, const std::string& rule, const std::string& text);
    size_t Errors() const { return errors_; }
    size_t Warnings() const { return warnings_; }
    // The kept findings sorted by line (stable), each formatted with the deck's name, and a
    // line for each rule whose findings were not all kept.
    std::vector<std::string> Lines(const std::string& deckName) const;

  private:
    std::vector<Finding> kept_;
    std::map<std::string, size_t> perRule_;
    size_t errors_ = 0;
    size_t warnings_ = 0;
};

std::string FormatFinding(const std::string& deckName, const Finding& finding);

}  // namespace qfxview
