#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"

namespace {

// Stores "<canonical> <alias>" from text, quotes removed.
void StoreAlias(const std::string& text) {
    int pos = kNoPosition;
    std::string canonical = StripQuotes(NddGetToken(text, pos));
    if (pos < 0) return;
    std::string rest = Mid(text, pos);
    pos = kNoPosition;
    std::string alias = StripQuotes(NddGetToken(rest, pos));
    if (canonical.empty()) return;
    g_model.g_mapAliasProps.Set(canonical, alias);
}

}  // namespace

void ReadAliasProperties(const std::string& path) {
    auto stream = OpenNdd(path);
    if (!stream) return;
    g_model.g_mapAliasProps.Clear();
    std::string line;
    while (stream->ReadLine(line, base::kNddLineBuffer)) {
        if (!StartsWith(line, "%aliasprop")) continue;
        std::string rest = Mid(line, 10);
        int pos = kNoPosition;
        if (!NddGetToken(rest, pos).empty()) {
            // The one-line form: the search goes on behind it.
            StoreAlias(rest);
            continue;
        }
        // The table form: rows up to the first one that is not an "ICX" property.
        while (stream->ReadLine(line, base::kNddLineBuffer)) {
            if (line[0] == '#') continue;
            if (!StartsWith(line, "ICX")) return;
            StoreAlias(line);
        }
        return;
    }
}
