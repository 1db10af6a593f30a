#include "ndd/PadStackSizes.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/TokenList.h"

namespace {

constexpr double kTwoPi = 6.283185307179586;
// The size pass's own rounding of 2 pi for rectangles and round lines.
constexpr double kTwoPiShort = 6.283186;
// A drill in TN units as a radius in mm, whatever the file's unit.
constexpr double kDrillToRadius = 200000.0;

bool IsComment(const std::string& line) {
    return !line.empty() && line[0] == '#';
}

// The text of a line after a keyword found in it.
std::string AfterKeyword(const std::string& line, const char* keyword) {
    size_t at = line.find(keyword);
    return at == std::string::npos ? std::string() : line.substr(at + std::strlen(keyword));
}

std::string FormatF(double value) {
    char buf[512];
    std::snprintf(buf, sizeof buf, "%f", value);
    return buf;
}

void Lower(PadStackSizeRec& size, double radius) {
    if (radius < size.dbMinRadius) size.dbMinRadius = radius;
}

// Each shape leaves its coordinates, as written, in the corner list.

// "%circle" x y d: d is the rest of the line less its last two characters.
double CircleRadius(const std::string& fields, PadStackSizeRec& size) {
    std::string rest = fields;
    std::vector<std::string> centre;
    for (int i = 0; i < 2; ++i) {
        int pos = kNoPosition;
        centre.push_back(NddGetToken(rest, pos));
        rest = Mid(rest, pos);
    }
    size.lstRoundCorners = centre;
    std::string d = rest.size() >= 2 ? rest.substr(0, rest.size() - 2) : std::string();
    return ToDouble(d) * 0.5 * 0.7 * g_model.g_dbLengthScale;
}

double RectangleRadius(const std::string& fields, PadStackSizeRec& size) {
    auto t = NddTokenList(fields, 4);
    size.lstRoundCorners = t;
    double x1 = ToDouble(t[0]), y1 = ToDouble(t[1]), x2 = ToDouble(t[2]), y2 = ToDouble(t[3]);
    return (2 * std::fabs(x1 - x2) + 2 * std::fabs(y1 - y2)) * 0.7 / kTwoPiShort;
}

// A line with round ends; along an axis the corner list holds its box, grown by half the
// width.
double RoundLineRadius(const std::string& fields, PadStackSizeRec& size) {
    auto t = NddTokenList(fields, 5);
    size.lstRoundCorners.assign(t.begin(), t.begin() + 4);
    double x1 = ToDouble(t[0]), y1 = ToDouble(t[1]), x2 = ToDouble(t[2]), y2 = ToDouble(t[3]);
    double w = ToDouble(t[4]);
    if (x1 == x2 || y1 == y2) {
        double half = w / 2;
        size.lstRoundCorners = {FormatF(std::min(x1, x2) - half), FormatF(std::min(y1, y2) - half),
                                FormatF(std::max(x1, x2) + half), FormatF(std::max(y1, y2) + half)};
    }
    return (2 * std::fabs(x1 - x2) + 2 * std::fabs(y1 - y2) + w * kTwoPiShort) * 0.7 / kTwoPiShort;
}

// The token after "%padstacktype", less its first and last character (its quotes or its
// '%' and ';'). A last character that belongs to the word itself is kept.
std::string PadStackTypeWord(const std::string& line) {
    int pos = kNoPosition;
    std::string token = NddGetToken(AfterKeyword(line, "%padstacktype"), pos, false);
    if (token.empty()) return token;
    token.erase(0, 1);
    if (!token.empty() && !std::isalnum(static_cast<unsigned char>(token.back()))) token.pop_back();
    return token;
}

void ReadPadStackType(const std::string& line, PadStackSizeRec& size, const std::string& path) {
    size.nHasType = 1;
    std::string type = PadStackTypeWord(line);
    if (Contains(type, "surface")) {
        size.nType = 1;
    } else if (Contains(type, "buried")) {
        size.nType = 3;
        ReadBuriedViaRule(size, path);
    } else if (Contains(type, "thruhole")) {
        size.nType = 2;
    }
}

// A "%pad" line naming a pad of the pad boundary map. False when the name is not in the map.
bool ReadPadRadius(const std::string& line, PadStackSizeRec& size) {
    auto t = NddTokenList(line, 4);
    if (t[3].empty()) return true;
    const PadNameRec* pad = g_model.g_mapPadBoundaries.Find(StripQuotes(t[3]));
    if (!pad) return false;
    if (pad->boundary && pad->boundary->dbEquivalentRadius < size.dbMinRadius && size.nType != 1)
        size.dbMinRadius = pad->boundary->dbEquivalentRadius;
    return true;
}

void ReadShapeRadii(const std::string& line, base::LineStream& stream, PadStackSizeRec& size) {
    if (Contains(line, "%round_endpoint_line"))
        Lower(size, RoundLineRadius(AfterKeyword(line, "%round_endpoint_line"), size));
    if (Contains(line, "%circle")) Lower(size, CircleRadius(AfterKeyword(line, "%circle"), size));
    if (Contains(line, "%rectangle"))
        Lower(size, RectangleRadius(AfterKeyword(line, "%rectangle"), size));
    if (Contains(line, "%polygon"))
        Lower(size, GetPolygonRadius(AfterKeyword(line, "%polygon"), stream, size));
}

// Lines of one record after its "%padstackdef" line. True when "%end_padstackdef" ended it.
bool ReadSizeLines(base::LineStream& stream, PadStackSizeRec& size, const std::string& path) {
    std::string line;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (IsComment(line)) continue;
        if (Contains(line, "%padstacktype")) ReadPadStackType(line, size, path);
        if (Contains(line, "%pad") && !Contains(line, "%padstackdef") &&
            !Contains(line, "%padstacktype") && !ReadPadRadius(line, size))
            continue;
        if (Contains(line, "%liblayer")) size.lstLibLayers.push_back(NddToken(line, 2));
        if (Contains(line, "%defaultliblayer")) size.lstLibLayers.push_back("%defailtliblayer");
        ReadShapeRadii(line, stream, size);
        if (Contains(line, "%end_boundary")) continue;
        if (Contains(line, "%drill"))
            size.dbMinRadius = ToDouble(NddToken(line, 2)) / kDrillToRadius;
        if (Contains(line, "%end_padstackdef")) return true;
    }
    return false;
}

