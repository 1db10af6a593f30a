// The padstack library pass: "%padstackdef" records with their layer entries and pads.
#include <memory>

#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/PadLibrary.h"
#include "ndd/PadShapeReader.h"
#include "ndd/PadStackLayers.h"

namespace {

constexpr int32_t kPadRectangle = 1;
constexpr int32_t kPadCircle = 2;
constexpr int32_t kPadPolygon = 3;

const char* ShapeNameOfKind(int32_t kind) {
    switch (kind) {
        case 1:
            return "RECTANGLE";
        case 2:
            return "CIRCLE";
        case 3:
            return "POLYGON";
        case 4:
            return "OVAL_X";
        case 5:
            return "OVAL_Y";
        default:
            return nullptr;
    }
}

// The pad placed in a padstack from a library shape; null for a shape it cannot take.
std::shared_ptr<PadDefRec> MakePad(const PadLibRec& shape, bool anti, double offsetX,
                                   double offsetY, int layer, const std::string& layerName) {
    const char* shapeName = ShapeNameOfKind(shape.kind);
    if (!shapeName) return nullptr;
    // Antipads are circles or rectangles, and never offset.
    if (anti && shape.kind != kPadCircle && shape.kind != kPadRectangle) return nullptr;
    auto pad = std::make_shared<PadDefRec>();
    pad->shapeName = shapeName;
    pad->width = shape.width;
    pad->height = shape.height;
    if (shape.kind == kPadPolygon) pad->points = shape.points;
    pad->offsetX = anti ? 0.0 : offsetX;
    pad->offsetY = anti ? 0.0 : offsetY;
    pad->layer = layer;
    pad->layerName = layerName;
    return pad;
}

bool IsPadKeyword(const std::string& word) {
    return EqualsNoCase(word, "%pad") || EqualsNoCase(word, "%antipad") ||
           EqualsNoCase(word, "%thermalpad");
}

struct EntryContext {
    const std::string& stackKey;
    PadEntry& entry;
    int layer;
    bool nextPadIsAnti;  // a "POWER" entry's first "%pad" is its antipad
};

// One "%pad", "%antipad" or "%thermalpad" line, from the offsets on.
void ReadPadLine(NddWordReader& words, std::string keyword, EntryContext& ctx) {
    if (EqualsNoCase(keyword, "%pad") && ctx.nextPadIsAnti) {
        keyword = "%antipad";
        ctx.nextPadIsAnti = false;
    }
    bool regular = EqualsNoCase(keyword, "%pad");
    bool anti = EqualsNoCase(keyword, "%antipad");
    double offsetX = ToDouble(words.Next());
    double offsetY = ToDouble(words.Next());
    if ((offsetX != 0.0 || offsetY != 0.0) && (regular || anti))
        g_model.g_mapOffsetPadStacks.Set(ctx.stackKey, 1);
    offsetX *= g_model.g_dbLengthScale;
    offsetY *= g_model.g_dbLengthScale;

    std::string padWord = words.Next();
    std::shared_ptr<PadDefRec> pad;
    if (EqualsNoCase(padWord, "%begin_boundary")) {
        PadLibRec shape;
        ReadInlineBoundary(words, shape);
        pad = MakePad(shape, anti, offsetX, offsetY, ctx.layer, ctx.entry.layerName);
    } else {
        std::string padName = UnderscoreBlanksAndCommas(StripQuotes(padWord));
        if (regular) ctx.entry.strPadName = padName;
        if (anti) ctx.entry.strAntiPadName = padName;
        if (const PadLibRec* shape = g_model.g_padLibrary.Find(padName))
            pad = MakePad(*shape, anti, offsetX, offsetY, ctx.layer, ctx.entry.layerName);
    }
    if (regular) ctx.entry.regular = pad;
    if (anti) ctx.entry.anti = pad;
}

PadEntry& DefaultOrNewEntry(PadStackRec& stack) {
    for (PadEntry& entry : stack.entries)
        if (entry.layerName == kDefaultLibLayer) return entry;
    stack.entries.emplace_back();
    return stack.entries.back();
}

// A "%defaultliblayer" or "%liblayer" entry with its pad lines. Returns the first word after
// them.
std::string ReadLayerEntry(NddWordReader& words, const std::string& keyword,
                           const std::string& stackKey, PadStackRec& stack, bool& seenDefault) {
    std::string layerWord;
    if (EqualsNoCase(keyword, "%liblayer")) layerWord = StripQuotes(words.Next());
    bool powerEntry = false;
    if (EqualsNoCase(keyword, kDefaultLibLayer) || EqualsNoCase(layerWord, "%all_layers")) {
        seenDefault = true;
        stack.defaultLayerFlag = 1;
        layerWord = kDefaultLibLayer;
    } else if (layerWord == "POWER") {
        stack.defaultLayerFlag = 1;
        layerWord = kDefaultLibLayer;
        powerEntry = true;
    }
    PadEntry& entry = DefaultOrNewEntry(stack);
    EntryContext ctx{stackKey, entry, ResolvePadLayer(layerWord, entry.layerName), powerEntry};
    entry.strLibLayer = layerWord;
    std::string word = words.Next();
    while (IsPadKeyword(word)) {
        ReadPadLine(words, word, ctx);
        word = words.Next();
    }
    return word;
}

int32_t PadStackTypeOf(const std::string& word) {
    std::string type = StripQuotes(word);
    if (EqualsNoCase(type, "%surface")) return 1;
    if (EqualsNoCase(type, "%thruhole")) return 2;
    if (EqualsNoCase(type, "%buried")) return 3;
    return 0;
}

void ReadPadStackBody(NddWordReader& words, const std::string& key, PadStackRec& stack) {
    std::string word = words.Next();
    if (EqualsNoCase(word, "%padstacktype")) {
        stack.nType = PadStackTypeOf(words.Next());
        word = words.Next();
    }
    bool seenDefault = false;
    while (!word.empty() && !EqualsNoCase(word, "%end_padstackdef")) {
        if (EqualsNoCase(word, "%drill")) {
            stack.drill = ToDouble(words.Next()) * g_model.g_dbLengthScale * 0.5;
            if (stack.nType == 0 && stack.drill > 0.0 && seenDefault) stack.nType = 2;
            word = words.Next();
        } else if (EqualsNoCase(word, kDefaultLibLayer) || EqualsNoCase(word, "%liblayer")) {
            word = ReadLayerEntry(words, word, key, stack, seenDefault);
        } else {
            word = words.Next();
        }
    }
}

}  // namespace

void ParsePadStackLibrary(const std::string& path) {
    g_model.g_padStacks.Clear();
    g_model.g_mapOffsetPadStacks.Clear();
    auto file = OpenNdd(path);
    base::LineStream* stream = file.get();
    bool seen = false;
    std::string line;
    while (stream && stream->ReadLine(line, base::kNddLineBuffer)) {
        if (seen && StartsWith(line, "%packagedef")) break;
        if (!StartsWith(line, "%padstackdef")) continue;
        seen = true;
        NddWordReader words(stream, line);
        words.Next();
        PadStackRec stack;
        // Nodes and vias print this name, so it is the map's key: blanks and commas as "_".
        stack.name = UnderscoreBlanksAndCommas(StripQuotes(words.Next()));
        std::string key = stack.name;
        ReadPadStackBody(words, key, stack);
        if (!key.empty()) g_model.g_padStacks.Set(key, std::move(stack));
    }
}
