#include "ndd/ShapeRoutines.h"

#include "geometry/ShapeTable.h"
#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"
#include "ndd/ShapeFields.h"

namespace {

ShapeRec FillShape(int32_t role, int32_t net, int32_t layer) {
    ShapeRec rec;
    rec.layer = layer;
    rec.net = net;
    rec.polarity = role;
    rec.geometry = kGeometryPolygon;
    return rec;
}

// Adds the points of one "%line" (4 numbers) or "%arc" (6 numbers) line of a path.
void AppendPathLine(const std::string& line, std::vector<ShapePoint>& points) {
    bool straight = Contains(line, "%line");
    std::vector<std::string> f = FieldsAfter(line, straight ? "%line" : "%arc");
    const size_t numbers = straight ? 4 : 6;
    for (size_t k = 0; k < numbers; k += 2)
        points.push_back({LengthField(f, k), LengthField(f, k + 1)});
}

}  // namespace

void AddCircleShape(const std::string& line, int32_t role, int32_t net, int32_t layer) {
    size_t at = line.find("%circle");
    std::string rest = at == std::string::npos ? line : line.substr(at);
    std::string fields[3];
    for (std::string& field : fields) {
        int pos = kNoPosition;
        field = NddGetToken(rest, pos);
        rest = Mid(rest, pos);
    }
    std::string size = rest.size() > 3 ? rest.substr(0, rest.size() - 3) : std::string();
    const double scale = g_model.g_dbLengthScale;
    double d = ToDouble(size) * scale;
    ShapeRec rec = FillShape(role, net, layer);
    rec.geometry = kGeometryCircle;
    AppendShape(rec, {{ToDouble(fields[1]) * scale, ToDouble(fields[2]) * scale}, {d, d}});
}

void AddRectangleShape(const std::string& line, int32_t role, int32_t net, int32_t layer) {
    std::vector<std::string> f = FieldsAfter(line, "%rectangle");
    double x1 = LengthField(f, 0), y1 = LengthField(f, 1);
    double x2 = LengthField(f, 2), y2 = LengthField(f, 3);
    AppendShape(FillShape(role, net, layer), {{x1, y1}, {x1, y2}, {x2, y2}, {x2, y1}, {x1, y1}});
}

void AddPolygonShape(const std::string& line, base::LineStream& stream, int32_t role, int32_t net,
                     int32_t layer) {
    std::vector<std::string> words;
    size_t at = line.find("%polygon");
    std::string first = at == std::string::npos ? line : line.substr(at + 8);
    bool ended = AppendCoordinateWords(first, words);
    std::string next;
    while (!ended && stream.ReadLine(next, base::kNddLineBuffer))
        ended = AppendCoordinateWords(next, words);
    if (words.size() % 2) words.pop_back();
    if (role == kPolarityCopper || role == kPolarityVoid) SplitPolygonOnRepeats(words, net, layer);
    std::vector<ShapePoint> points = PointsOfWords(words);
    if (!points.empty()) points.push_back(points.front());
    AppendShape(FillShape(role, net, layer), points);
}

void AddRoundLineShape(const std::string& line, int32_t role, int32_t net, int32_t layer) {
    std::vector<std::string> f = FieldsAfter(line, "%round_endpoint_line");
    AppendShape(FillShape(role, net, layer),
                ExpandRoundLine(LengthField(f, 0), LengthField(f, 1), LengthField(f, 2),
                                LengthField(f, 3), LengthField(f, 4)));
}

void AddLinePathShape(const std::string& line, base::LineStream& stream, int32_t role, int32_t net,
                      int32_t layer) {
    std::vector<ShapePoint> points;
    AppendPathLine(line, points);
    std::string next;
    for (;;) {
        size_t mark = stream.Tell();
        if (!stream.ReadLine(next, base::kNddLineBuffer)) break;
        if (Contains(next, "%end_boundary") || Contains(next, "%cutout")) {
            stream.Seek(mark);
            break;
        }
        AppendPathLine(next, points);
    }
    if (!points.empty()) points.push_back(points.front());
    AppendShape(FillShape(role, net, layer), points);
}
