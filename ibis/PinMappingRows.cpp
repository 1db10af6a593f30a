#include "ibis/PinMappingRows.h"

namespace {

PinRec* FindPin(ComponentRec& component, const std::string& name) {
    for (PinRec& pin : component.pins)
        if (pin.name == name) return &pin;
    return nullptr;
}

void StoreGroupPin(PinRec& pin, const GroupRec& group) {
    if (group.name == kAvailablePinsGroup) {
        PinModelFields& m = pin.EditModel();
        m.modelName = m.signalName = m.powerGroup = m.groundGroup = "NC";
        pin.pinClass = -1;
    } else if (group.kind == "PU") {
        PinModelFields& m = pin.EditModel();
        m.modelName = "POWER";
        m.powerGroup = group.name;
        pin.pinClass = 1;
        if (m.signalName.empty()) m.signalName = "SIGNAL";
    } else if (group.kind == "PD") {
        PinModelFields& m = pin.EditModel();
        m.modelName = "GND";
        m.groundGroup = group.name;
        pin.pinClass = 2;
    }
}

}  // namespace

bool IsRealReference(const std::string& ref) {
    return !ref.empty() && ref != "NC" && ref != "nc";
}

bool HasOpposingReferences(const PinRec& pin) {
    auto both = [](const std::string& a, const std::string& b) {
        return IsRealReference(a) && IsRealReference(b);
    };
    const PinModelFields& m = pin.Model();
    return both(m.pullupRef, m.pulldownRef) || both(m.powerClampRef, m.gndClampRef) ||
           both(m.pullupRef, m.gndClampRef) || both(m.pulldownRef, m.powerClampRef);
}

void StoreMappingRows(ComponentRec& component, const std::vector<SignalPinRefs>& rows,
                      const std::vector<GroupRec>& groups) {
    bool complete = true;
    for (const SignalPinRefs& row : rows) {
        PinRec* pin = FindPin(component, row.pin);
        if (!pin) continue;
        PinModelFields& m = pin->EditModel();
        m.pulldownRef = row.pulldown;
        m.pullupRef = row.pullup;
        m.gndClampRef = row.gndClamp;
        m.powerClampRef = row.powerClamp;
        complete = complete && HasOpposingReferences(*pin);
    }
    component.mappingComplete = complete ? 1 : 0;
    for (const GroupRec& group : groups)
        for (const std::string& name : group.pins)
            if (PinRec* pin = FindPin(component, name)) StoreGroupPin(*pin, group);
}
