#include "ndd/PadShapeReader.h"

#include <cmath>

#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

namespace {

constexpr int32_t kPadRectangle = 1;
constexpr int32_t kPadCircle = 2;
constexpr int32_t kPadPolygon = 3;
constexpr int32_t kPadOvalX = 4;
constexpr int32_t kPadOvalY = 5;

double Scale() {
    return g_model.g_dbLengthScale;
}

double NextNumber(NddWordReader& words) {
    return ToDouble(words.Next());
}

// x y pairs up to the y word that carries the ';'.
void ReadPolygon(NddWordReader& words, PadLibRec& shape) {
    shape.kind = kPadPolygon;
    while (!words.Ended()) {
        std::string x = words.Next();
        if (x.empty()) break;
        std::string y = words.Next(false);
        if (y.empty()) break;
        bool last = !y.empty() && y.back() == ';';
        if (last) y.pop_back();
        shape.points.emplace_back(ToDouble(x) * Scale(), ToDouble(y) * Scale());
        if (last) break;
    }
}

// A line with round ends along one axis is an oval: along X when the x words differ.
void ReadRoundLine(NddWordReader& words, PadLibRec& shape) {
    std::string x1 = words.Next();
    std::string y1 = words.Next();
    std::string x2 = words.Next();
    std::string y2 = words.Next();
    double w = NextNumber(words);
    if (!EqualsNoCase(x1, x2)) {
        shape.width = std::fabs(ToDouble(x2) - ToDouble(x1)) * Scale() + w * Scale();
        shape.height = w * Scale();
        shape.kind = kPadOvalX;
    } else {
        shape.width = w * Scale();
        shape.height = std::fabs(ToDouble(y2) - ToDouble(y1)) * Scale() + w * Scale();
        shape.kind = kPadOvalY;
    }
}

// "%line" x1 y1 x2 y2 and "%arc" x1 y1 x2 y2 x3 y3 records, all points in order.
void ReadPath(NddWordReader& words, std::string keyword, PadLibRec& shape, std::string& next) {
    shape.kind = kPadPolygon;
    while (!words.Ended() && (EqualsNoCase(keyword, "%line") || EqualsNoCase(keyword, "%arc"))) {
        int pairs = EqualsNoCase(keyword, "%arc") ? 3 : 2;
        for (int i = 0; i < pairs; ++i) {
            double x = NextNumber(words);
            double y = NextNumber(words);
            shape.points.emplace_back(x * Scale(), y * Scale());
        }
        keyword = words.Next();
    }
    next = keyword;
}

}  // namespace

std::string NddWordReader::Next(bool cutSemicolon) {
    if (!stream_) {
        rest_.clear();
        return std::string();
    }
    return NddNextWord(stream_, rest_, rest_, cutSemicolon);
}

void ReadPadShape(NddWordReader& words, const std::string& keyword, bool allowPath,
                  PadLibRec& shape, std::string& next) {
    next.clear();
    shape.kind = 0;
    if (EqualsNoCase(keyword, "%rectangle")) {
        double x1 = NextNumber(words);
        double y1 = NextNumber(words);
        double x2 = NextNumber(words);
        double y2 = NextNumber(words);
        shape.kind = kPadRectangle;
        shape.width = (x2 - x1) * Scale();
        shape.height = (y2 - y1) * Scale();
    } else if (EqualsNoCase(keyword, "%circle")) {
        NextNumber(words);
        NextNumber(words);
        double d = NextNumber(words);
        shape.kind = kPadCircle;
        shape.width = shape.height = d * Scale();
    } else if (EqualsNoCase(keyword, "%polygon")) {
        ReadPolygon(words, shape);
    } else if (EqualsNoCase(keyword, "%round_endpoint_line")) {
        ReadRoundLine(words, shape);
    } else if (allowPath && (EqualsNoCase(keyword, "%line") || EqualsNoCase(keyword, "%arc"))) {
        ReadPath(words, keyword, shape, next);
    } else {
        next = keyword;
    }
}

void SkipToWord(NddWordReader& words, std::string current, const char* word) {
    while (!EqualsNoCase(current, word) && !words.Ended()) current = words.Next();
}

void ReadInlineBoundary(NddWordReader& words, PadLibRec& shape) {
    words.Next();
    std::string keyword = words.Next();
    std::string next;
    ReadPadShape(words, keyword, false, shape, next);
    SkipToWord(words, next, "%end_boundary");
}
