#include "deck/Findings.h"

#include <algorithm>

namespace qfxview {

void Findings::Add(uint64_t line, Severity severity, const std::string& rule,
                   const std::string& text) {
    (severity == Severity::Error ? errors_ : warnings_)++;
    if (++perRule_[rule] <= kKeptPerRule) kept_.push_back({line, severity, text, rule});
}

std::string FormatFinding(const std::string& deckName, const Finding& f) {
    return deckName + ":" + std::to_string(f.line) + ": " +
           (f.severity == Severity::Error ? "error: " : "warning: ") + f.text + " [" + f.rule + "]";
}

std::vector<std::string> Findings::Lines(const std::string& deckName) const {
    std::vector<Finding> sorted(kept_);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    std::vector<std::string> lines;
    lines.reserve(sorted.size());
    for (const Finding& f : sorted) lines.push_back(FormatFinding(deckName, f));
    for (const auto& rule : perRule_)
        if (rule.second > kKeptPerRule)
            lines.push_back(deckName + ": " + std::to_string(rule.second - kKeptPerRule) +
                            " more findings [" + rule.first + "]");
    return lines;
}

}  // namespace qfxview
