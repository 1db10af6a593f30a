#include "ibis/CircuitWriter.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "ibis/CircuitForm.h"
#include "ibis/ComponentValue.h"
#include "ibis/ModelAssignment.h"
#include "ibis/ModelTable.h"
#include "model/TranslationOptions.h"
#include "ndd/NetTable.h"

namespace {

constexpr size_t kTerminalNameBytes = 128;
constexpr size_t kExtNodeLineLimit = 75;
constexpr int kElementNamesPerLine = 10;

bool IsPassiveKind(const std::string& kind) {
    return !kind.empty() && (kind[0] == 'C' || kind[0] == 'L' || kind[0] == 'R');
}

std::string DotsAndCommasUnderscored(std::string name) {
    for (char& c : name)
        if (c == '.' || c == ',') c = '_';
    return name;
}

bool IsNcRef(const std::string& ref) {
    return ref == "NC" || ref == "nc";
}

// Terminal names as the block lists them: cut to 127 characters, in byte order.
std::vector<std::string> SortedTerminals(const ComponentRec& component) {
    std::vector<std::string> names;
    for (const PinRec& pin : component.pins)
        names.push_back(pin.name.substr(0, kTerminalNameBytes - 1));
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::strcmp(a.c_str(), b.c_str()) < 0;
    });
    return names;
}

// One node of an instance line: the pin's reference, its fallback, or the node's own name.
std::string InstanceNode(const PinRec& pin, const std::string& token,
                         const std::vector<std::string>& nodes) {
    auto has = [&](const char* node) {
        return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
    };
    const PinModelFields& m = pin.Model();
    const std::string* ref = nullptr;
    const std::string* fallback = nullptr;
    bool fallbackAllowed = false;
    if (token.find("nd_pu") != std::string::npos) {
        ref = &m.pullupRef, fallback = &m.powerClampRef, fallbackAllowed = has("nd_pc");
    } else if (token.find("nd_pd") != std::string::npos) {
        ref = &m.pulldownRef, fallback = &m.gndClampRef, fallbackAllowed = has("nd_gc");
    } else if (token.find("nd_pc") != std::string::npos) {
        ref = &m.powerClampRef, fallback = &m.pullupRef, fallbackAllowed = has("nd_pu");
    } else if (token.find("nd_gc") != std::string::npos) {
        ref = &m.gndClampRef, fallback = &m.pulldownRef, fallbackAllowed = has("nd_pd");
    }
    std::string own = " " + token + "_" + pin.name + "_" + m.modelType;
    if (!ref) return own;
    if (!ref->empty() && !IsNcRef(*ref)) return " " + *ref;
    if (ref->empty() && fallbackAllowed && !fallback->empty()) return " " + *fallback;
    return own;
}

}  // namespace

std::string PassiveElementLine(const ComponentRec& component) {
    if (!IsPassiveKind(component.kind)) return "";
    std::string line(1, component.kind[0]);
    int count = 0;
    int total = static_cast<int>(component.pins.size());
    for (const PinRec& pin : component.pins) {
        line += " " + pin.name;
        ++count;
        if (count % kElementNamesPerLine == 0 && count < total) line += "\n+";
    }
    if (!component.value.empty())
        line += " " + component.value + "\n";
    else
        line += " \n";
    return line;
}

std::string PassiveBlockText(const ComponentRec& component) {
    std::string text = ".PartialCkt  " + g_options.g_strNameAffix +
                       DotsAndCommasUnderscored(component.blockName) + " ExtNode =";
    size_t running = text.size();
    std::vector<std::string> names = SortedTerminals(component);
    for (size_t i = 0; i < names.size(); ++i) {
        text += " " + names[i];
        running += names[i].size() + 1;
        if (running > kExtNodeLineLimit && i + 1 < names.size()) {
            text += "\n+";
            running = 0;
        }
    }
    text += "\n";
    text += PassiveElementLine(component);
    text += ".EndPartialCkt\n";
    return text;
}

std::string ActiveBlockText(const ComponentRec& component) {
    std::string body;
    for (const PinRec& pin : component.pins) {
        if (!pin.hasModel || pin.net.empty() || pin.pinClass != 0 || !IsNetSelected(pin.net))
            continue;
        bool known = false;
        std::vector<std::string> nodes = ModelNodesOf(pin.Model().modelType, &known);
        if (!known) continue;
        body += "b_" + pin.name + "_" + pin.Model().modelType;
        for (const std::string& token : nodes) body += InstanceNode(pin, token, nodes);
        body += "\n+ file='" + component.ibisFile + "' model='" + pin.Model().modelName + "'\n";
    }
    if (body.empty()) return "";
    return ".PartialCkt  " + component.blockName + " \n" + body + ".EndPartialCkt\n";
}

void WriteCircuitDescription(FILE* out, ModelAssignment* models) {
    if (!g_options.g_bTranslateLinkages && !g_options.g_bWriteLinkages) return;
    std::fprintf(out, "* Circuit description block\n");
    std::string previous;
    if (models) {
        models->blocks.ForEach([&](const std::string&, ComponentRec* c) {
            ClassifyComponent(*c);
            NormaliseValue(*c);
            TakePassiveForm(*c);
            if (!c->isActive) {
                if (!g_options.g_bWriteLinkages) return;
                std::string text = PassiveBlockText(*c);
                if (text != previous) std::fputs(text.c_str(), out);
                previous = text;
            } else if (g_options.g_bTranslateLinkages &&
                       models->ibisParts.Contains(c->partNumber) && !c->ibisError) {
                std::fputs(ActiveBlockText(*c).c_str(), out);
            }
        });
    }
    std::fprintf(out, "\n");
}
