#include <string_view>

#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

namespace {

bool EndsPinRows(const std::string& line) {
    return StartsWith(line, "%package_drc_bound") || line.empty() || line[0] == '\n';
}

// One row "<pin>" "<padstack>" <x> <y> <rotation>; appended to the package's pins. The
// rotation is what is left of the line less its last two characters (";" and line end).
void AddPinRow(std::string_view text, PackageDefRec* package) {
    if (!package) return;
    PinRec pin;
    int pos = kNoPosition;
    std::string rest(text);
    std::string fields[4];
    for (std::string& field : fields) {
        pos = kNoPosition;
        field = NddGetToken(rest, pos);
        rest = Mid(rest, pos);
    }
    pin.name = StripQuotes(fields[0]);
    pin.padStackName = UnderscoreBlanksAndCommas(StripQuotes(fields[1]));
    pin.libX = ToDouble(fields[2]) * g_model.g_dbLengthScale;
    pin.libY = ToDouble(fields[3]) * g_model.g_dbLengthScale;
    pin.rotation = ToDouble(rest.size() >= 2 ? rest.substr(0, rest.size() - 2) : std::string());
    package->pins.push_back(std::move(pin));
}

// The text behind the "%pinloc" keyword of a line.
std::string_view AfterPinloc(const std::string& line) {
    size_t at = line.find("%pinloc");
    return std::string_view(line).substr(at + 7);
}

}  // namespace

void ReadPackageDefs(base::LineStream& stream) {
    g_model.g_mapPackageDefs.Clear();
    PackageDefRec* current = nullptr;
    bool seenPackage = false;
    std::string line;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (line[0] == '#') continue;
        if (seenPackage && StartsWith(line, "%gate")) return;
        if (Contains(line, "%packagedef")) {
            seenPackage = true;
            std::string name = StripQuotes(NddToken(line, 2));
            PackageDefRec def;
            def.name = name;
            current = &g_model.g_mapPackageDefs.Set(name, std::move(def));
            continue;
        }
        if (!Contains(line, "%pinloc")) continue;
        bool oneLine = Contains(line, ";");
        if (oneLine) AddPinRow(AfterPinloc(line), current);
        while (stream.ReadLine(line, base::kNddLineBuffer)) {
            if (EndsPinRows(line)) break;
            if (line[0] == '#') continue;
            if (!oneLine)
                AddPinRow(line, current);
            else if (Contains(line, "%pinloc"))
                AddPinRow(AfterPinloc(line), current);
        }
    }
}
