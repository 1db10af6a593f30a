#include "dialogs/PinGroups.h"

#include <algorithm>

#include "ibis/PinMappingRows.h"

namespace {

size_t FindGroup(const std::vector<PinGroupRec>& groups, const std::string& name) {
    for (size_t i = 0; i < groups.size(); ++i)
        if (groups[i].group == name) return i;
    return groups.size();
}

PinGroupRec NewGroup(const std::string& name, const std::string& kind, int order) {
    PinGroupRec group;
    group.kind = kind;
    group.group = name;
    group.order = order;
    return group;
}

// The group of the name, made at the end when there is none yet.
PinGroupRec& GroupOf(std::vector<PinGroupRec>& groups, const std::string& name,
                     const std::string& kind) {
    size_t at = FindGroup(groups, name);
    if (at == groups.size())
        groups.push_back(NewGroup(name, kind, static_cast<int>(groups.size())));
    return groups[at];
}

bool IsPowerOrGround(const PinGroupRec& group) {
    return group.kind == "PU" || group.kind == "PD";
}

}  // namespace

std::vector<PinGroupRec> MakePinGroups(const ComponentRec& component) {
    std::vector<PinGroupRec> groups;
    bool named = std::any_of(component.pins.begin(), component.pins.end(), [](const PinRec& p) {
        return (p.pinClass == 1 && !p.Model().powerGroup.empty()) ||
               (p.pinClass == 2 && !p.Model().groundGroup.empty());
    });
    if (!named) {
        GroupOf(groups, "PWRGRP0", "PU");
        GroupOf(groups, "GNDGRP0", "PD");
    }
    std::vector<std::string> available;
    for (const PinRec& pin : component.pins) {
        const PinModelFields& m = pin.Model();
        if (pin.pinClass == 1)
            GroupOf(groups, m.powerGroup.empty() ? "PWRGRP0" : m.powerGroup, "PU")
                .pins.push_back(pin.name);
        else if (pin.pinClass == 2)
            GroupOf(groups, m.groundGroup.empty() ? "GNDGRP0" : m.groundGroup, "PD")
                .pins.push_back(pin.name);
        else if (pin.pinClass < 0)
            available.push_back(pin.name);
    }
    PinGroupRec all = NewGroup(kAvailablePinsGroup, "ALL", static_cast<int>(groups.size()));
    all.pins = available;
    groups.push_back(all);
    for (PinGroupRec& group : groups) group.state = GroupImage(group);
    return groups;
}

int GroupImage(const PinGroupRec& group) {
    int base = kImagePowerClosed;
    if (group.kind == "PD" || group.kind == "GC") base = kImageGroundClosed;
    if (group.kind == "ALL") base = kImageAllClosed;
    if (group.pins.empty()) return base + 2;
    return base + (group.isOpen ? 1 : 0);
}

std::string PinRowText(const PinRec& pin) {
    if (pin.pinClass == 1) return pin.name + " -  PWR";
    if (pin.pinClass == 2) return pin.name + " -  GND";
    if (pin.pinClass < 0) return pin.name + " -  NC";
    if (pin.Model().signalName.empty()) return pin.name + " -  NP**";
    return pin.name;
}

std::string PinOfRowText(const std::string& text) {
    std::string pin = text.substr(0, std::min(text.size(), text.rfind('-')));
    while (!pin.empty() && pin.back() == ' ') pin.pop_back();
    return pin;
}

std::string FirstFreeGroupName(const std::vector<PinGroupRec>& groups, const std::string& prefix) {
    for (int n = 0;; ++n) {
        std::string name = prefix + std::to_string(n);
        if (FindGroup(groups, name) == groups.size()) return name;
    }
}

size_t AddPinGroup(std::vector<PinGroupRec>& groups, const std::string& name,
                   const std::string& kind) {
    size_t at = groups.empty() ? 0 : groups.size() - 1;
    PinGroupRec group = NewGroup(name, kind, static_cast<int>(groups.size()));
    group.state = GroupImage(group);
    groups.insert(groups.begin() + static_cast<std::ptrdiff_t>(at), group);
    return at;
}

std::string GroupDeleteRefusal(const std::vector<PinGroupRec>& groups, size_t index) {
    const PinGroupRec& group = groups[index];
    if (group.group == kAvailablePinsGroup) return "\"AVAILABLE PINS\" Group can't be deleted";
    if (!IsPowerOrGround(group)) return "";
    auto same = std::count_if(groups.begin(), groups.end(), [&](const PinGroupRec& g) {
        return g.kind == group.kind && g.group != kAvailablePinsGroup;
    });
    if (same > 1) return "";
    return "This Group : " + group.group + " cannot be deleted\n" +
           (group.kind == "PU" ? "Ateast One Power Group should be there ."
                               : "Ateast One Gnd Group should be there .");
}

void DeletePinGroup(std::vector<PinGroupRec>& groups, size_t index) {
    std::vector<std::string> pins = groups[index].pins;
    groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(index));
    PinGroupRec& all = groups.back();
    all.pins.insert(all.pins.end(), pins.begin(), pins.end());
    all.state = GroupImage(all);
}

std::vector<std::string> MovePins(std::vector<PinGroupRec>& groups,
                                  const std::vector<std::string>& pins, size_t target) {
    std::vector<std::string> emptied;
    std::vector<std::string> moved;
    for (size_t g = 0; g < groups.size(); ++g) {
        if (g == target) continue;
        std::vector<std::string>& own = groups[g].pins;
        size_t before = own.size();
        for (const std::string& pin : pins) {
            auto it = std::find(own.begin(), own.end(), pin);
            if (it == own.end()) continue;
            own.erase(it);
            moved.push_back(pin);
        }
        if (before > 0 && own.empty()) emptied.push_back(groups[g].group);
        groups[g].state = GroupImage(groups[g]);
    }
    std::vector<std::string>& into = groups[target].pins;
    into.insert(into.begin(), moved.begin(), moved.end());
    groups[target].state = GroupImage(groups[target]);
    return emptied;
}

std::vector<GroupRec> GroupRecords(const std::vector<PinGroupRec>& groups) {
    std::vector<GroupRec> records;
    for (const PinGroupRec& group : groups)
        records.push_back({group.group, group.kind, group.pins});
    return records;
}
