#include "ndd/BoardOutline.h"

#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/ShapeFields.h"

namespace {

bool Skipped(const std::string& line) {
    return line.empty() || line[0] == '\n' || line[0] == '#';
}

void AddPoint(double x, double y) {
    g_model.g_lstBoardOutline.push_back({x, y});
}

void ReadLinePath(std::string line, base::LineStream& stream) {
    do {
        if (Contains(line, "%end_boundary")) break;
        if (!Contains(line, "%line")) continue;
        std::vector<std::string> f = FieldsAfter(line, "%line");
        AddPoint(LengthField(f, 0), LengthField(f, 1));
        AddPoint(LengthField(f, 2), LengthField(f, 3));
    } while (stream.ReadLine(line, base::kNddLineBuffer));
}

void ReadPolygon(const std::string& line, base::LineStream& stream) {
    std::vector<std::string> words;
    bool ended = AppendCoordinateWords(line.substr(line.find("%polygon") + 8), words);
    std::string next;
    while (!ended && stream.ReadLine(next, base::kNddLineBuffer)) {
        if (Skipped(next)) continue;
        ended = AppendCoordinateWords(next, words);
    }
    for (const ShapePoint& p : PointsOfWords(words)) AddPoint(p.x, p.y);
}

void ReadRectangle(const std::string& line) {
    std::vector<std::string> f = FieldsAfter(line, "%rectangle");
    double x1 = LengthField(f, 0), y1 = LengthField(f, 1);
    double x2 = LengthField(f, 2), y2 = LengthField(f, 3);
    AddPoint(x1, y1);
    AddPoint(x1, y2);
    AddPoint(x2, y2);
    AddPoint(x2, y1);
    AddPoint(x1, y1);
}

}  // namespace

void ParseBoardOutline(const std::string& path) {
    auto& outline = g_model.g_lstBoardOutline;
    outline.clear();
    auto stream = OpenNdd(path);
    if (!stream) return;
    std::string line;
    bool found = false;
    while (!found && stream->ReadLine(line, base::kNddLineBuffer))
        found = Contains(std::string_view(line).substr(0, 15), "%board_outline");
    if (!found) return;
    while (stream->ReadLine(line, base::kNddLineBuffer)) {
        if (Skipped(line)) continue;
        if (Contains(line, "%line")) {
            ReadLinePath(line, *stream);
        } else if (Contains(line, "%polygon")) {
            ReadPolygon(line, *stream);
        } else if (Contains(line, "%rectangle")) {
            ReadRectangle(line);
            return;
        } else {
            continue;
        }
        if (!outline.empty()) outline.push_back(outline.front());
        return;
    }
}
