#include <cctype>

#include "ibis/Parts.h"
#include "ibis/PinRotation.h"
#include "ibis/PropertyNames.h"
#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// "R", "L" or "C" for a designator of that letter followed by digits only; else empty.
std::string KindFromRefDes(const std::string& refDes) {
    std::string upper = ToUpper(refDes);
    if (upper.empty() || (upper[0] != 'C' && upper[0] != 'L' && upper[0] != 'R')) return "";
    for (size_t i = 1; i < upper.size(); ++i)
        if (!IsDigit(upper[i])) return "";
    return upper.substr(0, 1);
}

// A designator such as "R12" or "C3" (case as read) is a passive element.
uint32_t IsActiveRefDes(const std::string& refDes) {
    bool passive = refDes.size() >= 2 &&
                   (refDes[0] == 'C' || refDes[0] == 'L' || refDes[0] == 'R') && IsDigit(refDes[1]);
    return passive ? 0 : 1;
}

std::string UnitForResistor(const std::string& suffix) {
    if (suffix.empty()) return "";
    std::string unit;
    if (Contains(suffix, "k") || Contains(suffix, "K")) unit += "K";
    if (Contains(suffix, "M")) unit += "Meg";
    return unit;
}

std::string UnitForReactance(const std::string& suffix, char first) {
    if (suffix.empty()) return first == 'I' ? "m" : "u";
    std::string lower = ToLower(suffix);
    std::string unit;
    for (const char* letter : {"n", "p", "u", "m"})
        if (Contains(lower, letter)) unit += letter;
    return unit;
}

// The value of a value-property line: the token after the property's own token.
std::string ValueOfLine(const std::string& line, const std::string& property) {
    if (Contains(NddToken(line, 1), property)) return StripQuotes(NddToken(line, 2));
    return StripQuotes(NddToken(line, 3));
}

void StoreValue(ComponentRec& component, const std::string& line, const std::string& property) {
    component.hasValue = 1;
    component.isActive = 0;
    std::string value = ValueOfLine(line, property);
    if (Contains(line, kValueProperty) && !value.empty())
        value = RewriteTypedValue(value, component.kindFromRefDes);
    component.value = value;
}

void CopyTemplatePins(ComponentRec& component) {
    const PackageDefRec* package = g_model.g_mapPackageDefs.Find(component.packageName);
    if (!package) return;
    for (const PinRec& templ : package->pins) {
        PinRec pin;
        pin.name = templ.name;
        pin.libX = templ.libX;
        pin.libY = templ.libY;
        pin.rotation = templ.rotation;
        RotateOffset(templ.libX, templ.libY, component.rotation, component.rotation, pin.x, pin.y);
        pin.padStackName = UnderscoreBlanksAndCommas(templ.padStackName);
        component.pins.push_back(std::move(pin));
    }
}

int32_t PlacementLayer(const std::string& placement, int useSide) {
    int32_t layer = FirstConductorLayer();
    if (useSide && !Contains(placement, "%topplace") && Contains(placement, "%bottomplace"))
        layer = LastConductorLayer();
    return layer;
}

// A "%partinst" record: fields behind the keyword, or on the next line when the keyword
// stands alone. Returns the component placed, or null when the fields are missing.
ComponentRec* ReadPlacement(const std::string& line, base::LineStream& stream, int useSide) {
    int pos = kNoPosition;
    NddGetToken(line, pos);
    std::string rest = Mid(line, pos);
    int probe = kNoPosition;
    if (NddGetToken(rest, probe).empty()) {
        if (!stream.ReadLine(rest, base::kNddLineBuffer)) return nullptr;
    }
    std::string fields[5];
    for (std::string& field : fields) {
        pos = kNoPosition;
        field = NddGetToken(rest, pos);
        rest = Mid(rest, pos);
    }
    // The designator's quotes are cut without looking at them.
    std::string refDes = fields[0].size() >= 2 ? fields[0].substr(1, fields[0].size() - 2) : "";
    ComponentRec* component = g_model.g_mapComponents.Find(refDes);
    bool isNew = component == nullptr;
    if (isNew) {
        ComponentRec fresh;
        fresh.refDes = refDes;
        component = &g_model.g_mapComponents.Set(refDes, std::move(fresh));
    }
    component->kindFromRefDes = KindFromRefDes(refDes);
    component->isActive = IsActiveRefDes(refDes);
    component->packageName = StripQuotes(fields[1]);
    component->x = ToDouble(fields[2]) * g_model.g_dbLengthScale;
    component->y = ToDouble(fields[3]) * g_model.g_dbLengthScale;
    component->rotation = ToDouble(fields[4]);
    component->placement = rest.size() >= 2 ? rest.substr(0, rest.size() - 2) : std::string();
    component->layer = PlacementLayer(component->placement, useSide);
    if (isNew && !component->packageName.empty()) CopyTemplatePins(*component);
    return component;
}

}  // namespace

std::string RewriteTypedValue(const std::string& value, std::string& kind) {
    char first = value.empty() ? '\0' : value[0];
    if (first == 'R') kind = "R";
    if (first == 'I') kind = "L";
    if (first == 'C') kind = "C";
    std::string rest = value.size() > 4 ? value.substr(4) : std::string();
    size_t letter = 0;
    while (letter < rest.size() && !IsAsciiLetter(rest[letter])) ++letter;
    std::string number = rest.substr(0, letter);
    std::string suffix = rest.substr(letter);
    if (first == 'R') return number + UnitForResistor(suffix);
    if (first == 'I' || first == 'C') return number + UnitForReactance(suffix, first);
    return number;
}

void GetCompPlacementInfo(base::LineStream& stream, int useSide) {
    bool valueAwaited = false;
    ComponentRec* current = nullptr;
    std::string line;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (line[0] == '#') continue;
        if (valueAwaited && current) {
            std::string property = ValuePropertyName();
            std::string alias = PropertyAlias(property);
            if (Contains(line, property) || Contains(line, alias)) {
                valueAwaited = false;
                StoreValue(*current, line, property);
                continue;
            }
        }
        if (!Contains(line, "tinst")) continue;
        ComponentRec* placed = ReadPlacement(line, stream, useSide);
        if (!placed) return;
        current = placed;
        valueAwaited = true;
    }
}
