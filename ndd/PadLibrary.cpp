#include "ndd/PadLibrary.h"

#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/PadShapeReader.h"

namespace {

// One "%paddef" record from its first line on; the stream goes on after the record.
void ReadPadDefRecord(base::LineStream*& stream, const std::string& line) {
    NddWordReader words(stream, line);
    words.Next();
    std::string name = StripQuotes(words.Next());
    if (!EqualsNoCase(words.Next(), "%begin_boundary")) return;
    words.Next();
    PadLibRec shape;
    std::string next;
    ReadPadShape(words, words.Next(), true, shape, next);
    if (shape.kind != 0 && !name.empty()) {
        shape.name = name;
        g_model.g_padLibrary.Set(UnderscoreBlanksAndCommas(name), std::move(shape));
    }
    SkipToWord(words, next, "%end_paddef");
}

}  // namespace

void ParsePadLibrary(const std::string& path) {
    g_model.g_padLibrary.Clear();
    auto file = OpenNdd(path);
    base::LineStream* stream = file.get();
    bool seen = false;
    std::string line;
    while (stream && stream->ReadLine(line, base::kNddLineBuffer)) {
        if (seen && (StartsWith(line, "%padstackdef") || StartsWith(line, "%packagedef"))) break;
        if (!StartsWith(line, "%paddef")) continue;
        seen = true;
        ReadPadDefRecord(stream, line);
    }
}

void ParsePadDefData(const std::string& path) {
    ParsePadLibrary(path);
    ParsePadStackLibrary(path);
}
