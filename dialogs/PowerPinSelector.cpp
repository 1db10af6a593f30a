#include "dialogs/PowerPinSelector.h"

#include <QHeaderView>

#include "dialogs/GroupSelector.h"
#include "dialogs/SignalPinRows.h"
#include "dialogs/forms/ControlIds.h"
#include "ibis/PinMappingWriter.h"
#include "model/ReportMessage.h"
#include "model/TranslationHost.h"
#include "ui/UiListCtrl.h"

namespace {

bool Ask(const std::string& question) {
    return ReportMessage(question, kBoxYesNo) == kAnswerYes;
}

}  // namespace

CPowerPinSelector::CPowerPinSelector(ComponentRec& component, QWidget* parent)
    : CUiDialog(IDD_DIALOG_PIN_GROUPING, parent), m_component(component) {}

const CClassFunctionCall* CPowerPinSelector::GetChainHead() const {
    static const CHandlerChain chain(
        CUiDialog::GetChainHead(),
        OnCommand(IDC_BUTTON_ADD_GROUP, UI_FN(&CPowerPinSelector::OnAddGroup)),
        OnCommand(IDC_BUTTON_ADD_GND_GROUP, UI_FN(&CPowerPinSelector::OnAddGndGroup)),
        OnCommand(IDC_BUTTON_ADD_PC_GROUP, UI_FN(&CPowerPinSelector::OnAddPcGroup)),
        OnCommand(IDC_BUTTON_ADD_GC_GROUP, UI_FN(&CPowerPinSelector::OnAddGcGroup)),
        OnCommand(IDC_BUTTON_DELETE_GROUP, UI_FN(&CPowerPinSelector::OnDeleteGroup)),
        OnCommand(IDC_BUTTON_CHECK_ALL, UI_FN(&CPowerPinSelector::OnCheckAll)),
        OnCommand(IDC_BUTTON_UNCHECK_ALL, UI_FN(&CPowerPinSelector::OnUncheckAll)),
        OnCommand(IDC_BUTTON_RESET_ALL, UI_FN(&CPowerPinSelector::OnResetAll)),
        OnCommand(IDC_BUTTON_DELETE_ROW, UI_FN(&CPowerPinSelector::OnDeleteRow)),
        OnCommand(IDC_BUTTON_LINK_GROUPS, UI_FN(&CPowerPinSelector::OnLinkGroups)));
    return chain.Head();
}

CUiListCtrl* CPowerPinSelector::PinList() {
    CUiWnd* control = GetDlgItem(IDC_LIST_LINKAGE_CREATOR);
    return control ? qobject_cast<CUiListCtrl*>(control->GetHandle()) : nullptr;
}

CUiListCtrl* CPowerPinSelector::GroupList() {
    CUiWnd* control = GetDlgItem(IDC_LIST_CTRL_MAKE_GROUPS);
    return control ? qobject_cast<CUiListCtrl*>(control->GetHandle()) : nullptr;
}

bool CPowerPinSelector::OnInitDialog() {
    CUiDialog::OnInitDialog();
    CUiListCtrl* pins = PinList();
    CUiListCtrl* groups = GroupList();
    if (!pins || !groups) return true;
    GetHandle()->setWindowTitle(
        QString::fromStdString("Create Pin Mapping for Part No: " + m_component.partNumber));
    FillSignalPinRows(*pins, m_component);
    QObject::connect(pins, &CUiListCtrl::headingClicked, GetHandle(),
                     [this](int column) { SortPins(column); });
    std::map<std::string, std::string> texts;
    for (const PinRec& pin : m_component.pins) texts[pin.name] = PinRowText(pin);
    groups->SetSingleSelection(false);
    m_groups.Attach(groups, MakePinGroups(m_component), std::move(texts));
    // Cells that name a group which a drag left empty name nothing any more.
    m_groups.SetEmptiedHandler([this](const std::vector<std::string>& emptied) {
        for (const std::string& group : emptied) ClearGroupCells(*PinList(), group);
    });
    return true;
}