void ReadSizeRecord(base::LineStream& stream, const std::string& defLine, PadStackSizeRec& size,
                    const std::string& path) {
    // The type and the end may stand on the "%padstackdef" line itself.
    if (Contains(defLine, "%padstacktype")) ReadPadStackType(defLine, size, path);
    if (!Contains(defLine, "%end_padstackdef")) ReadSizeLines(stream, size, path);
    if (!size.nHasType) GuessPadStackType(size);
}

void SkipToEndOfPadStack(base::LineStream& stream, std::string line) {
    while (!Contains(line, "%end_padstackdef"))
        if (!stream.ReadLine(line, base::kNddLineBuffer)) return;
}

struct LayerRule {
    std::string start, end;
};

// The first "%viarule"/"%pinrule" line of each padstack name, gathered once per input text
// so that many buried padstacks do not each read the whole file.
struct ViaRules {
    base::SharedText indexedText;
    base::StringMap<LayerRule> rules;
};
ViaRules g_viaRules;

const LayerRule* FindViaRule(const std::string& name, const std::string& path) {
    base::SharedText& indexedText = g_viaRules.indexedText;
    base::StringMap<LayerRule>& rules = g_viaRules.rules;
    auto stream = OpenNdd(path);
    if (!stream) return nullptr;
    if (indexedText != stream->Text()) {
        indexedText = stream->Text();
        rules.Clear();
        std::string line;
        while (stream->ReadLine(line, base::kNddLineBuffer)) {
            if (line.empty() || line[0] == '#' || line[0] == '\n') continue;
            if (!Contains(line, "%viarule") && !Contains(line, "%pinrule")) continue;
            auto t = NddTokenList(line, 4);
            std::string key = UnderscoreBlanksAndCommas(StripQuotes(t[1]));
            if (!rules.Contains(key))
                rules.Set(key, LayerRule{StripQuotes(t[2]), StripQuotes(t[3])});
        }
    }
    return rules.Find(name);
}

}  // namespace

void ForgetViaRules() {
    g_viaRules = ViaRules();
}

