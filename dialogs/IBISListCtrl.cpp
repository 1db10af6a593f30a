#include "dialogs/IBISListCtrl.h"

#include <QTreeWidgetItem>
#include <algorithm>

#include "dialogs/RowImages.h"
#include "ui/UiListCtrl.h"

namespace {

constexpr int kPartWidth = 200;
constexpr int kStartWidth = 15;
constexpr int kMinimumWidth = 50;
// The check box of a row lies in its first 17 by 16 pixels.
constexpr int kCheckAreaWidth = 17;
constexpr int kCheckAreaHeight = 16;

}  // namespace

void CIBISListCtrl::Attach(CUiListCtrl* list) {
    m_list = list;
    if (!m_list) return;
    m_list->SetCheckBoxes(true);
    m_list->SetSingleSelection(true);
    m_list->SetImageList(IbisStateImages(), CUiListCtrl::kStateImages);
    if (m_list->GetColumnCount() == 0) {
        m_list->InsertColumn(kColPartNo, "Part No", kPartWidth);
        m_list->InsertColumn(kColIbisFile, "IBIS File Path", kStartWidth);
        m_list->InsertColumn(kColRefDes, "List Of RefDes ", kStartWidth);
    }
    connect(m_list, &CUiListCtrl::itemClicked, this,
            [this](int row, int, const QPoint& point) { OnClick(row, point); });
    connect(m_list, &CUiListCtrl::itemDoubleClicked, this, [this](int row, int) {
        if (onChooseFile) onChooseFile(row);
    });
}

int CIBISListCtrl::AddRow(const std::string& partNumber, const std::string& file,
                          const std::string& refDes, bool mapped) {
    const int row = m_list->InsertItem(m_list->GetItemCount(), QString::fromStdString(partNumber));
    if (QTreeWidgetItem* item = m_list->topLevelItem(row))
        item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
    m_list->SetItemText(row, kColRefDes, QString::fromStdString(refDes));
    ShowRowState(row, file, mapped, !file.empty());
    return row;
}

void CIBISListCtrl::ShowRowState(int row, const std::string& file, bool mapped, bool opened) {
    m_list->SetItemText(row, kColIbisFile, QString::fromStdString(file));
    m_list->SetCheck(row, mapped);
    m_list->SetItemStateImage(row, !opened ? kStateNoFile : mapped ? kStateMapped : kStateUnmapped);
}

void CIBISListCtrl::WidenColumns() {
    for (int column : {kColIbisFile, kColRefDes}) {
        m_list->resizeColumnToContents(column);
        m_list->SetColumnWidth(column, std::max(kMinimumWidth, m_list->GetColumnWidth(column)));
    }
}

void CIBISListCtrl::OnClick(int row, const QPoint& point) {
    const QRect rect = m_list->GetRowRect(row);
    const bool checkArea =
        point.x() - rect.left() < kCheckAreaWidth && point.y() - rect.top() < kCheckAreaHeight;
    if (checkArea && onChooseFile)
        onChooseFile(row);
    else if (!checkArea && onRowClicked)
        onRowClicked(row);
}
