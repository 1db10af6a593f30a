#include "ndd/ThermalTies.h"

#include <cmath>
#include <string>

#include "geometry/PointOnNetShape.h"
#include "geometry/ShapeLocator.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"
#include "ndd/TraceReader.h"

namespace {

// The words of a record, read as NddNextWord reads them: a word missing from the line is
// taken from the following lines, and a blank line or the end of the file closes the stream.
class WordReader {
  public:
    WordReader(base::LineStream*& stream, const std::string& line) : stream_(stream), rest_(line) {}
    std::string Next() {
        std::string remainder;
        std::string word = NddNextWord(stream_, rest_, remainder);
        rest_ = std::move(remainder);
        return word;
    }
    // The stream closed while the record was read: the record is incomplete.
    bool Closed() const { return stream_ == nullptr; }

  private:
    base::LineStream*& stream_;
    std::string rest_;
};

// Net and layer words of an "ARS " line may be quoted with double or single quotes.
std::string UnquoteWord(std::string word) {
    if (word.empty()) return word;
    if (word[0] == '"' || word[0] == '\'') {
        const size_t cut = word.back() == '\n' ? 3 : 1;
        return word.size() >= 1 + cut ? word.substr(1, word.size() - 1 - cut) : std::string();
    }
    if (word.back() == '"') word.pop_back();
    return word;
}

// The area of the following ties: its net and its layer identifier.
struct TieArea {
    std::string net;
    std::string layerId;
};

void ReadTieType(base::LineStream*& stream, const std::string& line) {
    WordReader words(stream, line);
    words.Next();
    ThermalTieTypeRec type;
    type.name = words.Next();
    type.width = ToDouble(words.Next()) * g_model.g_dbLengthScale;
    type.nValue1 = static_cast<int32_t>(ToLong(words.Next()));
    type.nValue2 = static_cast<int32_t>(ToLong(words.Next()));
    type.dbValue = ToDouble(words.Next());
    if (words.Closed()) return;
    std::string name = type.name;
    g_model.g_mapThermalTieTypes.Set(name, std::move(type));
}

void ReadArea(base::LineStream*& stream, const std::string& line, TieArea& area) {
    area = TieArea{};
    WordReader words(stream, line);
    words.Next();
    area.net = UnquoteWord(words.Next());
    area.layerId = UnquoteWord(words.Next());
}

struct TieEnd {
    int bit;
    double dx, dy;  // multiples of w and h
};

// The ties of a mask in the order they are tried, with their reach as multiples of w and h.
const TieEnd kStraightTies[] = {{1, 1, 0}, {2, 0, 1}, {4, -1, 0}, {8, 0, -1}};
const TieEnd kDiagonalTies[] = {{1, 1, 1}, {8, 1, -1}, {2, -1, 1}, {4, -1, -1}};

struct Tie {
    double x = 0, y = 0, w = 0, h = 0;
    long angle = 0;
    long mask = 0;
    const ThermalTieTypeRec* type = nullptr;
};

// Adds the ties of the mask that reach copper of the net. Returns 0 when a trace could not be
// added.
int AddTies(const Tie& tie, int32_t net, int32_t layer, ShapeLocator& locator) {
    if (tie.mask < 1 || tie.mask > 15) return 1;
    const bool diagonal = tie.angle == 45;
    const double w = diagonal ? tie.w / std::sqrt(2.0) : tie.w;
    const double h = diagonal ? tie.h / std::sqrt(2.0) : tie.h;
    for (const TieEnd& end : diagonal ? kDiagonalTies : kStraightTies) {
        if ((tie.mask & end.bit) == 0) continue;
        const double ex = end.dx == 0 ? tie.x : end.dx > 0 ? tie.x + w : tie.x - w;
        const double ey = end.dy == 0 ? tie.y : end.dy > 0 ? tie.y + h : tie.y - h;
        if (!PointOnNetShape(locator, ex, ey, net, layer)) continue;
        if (!GrowTraceArrays()) return 0;
        if (!AddTraceRecord(tie.x, tie.y, ex, ey, tie.type->width, layer, net)) return 0;
    }
    return 1;
}

// A "TTI " line. Returns 0 when the pass must end.
int ReadTie(base::LineStream*& stream, const std::string& line, const TieArea& area,
            ShapeLocator& locator) {
    int32_t net = kNoNet;
    if (!area.net.empty()) {
        net = NetIndexByName(area.net);
        if (!IsNetSelected(area.net)) return 1;
    } else if (g_options.g_nIncludeNoNetEtches == 0) {
        return 1;
    }
    const std::string* layerName = g_model.g_mapLayerId.Find(area.layerId);
    if (!layerName) return 1;
    const int32_t layer = LayerIndexByName(*layerName);
    if (layer < 0) return 1;

    WordReader words(stream, line);
    words.Next();
    Tie tie;
    const double scale = g_model.g_dbLengthScale;
    tie.x = ToDouble(words.Next()) * scale;
    tie.y = ToDouble(words.Next()) * scale;
    const std::string typeName = words.Next();
    tie.angle = ToLong(words.Next());
    tie.w = ToDouble(words.Next()) * scale;
    tie.h = ToDouble(words.Next()) * scale;
    tie.mask = ToLong(words.Next());
    if (words.Closed()) return 1;
    if (EqualsNoCase(typeName, "F") || EqualsNoCase(typeName, "I")) return 1;
    if (tie.angle != 0 && tie.angle != 45) return 1;
    tie.type = g_model.g_mapThermalTieTypes.Find(typeName);
    if (!tie.type) return 1;
    // The layer now carries traces, so it is written as a signal layer, tie or no tie.
    g_model.g_aLayers[layer].kind = kLayerSignal;
    return AddTies(tie, net, layer, locator);
}

}  // namespace

int ParseThermalTies() {
    const std::string& path = g_options.g_strTraceFile;
    if (path.empty()) return 1;
    std::unique_ptr<base::LineStream> file = OpenTextFile(path);
    if (!file) return 1;
    g_model.g_mapThermalTieTypes.Clear();
    base::LineStream* stream = file.get();
    TieArea area;
    ShapeLocator locator;  // the ties add traces only, so the shape table stands still
    std::string line;
    while (stream && stream->ReadLine(line, base::kWideLineBuffer)) {
        if (StartsWith(line, "TTT ")) {
            ReadTieType(stream, line);
        } else if (StartsWith(line, "ARS ")) {
            ReadArea(stream, line, area);
        } else if (StartsWith(line, "TTI ")) {
            if (!ReadTie(stream, line, area, locator)) return 0;
        }
    }
    return 1;
}