double GetPolygonRadius(const std::string& fields, base::LineStream& stream,
                        PadStackSizeRec& size) {
    std::vector<std::string> words;
    std::string text = fields;
    while (true) {
        std::string rest = text;
        while (true) {
            int pos = kNoPosition;
            std::string token = NddGetToken(rest, pos, false);
            if (token.empty()) break;
            bool last = token.back() == ';';
            if (last) token.pop_back();
            if (!token.empty()) words.push_back(token);
            if (last) break;
            rest = Mid(rest, pos);
        }
        if (Contains(text, ";")) break;
        do {
            if (!stream.ReadLine(text, base::kNddLineBuffer)) text.clear();
        } while (IsComment(text));
        if (text.empty()) break;
    }
    PointList points;
    for (size_t i = 0; i + 1 < words.size(); i += 2)
        points.emplace_back(ToDouble(words[i]), ToDouble(words[i + 1]));
    if (!points.empty()) points.push_back(points.front());
    double perimeter = 0.0;
    for (size_t i = 1; i < points.size(); ++i) {
        double dx = points[i].first - points[i - 1].first;
        double dy = points[i].second - points[i - 1].second;
        perimeter += std::sqrt(dx * dx + dy * dy);
    }
    size.lstRoundCorners.clear();
    if (points.size() >= 3) {
        const auto& last = points.back();
        const auto& third = points[points.size() - 3];
        size.lstRoundCorners = {FormatF(last.first), FormatF(last.second), FormatF(third.first),
                                FormatF(third.second)};
    }
    if (words.size() != 5) size.lstRoundCorners.clear();
    return perimeter / kTwoPi * 0.7;
}

void GuessPadStackType(PadStackSizeRec& size) {
    int lo = LastConductorLayer();
    int hi = FirstConductorLayer();
    if (size.lstLibLayers.empty()) {
        size.nType = lo == hi ? 1 : 2;
        return;
    }
    bool top = false, bottom = false;
    for (const std::string& raw : size.lstLibLayers) {
        std::string word = StripQuotes(raw);
        if (Contains(word, "%toppad")) {
            top = true;
        } else if (Contains(word, "%bottompad")) {
            bottom = true;
        } else if (Contains(word, "%all_layers")) {
            size.nType = 2;
        } else {
            for (int i = 0; g_model.g_aLayers && i < g_model.g_nLayerCount; ++i) {
                if (LayerName(g_model.g_aLayers[i]) != word) continue;
                lo = std::min(lo, i);
                hi = std::max(hi, i);
                break;
            }
        }
    }
    if (top)
        size.nType = bottom ? (lo == hi ? 1 : 2) : 1;
    else
        size.nType = bottom ? 1 : (lo == hi ? 1 : 2);
}

void ReadBuriedViaRule(PadStackSizeRec& size, const std::string& path) {
    if (const LayerRule* rule = FindViaRule(size.name, path)) {
        bool oneLayer = !rule->start.empty() && !rule->end.empty() && rule->start == rule->end;
        size.nType = oneLayer ? 1 : 2;
        return;
    }
    size.nType = 2;
    size.nViaRule = 0;
    ++g_model.nBuriedWithoutRule;
    if (FILE* log = g_options.g_pLogFile) {
        std::fprintf(log, "[PAD_STK%s]", std::to_string(g_model.nBuriedWithoutRule).c_str());
        std::fprintf(log,
                     " The PadStack(Buried) , %s's ,does not have Via rule to find out Start and "
                     "End layers \n",
                     size.name.c_str());
    }
}

void ParsePadStackSizes(const std::string& path) {
    g_model.g_lstPadStackSizes.clear();
    g_model.g_mapPadStackSizes.Clear();
    auto stream = OpenNdd(path);
    if (!stream) return;
    bool seen = false;
    std::string line;
    while (stream->ReadLine(line, base::kNddLineBuffer)) {
        if (seen && StartsWith(line, "%packagedef")) break;
        if (!StartsWith(line, "%padstackdef")) continue;
        seen = true;
        std::string name = UnderscoreBlanksAndCommas(StripQuotes(NddToken(line, 2)));
        // Such padstacks are unknown to the vias.
        if (Contains(name, "NULL")) {
            SkipToEndOfPadStack(*stream, line);
            continue;
        }
        g_model.g_lstPadStackSizes.push_back(std::make_unique<PadStackSizeRec>());
        PadStackSizeRec& size = *g_model.g_lstPadStackSizes.back();
        size.name = name;
        if (!g_model.g_mapPadStackSizes.Contains(name)) g_model.g_mapPadStackSizes.Set(name, &size);
        ReadSizeRecord(*stream, line, size, path);
    }
}
