#include "ndd/Units.h"

#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"

namespace {

const char* const kUnitKeywords[] = {"%length", "%capacitance", "%resistance", "%inductance",
                                     "%voltage"};

bool IsUnitLine(const std::string& line) {
    for (const char* k : kUnitKeywords)
        if (StartsWith(line, k)) return true;
    return false;
}

void SetLengthScale(const std::string& word) {
    static const struct {
        const char* word;
        double mm;
    } kScales[] = {{"tn", 1e-5},  {"mil", 0.0254}, {"inch", 25.4}, {"mm", 1.0},
                   {"um", 0.001}, {"m", 1000.0},   {"cm", 10.0}};
    for (const auto& s : kScales)
        if (word == s.word) g_model.g_dbLengthScale = s.mm;
}

// The conductivity scale is set only once all five unit lines have been seen.
void SetConductivityScale() {
    const std::string* lengthWord = g_model.g_mapUnits.Find("%length");
    const std::string* resistanceWord = g_model.g_mapUnits.Find("%resistance");
    std::string length = lengthWord ? ToLower(Trim(*lengthWord)) : std::string();
    std::string resistance = resistanceWord ? ToLower(Trim(*resistanceWord)) : std::string();
    if (length.empty() || resistance.empty()) {
        g_model.g_dbConductivityScale = 1e8;
        return;
    }
    switch (resistance[0]) {
        case 'o':
            g_model.g_dbConductivityScale = 1000.0 / g_model.g_dbLengthScale;
            break;
        case 'm':
            g_model.g_dbConductivityScale = 1e6 / g_model.g_dbLengthScale;
            break;
        case 'u':
            g_model.g_dbConductivityScale = 1e9 / g_model.g_dbLengthScale;
            break;
        default:
            break;
    }
}

}  // namespace

void ParseUnits(const std::string& path) {
    auto stream = OpenNdd(path);
    if (!stream) return;
    g_model.g_mapUnits.Clear();
    int counted = 0;
    std::string line;
    while (stream->ReadLine(line, base::kNddLineBuffer)) {
        if (line.empty() || line[0] == '#' || line[0] == '\n') continue;
        if (!IsUnitLine(line)) continue;
        ++counted;
        int pos = kNoPosition;
        std::string keyword = StripQuotes(NddGetToken(line, pos));
        std::string word = ToLower(StripQuotes(NddGetToken(Mid(line, pos), pos)));
        if (keyword == "%length") SetLengthScale(word);
        g_model.g_mapUnits.Set(keyword, word);
        if (counted == 5) {
            SetConductivityScale();
            return;
        }
    }
}
