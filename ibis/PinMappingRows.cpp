#include "ibis/PinMappingRows.h"

namespace {

PinRec* FindPin(ComponentRec& component, const std::string& name) {
    for (PinRec& pin : component.pins)
        if (pin.name == name) return &pin;
    return nullptr;
}

void StoreGroupPin(PinRec& pin, const GroupRec& group) {
    if (group.name == kAvailablePinsGroup) {
        pin.modelName = pin.signalName = pin.powerGroup = pin.groundGroup = "NC";
        pin.pinClass = -1;
    } else if (group.kind == "PU") {
        pin.modelName = "POWER";
        pin.powerGroup = group.name;
        pin.pinClass = 1;
        if (pin.signalName.empty()) pin.signalName = "SIGNAL";
    } else if (group.kind == "PD") {
        pin.modelName = "GND";
        pin.groundGroup = group.name;
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
    return both(pin.pullupRef, pin.pulldownRef) || both(pin.powerClampRef, pin.gndClampRef) ||
           both(pin.pullupRef, pin.gndClampRef) || both(pin.pulldownRef, pin.powerClampRef);
}

void StoreMappingRows(ComponentRec& component, const std::vector<SignalPinRefs>& rows,
                      const std::vector<GroupRec>& groups) {
    bool complete = true;
    for (const SignalPinRefs& row : rows) {
        PinRec* pin = FindPin(component, row.pin);
        if (!pin) continue;
        pin->pulldownRef = row.pulldown;
        pin->pullupRef = row.pullup;
        pin->gndClampRef = row.gndClamp;
        pin->powerClampRef = row.powerClamp;
        complete = complete && HasOpposingReferences(*pin);
    }
    component.mappingComplete = complete ? 1 : 0;
    for (const GroupRec& group : groups)
        for (const std::string& name : group.pins)
            if (PinRec* pin = FindPin(component, name)) StoreGroupPin(*pin, group);
}
