#include "ndd/HkpReader.h"

#include <string>
#include <utility>

#include "geometry/ShapeTable.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"

namespace {

// The file's lines, with room for one line held back as the next line to look at.
class HeldLines {
  public:
    explicit HeldLines(base::LineStream& stream) : stream_(stream) {}
    bool Next(std::string& line, size_t bufferSize) {
        if (!held_) return stream_.ReadLine(line, bufferSize);
        line = std::move(heldLine_);
        held_ = false;
        return true;
    }
    void HoldBack(std::string line) {
        heldLine_ = std::move(line);
        held_ = true;
    }

  private:
    base::LineStream& stream_;
    std::string heldLine_;
    bool held_ = false;
};

// Millimetres per unit of a ".UNITS" word; 0 for a word that leaves the scale. "nm" keeps its
// factor of 1e-9, which is not the millimetre factor of the others.
double UnitScale(const std::string& word) {
    if (word == "th" || word == "mil" || word == "mils") return 0.0254;
    if (word == "tn") return 1e-5;
    if (word == "inch" || word == "inches") return 25.4;
    if (word == "mm") return 1.0;
    if (word == "um") return 0.001;
    if (word == "cm") return 10.0;
    if (word == "m") return 1000.0;
    if (word == "nm" || word == "1nm") return 1e-9;
    return 0.0;
}

std::string WithoutChars(std::string text, const char* chars) {
    std::string kept;
    kept.reserve(text.size());
    for (char c : text)
        if (!std::char_traits<char>::find(chars, std::char_traits<char>::length(chars), c))
            kept += c;
    return kept;
}

// The first word of text, as written (quotes kept), or "" when text is blank.
std::string FirstWord(std::string_view text) {
    int position = kNoPosition;
    return NddGetToken(text, position, false);
}

std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// A trimmed line that opens a record of the first or second level ends an area.
bool EndsArea(const std::string& trimmed) {
    if (trimmed[0] != '.') return false;
    return trimmed.size() < 3 || trimmed[1] != '.' || trimmed[2] != '.';
}

class HkpReader {
  public:
    explicit HkpReader(base::LineStream& stream) : lines_(stream) {}

    void Run() {
        std::string line;
        while (lines_.Next(line, base::kNddLineBuffer)) {
            if (StartsWith(line, ".UNITS")) {
                TakeUnits(line);
            } else if (StartsWith(line, ".NET ")) {
                if (!TakeNet(line)) return;
            } else if (Contains(line, "..CONDUCTIVE_AREA")) {
                if (!ReadArea()) return;
            }
        }
    }

  private:
    void TakeUnits(const std::string& line) {
        const double scale = UnitScale(ToLower(NddToken(line, 2, false)));
        if (scale != 0.0) scale_ = scale;
    }

    // Takes the net of a ".NET " line. A net that is left out skips its lines up to the next
    // ".NET ". Returns false when the file ended.
    bool TakeNet(const std::string& line) {
        net_ = WithoutChars(FirstWord(std::string_view(line).substr(5)), "\"");
        const bool kept = net_.empty() ? g_options.g_nIncludeNoNetEtches != 0 : IsNetSelected(net_);
        if (kept) return true;
        std::string next;
        while (lines_.Next(next, base::kNddLineBuffer)) {
            if (StartsWith(next, ".NET ")) {
                lines_.HoldBack(std::move(next));
                return true;
            }
        }
        return false;
    }

    // The lines of one conductive area. Returns false when the file ended.
    bool ReadArea() {
        std::string line;
        while (lines_.Next(line, base::kWideLineBuffer)) {
            const std::string trimmed = Trim(line);
            if (trimmed.empty()) continue;
            if (EndsArea(trimmed)) {
                lines_.HoldBack(std::move(line));
                return true;
            }
            if (Contains(trimmed, "...ROUTE_LYR ")) {
                TakeLayer(trimmed);
            } else if (Contains(trimmed, "...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE")) {
                if (!ReadShape()) return false;
            }
        }
        return false;
    }

    void TakeLayer(const std::string& trimmed) {
        const std::string key = "...ROUTE_LYR ";
        const std::string word =
            FirstWord(std::string_view(trimmed).substr(trimmed.find(key) + key.size()));
        layer_ = ReplaceAll(WithoutChars(word, "\""), "LYR_", "layer_");
    }

    // The line after the shape option names the shape. Any other line is looked at again as
    // a line of the area. Returns false when the file ended.
    bool ReadShape() {
        std::string line;
        if (!lines_.Next(line, base::kWideLineBuffer)) return false;
        if (Contains(line, "...RECT_SHAPE")) return ReadRect();
        if (Contains(line, "...POLYLINE_SHAPE")) return ReadPolyline();
        lines_.HoldBack(std::move(line));
        return true;
    }

    // A coordinate line: the first word is its keyword, the numbers follow with commas and
    // brackets between them.
    static std::string Numbers(const std::string& line) {
        int position = kNoPosition;
        NddGetToken(line, position, false);
        return WithoutChars(Mid(line, position), ",()");
    }

    ShapePoint Point(const std::string& numbers, int firstWord) const {
        return ShapePoint{ToDouble(NddToken(numbers, firstWord, false)) * scale_,
                          ToDouble(NddToken(numbers, firstWord + 1, false)) * scale_};
    }

    bool ReadRect() {
        std::string line;
        if (!lines_.Next(line, base::kWideLineBuffer)) return false;
        const std::string numbers = Numbers(line);
        const ShapePoint a = Point(numbers, 1);
        const ShapePoint b = Point(numbers, 3);
        AddArea({{a.x, a.y}, {b.x, a.y}, {b.x, b.y}, {a.x, b.y}, {a.x, a.y}});
        return true;
    }

    // The points run on over the following lines up to a line that begins with '.', which is
    // held back. The list is added as it stands, with no closing point.
    bool ReadPolyline() {
        std::string line;
        if (!lines_.Next(line, base::kWideLineBuffer)) return false;
        std::vector<ShapePoint> points{Point(Numbers(line), 1)};
        while (lines_.Next(line, base::kWideLineBuffer)) {
            const std::string trimmed = Trim(line);
            if (trimmed.empty()) continue;
            if (trimmed[0] == '.') {
                lines_.HoldBack(std::move(line));
                AddArea(points);
                return true;
            }
            points.push_back(Point(WithoutChars(trimmed, ",()"), 1));
        }
        AddArea(points);
        return false;
    }

    void AddArea(const std::vector<ShapePoint>& points) {
        AddPolygonPoints(NetIndexByName(net_), LayerIndexByName(layer_), points);
    }

    HeldLines lines_;
    double scale_ = 1.0;
    std::string net_;
    std::string layer_;
};

}  // namespace

void AddPolygonPoints(int32_t net, int32_t layer, const std::vector<ShapePoint>& points) {
    ShapeRec shape;
    shape.net = net;
    shape.layer = layer;
    shape.geometry = kGeometryPolygon;
    shape.polarity = kPolarityCopper;
    shape.undiscardable = 1;
    shape.discarded = 0;
    AppendShape(shape, points);
}

void ParseHkpFile() {
    const std::string& path = g_options.g_strHkpFile;
    if (path.empty()) return;
    std::unique_ptr<base::LineStream> file = OpenTextFile(path);
    if (!file) {
        ReportMessage("The Input  file could not be opened");
        return;
    }
    HkpReader(*file).Run();
}
