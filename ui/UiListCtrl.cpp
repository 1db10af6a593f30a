#include "ui/UiListCtrl.h"

#include <QHeaderView>
#include <QMouseEvent>

#include <algorithm>

namespace {

// Where a row keeps what the toolkit does not: the program's value and the two image numbers.
constexpr int kDataRole = Qt::UserRole;
constexpr int kImageRole = Qt::UserRole + 1;
constexpr int kStateImageRole = Qt::UserRole + 2;
// The check state last reported, so that a change of text or image reports nothing.
constexpr int kReportedCheckRole = Qt::UserRole + 3;

QIcon IconAt(const QList<QIcon>& images, int index) {
    return index >= 0 && index < images.size() ? images[index] : QIcon();
}

}  // namespace

CUiListCtrl::CUiListCtrl(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setColumnCount(0);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, &CUiListCtrl::headingClicked);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CUiListCtrl::OnSelectionChanged);
    connect(this, &QTreeWidget::itemChanged, this, &CUiListCtrl::OnItemChanged);
}

QTreeWidgetItem* CUiListCtrl::Row(int row) const {
    return row >= 0 && row < topLevelItemCount() ? topLevelItem(row) : nullptr;
}

int CUiListCtrl::InsertColumn(int column, const QString& heading, int width) {
    const int count = columnCount();
    column = std::clamp(column, 0, count);
    QStringList headings;
    for (int i = 0; i < count; ++i) headings << headerItem()->text(i);
    headings.insert(column, heading);
    setColumnCount(count + 1);
    // The texts of the rows move one column to the right behind the new one.
    for (int r = 0; r < topLevelItemCount(); ++r) {
        QTreeWidgetItem* item = topLevelItem(r);
        for (int c = count; c > column; --c) item->setText(c, item->text(c - 1));
        if (column < count) item->setText(column, QString());
    }
    setHeaderLabels(headings);
    setColumnWidth(column, width);
    return column;
}

int CUiListCtrl::GetColumnCount() const {
    return columnCount();
}

void CUiListCtrl::SetColumnWidth(int column, int width) {
    setColumnWidth(column, width);
}

int CUiListCtrl::GetColumnWidth(int column) const {
    return columnWidth(column);
}

int CUiListCtrl::InsertItem(int row, const QString& text, int image) {
    if (columnCount() == 0) setColumnCount(1);
    row = std::clamp(row, 0, topLevelItemCount());
    auto* item = new QTreeWidgetItem();
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                   (m_checkBoxes ? Qt::ItemIsUserCheckable : Qt::NoItemFlags));
    item->setText(0, text);
    item->setData(0, kImageRole, image);
    item->setData(0, kStateImageRole, 0);
    if (m_checkBoxes) item->setCheckState(0, Qt::Unchecked);
    ShowImages(item);
    insertTopLevelItem(row, item);
    return row;
}

int CUiListCtrl::GetItemCount() const {
    return topLevelItemCount();
}

bool CUiListCtrl::DeleteItem(int row) {
    if (!Row(row)) return false;
    delete takeTopLevelItem(row);
    return true;
}

void CUiListCtrl::DeleteAllItems() {
    clear();
}

bool CUiListCtrl::SetItemText(int row, int column, const QString& text) {
    QTreeWidgetItem* item = Row(row);
    if (!item || column < 0 || column >= columnCount()) return false;
    item->setText(column, text);
    return true;
}

QString CUiListCtrl::GetItemText(int row, int column) const {
    QTreeWidgetItem* item = Row(row);
    return item ? item->text(column) : QString();
}

int CUiListCtrl::FindItem(const QString& text, int start) const {
    for (int r = std::max(start, 0); r < topLevelItemCount(); ++r)
        if (topLevelItem(r)->text(0) == text) return r;
    return -1;
}

void CUiListCtrl::SetImageList(const QList<QIcon>& images, ImageList which) {
    (which == kNormalImages ? m_images : m_stateImages) = images;
    for (int r = 0; r < topLevelItemCount(); ++r) ShowImages(topLevelItem(r));
}

// The first column shows the row's image, or its state image when it has no image.
void CUiListCtrl::ShowImages(QTreeWidgetItem* item) const {
    QIcon icon = IconAt(m_images, item->data(0, kImageRole).toInt());
    if (icon.isNull()) icon = IconAt(m_stateImages, item->data(0, kStateImageRole).toInt());
    item->setIcon(0, icon);
}

bool CUiListCtrl::SetItemImage(int row, int image) {
    QTreeWidgetItem* item = Row(row);
    if (!item) return false;
    item->setData(0, kImageRole, image);
    ShowImages(item);
    return true;
}

int CUiListCtrl::GetItemImage(int row) const {
    QTreeWidgetItem* item = Row(row);
    return item ? item->data(0, kImageRole).toInt() : -1;
}

bool CUiListCtrl::SetItemStateImage(int row, int image) {
    QTreeWidgetItem* item = Row(row);
    if (!item) return false;
    item->setData(0, kStateImageRole, image);
    ShowImages(item);
    return true;
}

