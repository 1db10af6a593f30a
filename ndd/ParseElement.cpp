#include "ndd/ParseElement.h"

#include <new>

#include "geometry/ShapeTable.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/Progress.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/BoardOutline.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"
#include "ndd/ShapeRoutines.h"

namespace {

struct Fill {
    int32_t layer = -1;
    int32_t net = kNoNet;
};

// Reads the fill line's layer and net; false when the net filter drops the fill.
bool TakeFill(const std::string& line, Fill& fill) {
    std::string layer = StripQuotes(NddToken(line, 2));
    std::string net = StripQuotes(NddToken(line, 3));
    if (net.empty() && !g_options.g_nIncludeNoNetEtches) return false;
    if (!net.empty() && !IsNetSelected(net)) return false;
    fill.net = NetIndexByName(net);
    fill.layer = LayerIndexByName(layer);
    return true;
}

bool IsEmptyLine(const std::string& line) {
    return line.empty() || line[0] == '\n';
}

void AddBoardFill(const Fill& fill) {
    ShapeRec rec;
    rec.layer = fill.layer;
    rec.net = fill.net;
    rec.polarity = kPolarityCopper;
    rec.geometry = kGeometryPolygon;
    AppendShape(rec, g_model.g_lstBoardOutline);
}

void AddShapeOfLine(const std::string& line, base::LineStream& stream, int32_t role,
                    const Fill& fill) {
    if (Contains(line, "%circle"))
        AddCircleShape(line, role, fill.net, fill.layer);
    else if (Contains(line, "%rectangle"))
        AddRectangleShape(line, role, fill.net, fill.layer);
    else if (Contains(line, "%polygon"))
        AddPolygonShape(line, stream, role, fill.net, fill.layer);
    else if (Contains(line, "%round_endpoint_line"))
        AddRoundLineShape(line, role, fill.net, fill.layer);
    else if (Contains(line, "%line") || Contains(line, "%arc"))
        AddLinePathShape(line, stream, role, fill.net, fill.layer);
}

// The lines of a boundary up to "%end_boundary": each "%outline" or "%cutout" line sets the
// role, and the line after it holds the shape.
void ReadBoundary(base::LineStream& stream, const Fill& fill) {
    std::string line;
    int32_t role = kPolarityCopper;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        CountPassLine();
        if (Contains(line, "%end_boundary")) return;
        if (Contains(line, "%outline"))
            role = kPolarityCopper;
        else if (Contains(line, "%cutout"))
            role = kPolarityVoid;
        else
            continue;
        if (!stream.ReadLine(line, base::kNddLineBuffer)) return;
        AddShapeOfLine(line, stream, role, fill);
    }
}

// The next line that does not begin with '#', or a line feed at the end of the file.
std::string NextRecordLine(base::LineStream& stream) {
    std::string line;
    while (stream.ReadLine(line, base::kNddLineBuffer))
        if (line.empty() || line[0] != '#') return line;
    return "\n";
}

int ReadElements(const std::string& path) {
    ParseBoardOutline(path);
    g_model.g_aShapes.clear();
    g_model.g_aShapePoints.clear();
    g_model.g_aShapeBoxes.clear();
    auto stream = OpenNdd(path);
    if (!stream) return 0;
    StartPassProgress();
    std::string current, line;
    bool fillSeen = false, boundary = false;
    Fill fill;
    for (;;) {
        if (Contains(current, "%begin_") || Contains(current, "%fill_")) {
            line.swap(current);
            current.clear();
        } else {
            current.clear();
            if (!stream->ReadLine(line, base::kNddLineBuffer)) break;
        }
        CountPassLine();
        if (!line.empty() && line[0] == '#') continue;
        if (Contains(line, "%fill_area")) {
            fillSeen = true;
            if (!TakeFill(line, fill)) {
                boundary = false;
                continue;
            }
            current = NextRecordLine(*stream);
            if (!IsEmptyLine(current) && !Contains(current, "%fill_area"))
                boundary = true;
            else
                AddBoardFill(fill);
            continue;
        }
        if (!fillSeen) continue;
        if (Contains(line, "in_boundary") && boundary) {
            ReadBoundary(*stream, fill);
            boundary = false;
        }
    }
    return 1;
}

}  // namespace

int ParseElement(const std::string& path) {
    try {
        return ReadElements(path);
    } catch (const std::bad_alloc&) {
        ReportMessage("Insufficient Memory");
        return 0;
    }
}
