#include "dialogs/SignalPinRows.h"

#include "ui/UiListCtrl.h"

namespace {

struct Column {
    const char* title;
    int width;
};
const Column kColumns[] = {{"Pins", 45},       {"Pull dwn ", 60}, {"Pull up", 60},
                           {"Gnd clmp", 60},   {"Pwr clmp", 60},  {"Signal Name", 60},
                           {"Model Type", 60}, {"Model Name", 60}};

std::string Cell(const CUiListCtrl& list, int row, int column) {
    return list.GetItemText(row, column).toStdString();
}

}  // namespace

void FillSignalPinRows(CUiListCtrl& list, const ComponentRec& component) {
    list.SetCheckBoxes(true);
    if (list.GetColumnCount() == 0) {
        int at = 0;
        for (const Column& column : kColumns) list.InsertColumn(at++, column.title, column.width);
    }
    list.DeleteAllItems();
    for (const PinRec& pin : component.pins) {
        if (pin.pinClass != 0) continue;
        int row = list.InsertItem(list.GetItemCount(), QString::fromStdString(pin.name));
        const PinModelFields& m = pin.Model();
        const std::string* cells[] = {&m.pulldownRef,   &m.pullupRef,  &m.gndClampRef,
                                      &m.powerClampRef, &m.signalName, &m.modelType,
                                      &m.modelName};
        int column = kColPulldown;
        for (const std::string* cell : cells)
            list.SetItemText(row, column++, QString::fromStdString(*cell));
        UpdateRowCheck(list, row);
    }
}

void UpdateRowCheck(CUiListCtrl& list, int row) {
    auto set = [&](int column) { return !list.GetItemText(row, column).isEmpty(); };
    bool above = set(kColPullup) || set(kColPowerClamp);
    bool below = set(kColPulldown) || set(kColGndClamp);
    list.SetCheck(row, above && below);
}

void ClearGroupCells(CUiListCtrl& list, const std::string& group) {
    const QString name = QString::fromStdString(group);
    for (int row = 0; row < list.GetItemCount(); ++row) {
        bool changed = false;
        for (int column = kFirstRefColumn; column <= kLastRefColumn; ++column) {
            if (list.GetItemText(row, column) != name) continue;
            list.SetItemText(row, column, QString());
            changed = true;
        }
        if (changed) UpdateRowCheck(list, row);
    }
}

void ClearRowCells(CUiListCtrl& list, int row) {
    for (int column = kFirstRefColumn; column <= kLastRefColumn; ++column)
        list.SetItemText(row, column, QString());
}

std::vector<SignalPinRefs> SignalPinRefRows(const CUiListCtrl& list) {
    std::vector<SignalPinRefs> rows;
    for (int row = 0; row < list.GetItemCount(); ++row)
        rows.push_back({Cell(list, row, kColPin), Cell(list, row, kColPulldown),
                        Cell(list, row, kColPullup), Cell(list, row, kColGndClamp),
                        Cell(list, row, kColPowerClamp)});
    return rows;
}
