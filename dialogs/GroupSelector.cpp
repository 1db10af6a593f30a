#include "dialogs/GroupSelector.h"

#include <QComboBox>
#include <algorithm>

#include "dialogs/SignalPinRows.h"
#include "dialogs/forms/ControlIds.h"
#include "ibis/ModelTable.h"
#include "ui/UiListCtrl.h"

namespace {

constexpr char kNone[] = "<none>";

// Each box: the reference column it fills, the kind of group it offers, the model node a
// row's model needs for it.
struct BoxRole {
    int id;
    int column;
    const char* kind;
    const char* node;
};
const BoxRole kBoxes[] = {{IDC_COMBO_PULL_DOWN, kColPulldown, "PD", "nd_pd"},
                          {IDC_COMBO_PULL_UP, kColPullup, "PU", "nd_pu"},
                          {IDC_COMBO_POWER_CLAMP, kColPowerClamp, "PU", "nd_pc"},
                          {IDC_COMBO_GROUND_CLAMP, kColGndClamp, "PD", "nd_gc"}};

std::vector<int> CheckedRows(const CUiListCtrl& list) {
    std::vector<int> rows;
    for (int row = 0; row < list.GetItemCount(); ++row)
        if (list.GetCheck(row)) rows.push_back(row);
    return rows;
}

}  // namespace

CGroupSelector::CGroupSelector(std::string partNumber, const std::vector<PinGroupRec>& groups,
                               CUiListCtrl& pins, QWidget* parent)
    : CUiDialog(IDD_DIALOG_GROUP_SELECTOR, parent),
      m_partNumber(std::move(partNumber)),
      m_groups(groups),
      m_pins(pins) {}

QComboBox* CGroupSelector::Box(int id) {
    CUiWnd* control = GetDlgItem(id);
    return control ? qobject_cast<QComboBox*>(control->GetHandle()) : nullptr;
}

bool CGroupSelector::OnInitDialog() {
    CUiDialog::OnInitDialog();
    if (GetHandle())
        GetHandle()->setWindowTitle(
            QString::fromStdString("Please Assign Groups for Part No: " + m_partNumber));
    for (const BoxRole& role : kBoxes) FillBox(role.id, role.column, role.kind);
    return true;
}

// The box shows the rows' common value; rows that differ leave it at "<none>".
void CGroupSelector::FillBox(int id, int column, const std::string& kind) {
    QComboBox* box = Box(id);
    if (!box) return;
    box->clear();
    box->addItem(kNone);
    for (const PinGroupRec& group : m_groups)
        if (group.kind == kind && !group.pins.empty())
            box->addItem(QString::fromStdString(group.group));
    std::vector<int> rows = CheckedRows(m_pins);
    if (rows.empty()) return;
    QString first = m_pins.GetItemText(rows.front(), column);
    bool agree = std::all_of(rows.begin(), rows.end(),
                             [&](int row) { return m_pins.GetItemText(row, column) == first; });
    int at = agree ? box->findText(first) : -1;
    box->setCurrentIndex(std::max(0, at));
}

void CGroupSelector::OnOK() {
    for (int row : CheckedRows(m_pins)) {
        std::vector<std::string> nodes =
            ModelNodesOf(m_pins.GetItemText(row, kColModelType).toStdString());
        for (const BoxRole& role : kBoxes) {
            QComboBox* box = Box(role.id);
            if (!box || std::find(nodes.begin(), nodes.end(), role.node) == nodes.end()) continue;
            QString value = box->currentText();
            m_pins.SetItemText(row, role.column, value == kNone ? QString() : value);
        }
        UpdateRowCheck(m_pins, row);
    }
    CUiDialog::OnOK();
}
