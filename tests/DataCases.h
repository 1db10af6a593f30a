#pragma once
// Cases kept as text in one data file, so that a table of inputs and expected lines need not
// be written in C++. A line "== TITLE" opens a case; its input lines follow up to a line that
// begins with "--", whose other words are the case's arguments; the expected lines run up to
// the next "==" line. A "--|" line instead of "--" ends the input without its last line feed.
#include <algorithm>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "TestSupport.h"

namespace testing_support {

// Every digit of a number, so that a data file compares it exactly.
inline std::string Exact(double v) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.17g", v);
    return buf;
}

struct DataCase {
    std::string title, input, expected;
    std::vector<std::string> args;
    bool Has(const std::string& word) const {
        return std::find(args.begin(), args.end(), word) != args.end();
    }
};

inline std::vector<DataCase> DataCases(const std::string& name) {
    std::vector<DataCase> cases;
    bool inInput = false;
    for (const std::string& line : SplitLines(DataFile(name))) {
        if (line.compare(0, 3, "== ") == 0) {
            cases.push_back({line.substr(3), "", "", {}});
            inInput = true;
        } else if (cases.empty()) {
            continue;  // a head of comments
        } else if (inInput && line.compare(0, 2, "--") == 0) {
            inInput = false;
            if (line.compare(0, 3, "--|") == 0 && !cases.back().input.empty())
                cases.back().input.pop_back();
            std::istringstream words(line.substr(line.compare(0, 3, "--|") == 0 ? 3 : 2));
            for (std::string word; words >> word;) cases.back().args.push_back(word);
        } else {
            (inInput ? cases.back().input : cases.back().expected) += line + "\n";
        }
    }
    return cases;
}

}  // namespace testing_support