void CPowerPinSelector::SortPins(int column) {
    m_sortAscending = column == m_sortColumn ? !m_sortAscending : true;
    m_sortColumn = column;
    PinList()->SortByColumn(column, m_sortAscending);
}

void CPowerPinSelector::AddGroup(const char* prefix, const char* kind) {
    std::vector<PinGroupRec>& groups = m_groups.Groups();
    AddPinGroup(groups, FirstFreeGroupName(groups, prefix), kind);
    m_groups.Refresh();
}

void CPowerPinSelector::OnAddGroup() {
    AddGroup("PWRGRP", "PU");
}
void CPowerPinSelector::OnAddGndGroup() {
    AddGroup("GNDGRP", "PD");
}
void CPowerPinSelector::OnAddPcGroup() {
    AddGroup("PC_GRP", "PC");
}
void CPowerPinSelector::OnAddGcGroup() {
    AddGroup("GC_GRP", "GC");
}

void CPowerPinSelector::OnDeleteGroup() {
    HostScope boxes(m_boxHost);
    CUiListCtrl* list = GroupList();
    QVector<int> chosen = list->GetSelectedRows();
    if (chosen.size() > 1) {
        ReportMessage("Please Choose Only One Group At a Time !\nNote : Pins can't be deleted ");
        return;
    }
    if (chosen.isEmpty()) return;
    const int row = chosen.front();
    if (!m_groups.PinOfRow(row).empty()) {
        ReportMessage("Pins Can't be Deleted !\nPlease Select a Group");
        return;
    }
    std::vector<PinGroupRec>& groups = m_groups.Groups();
    const auto index = static_cast<size_t>(m_groups.GroupOfRow(row));
    std::string refusal = GroupDeleteRefusal(groups, index);
    if (!refusal.empty()) {
        ReportMessage(refusal);
        return;
    }
    if (!Ask("Are you sure , you want to\ndelete this Group ?")) return;
    const std::string name = groups[index].group;
    DeletePinGroup(groups, index);
    m_groups.Refresh();
    ClearGroupCells(*PinList(), name);
}

void CPowerPinSelector::CheckAll(bool on) {
    CUiListCtrl* list = PinList();
    for (int row = 0; row < list->GetItemCount(); ++row) list->SetCheck(row, on);
}

void CPowerPinSelector::OnCheckAll() {
    CheckAll(true);
}

void CPowerPinSelector::OnUncheckAll() {
    CheckAll(false);
}

void CPowerPinSelector::OnResetAll() {
    CheckAll(false);
    CUiListCtrl* list = PinList();
    for (int row = 0; row < list->GetItemCount(); ++row) ClearRowCells(*list, row);
}

void CPowerPinSelector::OnDeleteRow() {
    HostScope boxes(m_boxHost);
    if (!Ask("Are you sure , you want to\ndelete these row(s) ?")) return;
    CUiListCtrl* list = PinList();
    for (int row = 0; row < list->GetItemCount(); ++row) {
        if (!list->GetCheck(row)) continue;
        ClearRowCells(*list, row);
        UpdateRowCheck(*list, row);
    }
}

void CPowerPinSelector::OnLinkGroups() {
    CGroupSelector selector(m_component.partNumber, m_groups.Groups(), *PinList(), GetHandle());
    selector.DoModal();
}

void CPowerPinSelector::StoreDialogRows() {
    StoreMappingRows(m_component, SignalPinRefRows(*PinList()), GroupRecords(m_groups.Groups()));
}

void CPowerPinSelector::OnOK() {
    HostScope boxes(m_boxHost);
    if (PinList()) {
        StoreDialogRows();
        PinMappingWriter(m_component);
    }
    CUiDialog::OnOK();
}

void CPowerPinSelector::OnCancel() {
    bool save = false;
    {
        HostScope boxes(m_boxHost);
        save = Ask("Do You want to save the File ?");
    }
    if (save)
        OnOK();
    else
        CUiDialog::OnCancel();
}
