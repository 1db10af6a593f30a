#include "ndd/PadBoundaries.h"

#include <cmath>

#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/TokenList.h"

namespace {

constexpr double kTwoPi = 6.283185307179586;

double Scale() {
    return g_model.g_dbLengthScale;
}

double Distance(const std::pair<double, double>& a, const std::pair<double, double>& b) {
    double dx = a.first - b.first;
    double dy = a.second - b.second;
    return std::sqrt(dx * dx + dy * dy);
}

void ReadCircle(const std::string& fields, PadBoundaryRec& rec) {
    auto t = NddTokenList(fields, 3);
    rec.nShape = 1;
    rec.x = ToDouble(t[0]) * Scale();
    rec.y = ToDouble(t[1]) * Scale();
    rec.dbRadius = ToDouble(t[2]) * Scale() * 0.5;
    rec.dbEquivalentRadius = rec.dbRadius;
}

void ReadRectangle(const std::string& fields, PadBoundaryRec& rec) {
    auto t = NddTokenList(fields, 4);
    double x1 = ToDouble(t[0]) * Scale();
    double y1 = ToDouble(t[1]) * Scale();
    double x2 = ToDouble(t[2]) * Scale();
    double y2 = ToDouble(t[3]) * Scale();
    rec.nShape = 2;
    rec.points = {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}};
    rec.dbEquivalentRadius = (2 * std::fabs(x2 - x1) + 2 * std::fabs(y2 - y1)) / kTwoPi * 0.75;
}

// Pairs of words up to "%end_boundary"; false when the words ran out first.
bool ReadPolygon(base::LineStream*& stream, const std::string& fields, PadBoundaryRec& rec) {
    rec.nShape = 3;
    rec.points.clear();
    std::string rest = fields;
    bool closed = false;
    while (stream || !rest.empty()) {
        std::string x = NddNextWord(stream, rest, rest);
        if (x.empty()) break;
        if (x == "%end_boundary") {
            closed = true;
            break;
        }
        std::string y = NddNextWord(stream, rest, rest);
        if (y.empty()) break;
        if (y == "%end_boundary") {
            closed = true;
            break;
        }
        rec.points.emplace_back(ToDouble(x) * Scale(), ToDouble(y) * Scale());
    }
    if (rec.points.empty()) return closed;
    rec.points.push_back(rec.points.front());
    // The edge from the first point to the second is left out of the perimeter.
    double perimeter = 0.0;
    for (size_t i = 2; i < rec.points.size(); ++i)
        perimeter += Distance(rec.points[i], rec.points[i - 1]);
    rec.dbEquivalentRadius = perimeter / kTwoPi * 0.75;
    return closed;
}

}  // namespace

std::shared_ptr<PadBoundaryRec> ParseBoundary(base::LineStream*& stream, std::string& line) {
    auto rec = std::make_shared<PadBoundaryRec>();
    bool haveShape = false;
    while (stream && stream->ReadLine(line, base::kNddLineBuffer)) {
        int pos = kNoPosition;
        std::string word = NddGetToken(line, pos);
        std::string fields = Mid(line, pos);
        if (word == "%outline") {
            rec->polarity = 1;
        } else if (word == "%cutout") {
            rec->polarity = 0;
        } else if (word == "%circle") {
            ReadCircle(fields, *rec);
            haveShape = true;
        } else if (word == "%rectangle") {
            ReadRectangle(fields, *rec);
            haveShape = true;
        } else if (word == "%polygon") {
            return ReadPolygon(stream, fields, *rec) ? rec : nullptr;
        } else if (word == "%end_boundary") {
            return haveShape ? rec : nullptr;
        }
    }
    return nullptr;
}

void ParsePadDef(const std::string& path) {
    g_model.g_mapPadBoundaries.Clear();
    auto file = OpenNdd(path);
    base::LineStream* stream = file.get();
    std::string line;
    while (stream && stream->ReadLine(line, base::kNddLineBuffer)) {
        if (!StartsWith(line, "%paddef")) continue;
        std::string name = StripQuotes(NddToken(line, 2));
        PadNameRec& pad = g_model.g_mapPadBoundaries.Set(name, PadNameRec{name, nullptr});
        pad.boundary = ParseBoundary(stream, line);
        while (stream && !Contains(line, "%end_paddef"))
            if (!stream->ReadLine(line, base::kNddLineBuffer)) break;
    }
}
