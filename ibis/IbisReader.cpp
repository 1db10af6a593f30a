#include "ibis/IbisReader.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "ibis/ModelTable.h"
#include "ibis/PinMappingRows.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"

namespace {

constexpr size_t kIbisLineBuffer = 1024;
int g_nModelProblems = 0;

using Rails = std::unordered_map<std::string, std::string>;

bool IsComment(const std::string& line) {
    return !line.empty() && line[0] == '|';
}

int32_t PinClassOfModel(const std::string& model) {
    if (EqualsNoCase(model, "POWER")) return 1;
    if (EqualsNoCase(model, "GND")) return 2;
    if (model == "NC" || model == "nc") return -1;
    return 0;
}

// The four references of a signal pin, and which of their nodes its model has.
struct MappingRow {
    std::string t2, t3, t4, t5;
};
struct RefNodes {
    bool pu = false, pd = false, pc = false, gc = false;
};

// One reading of the file into one component. The rails pass runs the same reading first
// and only collects which bus names are power and which are ground.
class IbisScan {
  public:
    IbisScan(ComponentRec& component, Rails& rails, bool railsPass)
        : c_(component), rails_(rails), railsPass_(railsPass) {}
    void Run();

  private:
    bool ReadLine() { return stream_->ReadLine(line_, kIbisLineBuffer); }
    void Fail(bool foreignPin);
    bool ReadPinTable();
    void ReadPinMapping();
    void MapSignalPin(PinRec& pin, const MappingRow& row);
    bool ReadModels();
    void NameNodes();
    PinRec* FindPin(const std::string& name) const {
        auto it = pinsByName_.find(name);
        return it == pinsByName_.end() ? nullptr : it->second;
    }
    std::string Kind(const std::string& bus) const {
        if (bus.empty()) return "";
        auto it = rails_.find(bus);
        return it == rails_.end() ? std::string() : it->second;
    }

