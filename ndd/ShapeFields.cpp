#include "ndd/ShapeFields.h"

#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

std::vector<std::string> FieldsAfter(std::string_view line, std::string_view keyword) {
    size_t at = line.find(keyword);
    std::string rest(at == std::string_view::npos ? line : line.substr(at));
    std::vector<std::string> fields;
    bool keywordSeen = false;
    for (;;) {
        int pos = kNoPosition;
        std::string token = NddGetToken(rest, pos);
        if (token.empty()) break;
        if (keywordSeen) fields.push_back(token);
        keywordSeen = true;
        rest = Mid(rest, pos);
    }
    return fields;
}

double LengthField(const std::vector<std::string>& fields, size_t i) {
    return i < fields.size() ? ToDouble(fields[i]) * g_model.g_dbLengthScale : 0.0;
}

bool AppendCoordinateWords(std::string_view text, std::vector<std::string>& words) {
    std::string rest(text);
    for (;;) {
        int pos = kNoPosition;
        std::string token = NddGetToken(rest, pos, false);
        if (token.empty()) return pos == kNoPosition && !rest.empty() && rest[0] != '\n';
        size_t semi = token.find(';');
        if (semi != std::string::npos) {
            if (semi > 0) words.push_back(token.substr(0, semi));
            return true;
        }
        words.push_back(token);
        rest = Mid(rest, pos);
    }
}

std::vector<ShapePoint> PointsOfWords(const std::vector<std::string>& words) {
    const double scale = g_model.g_dbLengthScale;
    std::vector<ShapePoint> points;
    points.reserve(words.size() / 2 + 1);
    for (size_t k = 0; k + 1 < words.size(); k += 2)
        points.push_back({ToDouble(words[k]) * scale, ToDouble(words[k + 1]) * scale});
    return points;
}
