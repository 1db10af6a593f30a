#pragma once
// The left list of the pin mapping dialog: one row per signal pin with its four references,
// its signal name, model type and model name. A row is checked when it names a bus above
// (pull up or power clamp) and one below (pull down or gnd clamp).
#include <string>
#include <vector>

#include "ibis/PinMappingRows.h"
#include "model/ComponentRecords.h"

class CUiListCtrl;

// Columns of the list.
enum SignalPinColumn {
    kColPin = 0,
    kColPulldown = 1,
    kColPullup = 2,
    kColGndClamp = 3,
    kColPowerClamp = 4,
    kColSignal = 5,
    kColModelType = 6,
    kColModelName = 7
};
constexpr int kFirstRefColumn = kColPulldown;
constexpr int kLastRefColumn = kColPowerClamp;

// Headings, check boxes and a row per signal pin of the component.
void FillSignalPinRows(CUiListCtrl& list, const ComponentRec& component);
// Checks the row exactly when it names a bus above and one below.
void UpdateRowCheck(CUiListCtrl& list, int row);
// Empties the reference cells that name the group, and checks their rows again.
void ClearGroupCells(CUiListCtrl& list, const std::string& group);
// Empties the four reference cells of a row.
void ClearRowCells(CUiListCtrl& list, int row);
// The rows as the mapping store takes them.
std::vector<SignalPinRefs> SignalPinRefRows(const CUiListCtrl& list);