    ComponentRec& c_;
    Rails& rails_;
    bool railsPass_;
    std::unique_ptr<base::LineStream> stream_;
    std::string line_;
    bool haveLine_ = false;  // line_ holds the line that ended the last table
    std::unordered_map<std::string, PinRec*> pinsByName_;
    int pinRows_ = 0, mappingRows_ = 0, incomplete_ = 0;
};

void IbisScan::Fail(bool foreignPin) {
    ++g_nModelProblems;
    c_.ibisError = 1;
    c_.mappingComplete = 0;
    if (foreignPin) c_.pinsMatch = 0;
}

void IbisScan::Run() {
    c_.pinsMatch = 1;
    if (c_.ibisFile.empty() || !(stream_ = OpenTextFile(c_.ibisFile))) {
        Fail(false);
        return;
    }
    c_.ibisOpened = 1;
    c_.ibisError = 0;
    for (PinRec& pin : c_.pins) pinsByName_.emplace(pin.name, &pin);
    while (ReadLine())
        if (!IsComment(line_) && Contains(line_, "[Pin]")) break;
    if (!ReadPinTable()) return;
    if (haveLine_ && StartsWith(line_, "[Pin Mapping]")) ReadPinMapping();
    if (!ReadModels()) return;
    if (railsPass_) return;
    NameNodes();
    c_.mappingComplete = pinRows_ == mappingRows_ && pinRows_ != 0 && incomplete_ == 0;
}

bool IbisScan::ReadPinTable() {
    struct Row {
        PinRec* pin;
        std::string signal, model;
    };
    std::vector<Row> rows;
    while (ReadLine()) {
        std::string pinName = NddToken(line_, 1);
        if (pinName.empty() || pinName[0] == '|' || IsComment(line_)) continue;
        if (pinName[0] == '[') {
            haveLine_ = true;
            break;
        }
        PinRec* pin = FindPin(pinName);
        if (!pin) {
            Fail(true);
            return false;
        }
        ++pinRows_;
        rows.push_back({pin, NddToken(line_, 2), NddToken(line_, 3)});
    }
    for (const Row& row : rows) {
        PinModelFields& m = row.pin->EditModel();
        m.modelName = row.model;
        m.modelNameAsRead = row.model;
        m.signalName = row.signal;
        row.pin->pinClass = PinClassOfModel(row.model);
    }
    return true;
}

void IbisScan::ReadPinMapping() {
    haveLine_ = false;
    while (ReadLine()) {
        if (line_[0] == '[') {
            haveLine_ = true;
            return;
        }
        std::string tokens[5];
        std::string rest = line_;
        for (std::string& token : tokens) {
            int pos = kNoPosition;
            token = NddGetToken(rest, pos);
            if (token.empty()) break;
            rest = Mid(rest, pos);
        }
        if (tokens[0].empty() || IsComment(line_)) continue;
        PinRec* pin = FindPin(tokens[0]);
        if (!pin) {
            haveLine_ = true;  // the reading goes on at this line
            return;
        }
        ++mappingRows_;
        MappingRow row{tokens[1], tokens[2], tokens[3], tokens[4]};
        if (pin->pinClass == 1) {
            if (railsPass_ && !row.t3.empty()) rails_[row.t3] = "PWR";
            if (!railsPass_) pin->EditModel().powerGroup = row.t3;
        } else if (pin->pinClass == 2) {
            if (railsPass_ && !row.t2.empty()) rails_[row.t2] = "GND";
            if (!railsPass_) pin->EditModel().groundGroup = row.t2;
        } else if (pin->pinClass == 0 && !railsPass_) {
            MapSignalPin(*pin, row);
        }
    }
}

// Sorts the buses of a mapping row by their kind, not by their column, so that a row that
// lists a power bus first or leaves columns out still gives the right references.
void ChooseReferences(const MappingRow& r, const std::string& k2, const std::string& k3,
                      const std::string& k4, std::string ref[4]) {
    // ref: pulldown, pullup, gnd clamp, power clamp
    auto set = [&](std::string pd, std::string pu, std::string gc, std::string pc) {
        ref[0] = std::move(pd), ref[1] = std::move(pu), ref[2] = std::move(gc),
        ref[3] = std::move(pc);
    };
    if (r.t2.empty()) return;
    const std::string none;
    if (k2 == "GND") {
        if (r.t3.empty()) return set(r.t2, none, r.t2, none);
        if (k3 == "GND") {
            if (r.t4.empty()) return set(r.t2, none, r.t3, none);
            if (k4 == "GND") return set(r.t2, none, r.t4, none);
            if (k4 == "PWR") return set(r.t2, r.t4, r.t5, r.t4);
        } else if (k3 == "PWR") {
            if (r.t4.empty()) return set(r.t2, r.t3, r.t2, r.t3);
            if (k4 == "PWR") return set(r.t2, r.t3, r.t2, r.t4);
            if (k4 == "GND") return set(r.t2, r.t3, r.t4, r.t5.empty() ? r.t3 : r.t5);
        }
    } else if (k2 == "PWR") {
        if (r.t3.empty()) return set(none, r.t2, none, r.t2);
        if (k3 == "PWR" && r.t4.empty()) return set(none, r.t2, none, r.t3);
        if (k3 == "GND") {
            if (r.t4.empty()) return set(r.t3, r.t2, r.t3, r.t2);
            if (k4 == "PWR") return set(r.t3, r.t2, r.t3, r.t4);
        }
    }
}

void IbisScan::MapSignalPin(PinRec& pin, const MappingRow& row) {
    RefNodes has;
    for (const std::string& node : ModelNodesOf(pin.Model().modelType)) {
        has.pu |= node == "nd_pu";
        has.pd |= node == "nd_pd";
        has.pc |= node == "nd_pc";
        has.gc |= node == "nd_gc";
    }
    std::string ref[4];
    ChooseReferences(row, Kind(row.t2), Kind(row.t3), Kind(row.t4), ref);
    PinModelFields& m = pin.EditModel();
    m.pulldownRef = has.pd ? ref[0] : std::string();
    m.pullupRef = has.pu ? ref[1] : std::string();
    m.gndClampRef = has.gc ? ref[2] : std::string();
    m.powerClampRef = has.pc ? ref[3] : std::string();
    if (!HasOpposingReferences(pin)) ++incomplete_;
}

bool IbisScan::ReadModels() {
    std::unordered_map<std::string, std::vector<PinRec*>> pinsByModel;
    for (PinRec& pin : c_.pins) pinsByModel[pin.Model().modelName].push_back(&pin);
    bool first = true;
    bool more = haveLine_ || ReadLine();
    for (; more; more = ReadLine()) {
        if (IsComment(line_) || !StartsWith(line_, "[Model]")) continue;
        std::string name = NddToken(line_, 2);
        if (first && name.empty()) {
            c_.mappingComplete = 0;
            ++g_nModelProblems;
            return false;
        }
        first = false;
        while ((more = ReadLine()))
            if (!IsComment(line_) && !NddToken(line_, 1).empty()) break;
        if (!more) break;
        std::string type = NddToken(line_, 2);
        auto it = pinsByModel.find(name);
        if (it == pinsByModel.end()) continue;
        for (PinRec* pin : it->second) pin->EditModel().modelType = type;
    }
    return true;
}

void IbisScan::NameNodes() {
    for (PinRec& pin : c_.pins) {
        bool found = false;
        std::vector<std::string> nodes = ModelNodesOf(pin.Model().modelType, &found);
        pin.hasModel = found ? 1 : 0;
        if (!found) continue;
        PinModelFields& m = pin.EditModel();
        bool input = m.modelType == "Input" || m.modelType == "Input_ECL";
        bool fill = m.nodeNames.empty();
        for (const std::string& node : nodes) {
            std::string name = node + "_" + pin.name + "_" + m.modelType;
            if ((input && node == "nd_in") || (!input && node == "nd_out")) m.ioNode = name;
            if (fill) m.nodeNames.push_back(name);
        }
    }
}

}  // namespace

void ParseIbisFile(ComponentRec& component) {
    if (!component.isActive) return;
    Rails rails;
    IbisScan(component, rails, true).Run();
    IbisScan(component, rails, false).Run();
}

int IbisModelProblemCount() {
    return g_nModelProblems;
}

void ResetIbisModelProblems() {
    g_nModelProblems = 0;
}
