#pragma once
// The power and ground groups of one component as the pin mapping dialog edits them: each
// group with its pins, "AVAILABLE PINS" (the pins of no group) always last. The rules of
// adding, deleting and moving live here, apart from the list that shows them.
#include <string>
#include <vector>

#include "model/ComponentRecords.h"

// One row of the groups list: a group, or a pin of a group.
struct PinGroupRec {
    int state = 0;                  // image number of the row
    std::string kind;               // "PU", "PD", "PC", "GC", "ALL"; a pin row: its group's
    int isGroup = 1;                // 1 group row, 0 pin row
    int isOpen = 0;                 // 1 when the group's pins are shown
    std::vector<std::string> pins;  // the pins of a group
    int order = 0;                  // group number at the start; 4 for pin rows
    int isOpenable = 1;             // 1 for a group
    std::string group;              // the group's name, or the group of a pin row
    std::string pinName;            // the pin of a pin row
};

// Row images: power group closed, open, empty; ground group the same; "ALL"; a pin.
enum PinGroupImage {
    kImagePowerClosed = 0,
    kImagePowerOpen = 1,
    kImagePowerEmpty = 2,
    kImageGroundClosed = 3,
    kImageGroundOpen = 4,
    kImageGroundEmpty = 5,
    kImageAllClosed = 6,
    kImageAllOpen = 7,
    kImageAllEmpty = 8,
    kImagePin = 9,
    kPinGroupImageCount = 10
};

// The groups of a component as its pins name them: power pins in their powerGroup, ground
// pins in their groundGroup, "PWRGRP0" and "GNDGRP0" for those with none (made, empty, when
// the file names no group at all), pins of no class in "AVAILABLE PINS".
std::vector<PinGroupRec> MakePinGroups(const ComponentRec& component);

// The image a group row shows now.
int GroupImage(const PinGroupRec& group);
// The text of a pin row: the pin, or "<pin> -  PWR" (GND, NC, NP**) by its class.
std::string PinRowText(const PinRec& pin);
// The pin of a row text: cut at the last "-", trailing blanks dropped.
std::string PinOfRowText(const std::string& text);

// The first name of prefix followed by 0, 1, 2... that no group has.
std::string FirstFreeGroupName(const std::vector<PinGroupRec>& groups, const std::string& prefix);
// Adds a group before "AVAILABLE PINS"; returns its position.
size_t AddPinGroup(std::vector<PinGroupRec>& groups, const std::string& name,
                   const std::string& kind);

// Why the group at index may not be deleted, as the message says it; "" when it may.
std::string GroupDeleteRefusal(const std::vector<PinGroupRec>& groups, size_t index);
// Deletes the group at index; its pins go to "AVAILABLE PINS".
void DeletePinGroup(std::vector<PinGroupRec>& groups, size_t index);

// Moves the pins behind the head of the target group. Returns the names of the groups that
// went empty by the move.
std::vector<std::string> MovePins(std::vector<PinGroupRec>& groups,
                                  const std::vector<std::string>& pins, size_t target);

// The groups as the mapping store takes them.
std::vector<GroupRec> GroupRecords(const std::vector<PinGroupRec>& groups);