int CUiListCtrl::GetItemStateImage(int row) const {
    QTreeWidgetItem* item = Row(row);
    return item ? item->data(0, kStateImageRole).toInt() : -1;
}

void CUiListCtrl::SetCheckBoxes(bool on) {
    m_checkBoxes = on;
    for (int r = 0; r < topLevelItemCount(); ++r) {
        QTreeWidgetItem* item = topLevelItem(r);
        item->setFlags(on ? item->flags() | Qt::ItemIsUserCheckable
                          : item->flags() & ~Qt::ItemIsUserCheckable);
        if (on)
            item->setCheckState(0, Qt::Unchecked);
        else
            item->setData(0, Qt::CheckStateRole, QVariant());
    }
}

bool CUiListCtrl::HasCheckBoxes() const {
    return m_checkBoxes;
}

bool CUiListCtrl::SetCheck(int row, bool checked) {
    QTreeWidgetItem* item = Row(row);
    if (!item || !m_checkBoxes) return false;
    item->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
    return true;
}

bool CUiListCtrl::GetCheck(int row) const {
    QTreeWidgetItem* item = Row(row);
    return item && m_checkBoxes && item->checkState(0) == Qt::Checked;
}

bool CUiListCtrl::SetItemData(int row, quintptr data) {
    QTreeWidgetItem* item = Row(row);
    if (!item) return false;
    item->setData(0, kDataRole, QVariant::fromValue(data));
    return true;
}

quintptr CUiListCtrl::GetItemData(int row) const {
    QTreeWidgetItem* item = Row(row);
    return item ? item->data(0, kDataRole).value<quintptr>() : 0;
}

void CUiListCtrl::SetSingleSelection(bool single) {
    setSelectionMode(single ? QAbstractItemView::SingleSelection
                            : QAbstractItemView::ExtendedSelection);
}

bool CUiListCtrl::SetItemSelected(int row, bool selected) {
    QTreeWidgetItem* item = Row(row);
    if (!item) return false;
    item->setSelected(selected);
    return true;
}

bool CUiListCtrl::IsItemSelected(int row) const {
    QTreeWidgetItem* item = Row(row);
    return item && item->isSelected();
}

int CUiListCtrl::GetSelectedCount() const {
    return GetSelectedRows().size();
}

QVector<int> CUiListCtrl::GetSelectedRows() const {
    QVector<int> rows;
    for (int r = 0; r < topLevelItemCount(); ++r)
        if (topLevelItem(r)->isSelected()) rows.append(r);
    return rows;
}

int CUiListCtrl::GetFocusedRow() const {
    QTreeWidgetItem* item = currentItem();
    return item ? indexOfTopLevelItem(item) : -1;
}

bool CUiListCtrl::SetFocusedRow(int row) {
    QTreeWidgetItem* item = Row(row);
    if (!item) return false;
    setCurrentItem(item, 0, QItemSelectionModel::NoUpdate);
    return true;
}

bool CUiListCtrl::EnsureVisible(int row) {
    QTreeWidgetItem* item = Row(row);
    if (!item) return false;
    scrollToItem(item);
    return true;
}

int CUiListCtrl::HitTest(const QPoint& point, int* column) const {
    const QModelIndex index = indexAt(point);
    if (column) *column = index.isValid() ? index.column() : -1;
    return index.isValid() ? index.row() : -1;
}

QRect CUiListCtrl::GetRowRect(int row) const {
    QTreeWidgetItem* item = Row(row);
    if (!item) return QRect();
    QRect rect = visualItemRect(item);
    rect.setLeft(0);
    return rect;
}

void CUiListCtrl::SortByColumn(int column, bool ascending) {
    sortItems(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void CUiListCtrl::mousePressEvent(QMouseEvent* event) {
    QTreeWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton) return;
    int column = -1;
    const int row = HitTest(event->pos(), &column);
    if (row >= 0) emit itemClicked(row, column, event->pos());
}

void CUiListCtrl::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    int column = -1;
    const int row = HitTest(event->pos(), &column);
    if (row >= 0) emit itemDoubleClicked(row, column);
}

void CUiListCtrl::OnSelectionChanged(const QItemSelection& selected,
                                     const QItemSelection& deselected) {
    QVector<int> rows;
    for (const QItemSelection* part : {&selected, &deselected})
        for (const QModelIndex& index : part->indexes())
            if (index.column() == 0 && !rows.contains(index.row())) rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    for (int row : rows) emit itemStateChanged(row);
}

void CUiListCtrl::OnItemChanged(QTreeWidgetItem* item, int column) {
    // Only the check box is a state; texts and images changing are not.
    if (column != 0 || !m_checkBoxes) return;
    const int state = item->checkState(0);
    if (item->data(0, kReportedCheckRole).toInt() == state) return;
    item->setData(0, kReportedCheckRole, state);
    const int row = indexOfTopLevelItem(item);
    if (row >= 0) emit itemStateChanged(row);
}
