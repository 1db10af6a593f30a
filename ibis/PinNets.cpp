#include <string>
#include <unordered_map>
#include <vector>

#include "base/Platform.h"
#include "ibis/Parts.h"
#include "ibis/PropertyNames.h"
#include "model/LayoutModel.h"
#include "ndd/NddTokens.h"

namespace {

// A property's name and its alias, looked up once for the whole pass.
struct PropertyName {
    explicit PropertyName(const char* key_) : key(key_), alias(PropertyAlias(key_)) {}
    std::string key, alias;
};

// The pins of a part by name, for the pin lines that set their nets. A part of many pins gets
// an index, made on its first pin line, so that a big part does not cost the square of its pin
// count; a small one is searched.
class PinsByName {
  public:
    const std::vector<PinRec*>& Named(ComponentRec& c, const std::string& name) {
        found_.clear();
        if (c.pins.size() <= kSearched) {
            for (PinRec& pin : c.pins)
                if (pin.name == name) found_.push_back(&pin);
            return found_;
        }
        auto [it, made] = index_.try_emplace(&c);
        if (made)
            for (PinRec& pin : c.pins) it->second[pin.name].push_back(&pin);
        auto pins = it->second.find(name);
        return pins == it->second.end() ? found_ : pins->second;
    }

  private:
    static constexpr size_t kSearched = 64;
    std::unordered_map<const ComponentRec*, std::unordered_map<std::string, std::vector<PinRec*>>>
        index_;
    std::vector<PinRec*> found_;
};

// What stays current from one gate line to the next.
struct GateState {
    PinsByName pins;
    PropertyName refDes{kRefDesProperty}, partNumberName{kPartNumberProperty},
        pinNumber{kPinNumberProperty};
    ComponentRec* component = nullptr;
    std::string partNumber;
    std::string port;
    std::string net;
};

// A line's first two tokens, unquoted: the places where a property line names its property.
struct NamingTokens {
    explicit NamingTokens(const std::string& line)
        : first(StripQuotes(NddToken(line, 1))), second(StripQuotes(NddToken(line, 2))) {}
    std::string first, second;
};

// The value of a line that names the property (or its alias) in its first or second token:
// the second token, or the third on a "%prop" line. False when the line does not name it.
bool PropertyValue(const std::string& line, const NamingTokens& tokens, const PropertyName& name,
                   std::string& value) {
    if (tokens.first != name.key && tokens.first != name.alias && tokens.second != name.key &&
        tokens.second != name.alias)
        return false;
    value = Contains(line, "%prop") ? StripQuotes(NddToken(line, 3)) : tokens.second;
    return true;
}

std::string InputFolder(const std::string& inputPath) {
    size_t sep = base::LastSeparator(inputPath);
    return sep == std::string::npos ? std::string() : inputPath.substr(0, sep + 1);
}

bool IsPortLine(const std::string& line) {
    return Contains(line, "%port") && !Contains(line, "%portdef") && !Contains(line, "%portswap") &&
           !Contains(line, "%portgroup");
}

void SetPartNumber(GateState& state, const std::string& partNumber, const std::string& folder) {
    state.partNumber = partNumber;
    if (!state.component) return;
    state.component->partNumber = partNumber;
    if (state.component->ibisFile.empty())
        state.component->ibisFile = folder + "IBISModels" + base::kSep + partNumber + ".ibs";
}

void GateLine(const std::string& line, GateState& state, const std::string& folder) {
    std::string value;
    const NamingTokens tokens(line);
    if (!Contains(line, "%port") && PropertyValue(line, tokens, state.refDes, value)) {
        state.component = g_model.g_mapComponents.Find(value);
        if (state.component && !state.partNumber.empty())
            state.component->partNumber = state.partNumber;
    } else if (PropertyValue(line, tokens, state.partNumberName, value)) {
        SetPartNumber(state, value, folder);
    } else if (IsPortLine(line)) {
        state.port = StripQuotes(NddToken(line, 2));
        state.net = StripQuotes(NddToken(line, 3));
    } else if (StartsWith(line, "%powerport")) {
        state.net = StripQuotes(NddToken(line, 3));
        state.port = StripQuotes(NddToken(line, 4));
    } else if (PropertyValue(line, tokens, state.pinNumber, value)) {
        state.port = value;
        if (!state.component) return;
        for (PinRec* pin : state.pins.Named(*state.component, value)) pin->net = state.net;
    }
}

}  // namespace

void GetPinNetInfo(base::LineStream& stream, const std::string& inputPath) {
    std::string folder = InputFolder(inputPath);
    GateState state;
    bool inGates = false;
    std::string line;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (line[0] == '#') continue;
        if (!inGates) {
            if (!Contains(line, "%gate") || Contains(line, "%gatedef")) continue;
            inGates = true;
        }
        if (StartsWith(line, "%net") || StartsWith(line, "%part")) return;
        GateLine(line, state, folder);
    }
}
