#include "ibis/ComponentValue.h"

#include <cstring>

#include "ndd/NddTokens.h"

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Characters that end the unit of a value such as "10K_1%" or "4.7uF/50V".
bool EndsUnit(char c) {
    return c != '\0' && std::strchr(" !#$%&*,-/:;@\\_", c) != nullptr;
}

bool IsPassiveKind(const std::string& kind) {
    return kind == "R" || kind == "L" || kind == "C";
}

bool OneOf(const std::string& text, std::initializer_list<const char*> words) {
    for (const char* word : words)
        if (text == word) return true;
    return false;
}

std::string KindOfUnit(const std::string& unit, const std::string& number) {
    std::string lower = ToLower(unit);
    if (OneOf(lower, {"uf", "mf", "nf", "pf", "ff"})) return "C";
    if (OneOf(lower, {"uh", "mh", "nh", "ph", "fh"})) return "L";
    if (OneOf(lower, {"ohm", "o", "k", "m"})) return "R";
    if (unit.empty() && !number.empty()) return "R";
    return "";
}

// The unit letter that replaces a unit ending in farad or henry ("uf" or "uh" to "u").
std::string ReactanceUnit(const std::string& unit, char tail) {
    std::string lower = ToLower(unit);
    if (lower.size() == 2 && lower[1] == tail && lower[0] != '\0' && std::strchr("upmfn", lower[0]))
        return lower.substr(0, 1);
    return unit;
}

std::string ResistorUnit(const std::string& unit, bool stoppedAtMark) {
    if (unit.empty()) return unit;
    if (unit[0] == 'M') return "Meg";
    if (stoppedAtMark) return unit;
    if (unit[0] == 'K') return "K";
    if (unit[0] == 'o') return "";
    return unit;
}

}  // namespace

void ClassifyComponent(ComponentRec& component) {
    if (component.pins.size() != 2) {
        component.isActive = 1;
        component.kind = "?";
        return;
    }
    component.isActive = 0;
    const std::string& refDes = component.refDes;
    bool typed = refDes.size() >= 2 && (refDes[0] == 'R' || refDes[0] == 'L' || refDes[0] == 'C') &&
                 IsDigit(refDes[1]);
    component.kind = typed ? refDes.substr(0, 1) : "?";
}

void NormaliseValue(ComponentRec& component) {
    if (component.value.empty()) return;
    std::string value = Trim(component.value);
    size_t unitStart = 0;
    while (unitStart < value.size() && (IsDigit(value[unitStart]) || value[unitStart] == '.'))
        ++unitStart;
    size_t unitEnd = unitStart;
    while (unitEnd < value.size() && !EndsUnit(value[unitEnd])) ++unitEnd;
    bool stoppedAtMark = unitEnd < value.size();
    std::string number = value.substr(0, unitStart);
    std::string unit = value.substr(unitStart, unitEnd - unitStart);

    if (!IsPassiveKind(component.kind) && component.pins.size() == 2) {
        std::string kind = KindOfUnit(unit, number);
        if (!kind.empty()) component.kind = kind;
    }
    if (component.kind == "C")
        component.value = number + ReactanceUnit(unit, 'f');
    else if (component.kind == "L")
        component.value = number + ReactanceUnit(unit, 'h');
    else if (component.kind == "R")
        component.value = number + ResistorUnit(unit, stoppedAtMark);
}
