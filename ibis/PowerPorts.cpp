#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"

namespace {

// Reads "<signal> <net> <pin>" from text and the lines behind it, and stores "<net>?<pin>".
// stream becomes null when the file ends inside the row.
void ReadPowerPortRow(base::LineStream*& stream, const std::string& text, PartPowerRec& part) {
    std::string rest = text;
    std::string fields[3];
    for (std::string& field : fields) {
        std::string remainder;
        field = StripQuotes(NddNextWord(stream, rest, remainder));
        rest = remainder;
    }
    if (!stream) return;
    part.powerPorts.push_back(fields[1] + "?" + fields[2]);
}

// The next line that is neither comment nor empty; false at the end of the file.
bool NextContentLine(base::LineStream& stream, std::string& line) {
    while (stream.ReadLine(line, base::kNddLineBuffer))
        if (line[0] != '#' && line[0] != '\n') return true;
    return false;
}

// Runs the rows of a "%part" line that holds "%powerport". Continuation rows follow until a
// line that begins with '%', which is handed back to the walk in line (pending set).
void ReadPowerPorts(base::LineStream*& stream, std::string text, PartPowerRec& part,
                    std::string& line, bool& pending) {
    while (stream) {
        ReadPowerPortRow(stream, text, part);
        if (!stream || !NextContentLine(*stream, line)) {
            stream = nullptr;
            return;
        }
        if (line[0] == '%') {
            pending = true;
            return;
        }
        text = line;
    }
}

}  // namespace

void ReadPartPowerPorts(const std::string& path) {
    auto owner = OpenNdd(path);
    if (!owner) return;
    g_model.g_mapPartPower.Clear();
    base::LineStream* stream = owner.get();
    std::string line;
    bool pending = false;
    while (stream) {
        if (!pending && !stream->ReadLine(line, base::kNddLineBuffer)) break;
        pending = false;
        if (line[0] == '#') continue;
        if (Contains(line, "%dielectric")) break;
        if (!StartsWith(line, "%part")) continue;
        PartPowerRec record;
        record.name = StripQuotes(NddToken(line, 2));
        PartPowerRec& part = g_model.g_mapPartPower.Set(record.name, record);
        int pos = kNoPosition;
        NddGetToken(line, pos);
        std::string rest = Mid(line, pos);
        pos = kNoPosition;
        NddGetToken(rest, pos);
        rest = Mid(rest, pos);
        size_t at = rest.find("%powerport");
        if (at == std::string::npos) continue;
        ReadPowerPorts(stream, rest.substr(at + 10), part, line, pending);
    }
}

void ApplyPowerPorts() {
    g_model.g_mapComponents.ForEach([](const std::string&, ComponentRec& component) {
        const PartPowerRec* part = g_model.g_mapPartPower.Find(component.partNumber);
        if (!part) return;
        for (const std::string& entry : part->powerPorts) {
            size_t mark = entry.rfind('?');
            if (mark == std::string::npos || mark == 0) continue;
            std::string pinName = entry.substr(mark + 1);
            for (PinRec& pin : component.pins) {
                if (pin.name != pinName) continue;
                pin.net = entry.substr(0, mark);
                break;
            }
        }
    });
}
