#pragma once
// The list control of the UI layer: rows of texts under column headings ("report" view), with
// an image per row from an image list, an optional check box, a state image, a value of the
// program's own per row, and a selection of one or many rows. Rows are addressed by their
// position, columns from 0.
#include <QIcon>
#include <QList>
#include <QTreeWidget>
#include <QVector>

class CUiListCtrl : public QTreeWidget {
    Q_OBJECT
  public:
    // The two image lists of a row: its image in the first column, and its state image.
    enum ImageList { kNormalImages, kStateImages };

    explicit CUiListCtrl(QWidget* parent = nullptr);

    // Columns.
    int InsertColumn(int column, const QString& heading, int width);
    int GetColumnCount() const;
    void SetColumnWidth(int column, int width);
    int GetColumnWidth(int column) const;

    // Rows and their texts. InsertItem returns the new row's position, -1 when it fails.
    int InsertItem(int row, const QString& text, int image = -1);
    int GetItemCount() const;
    bool DeleteItem(int row);
    void DeleteAllItems();
    bool SetItemText(int row, int column, const QString& text);
    QString GetItemText(int row, int column) const;
    // The first row whose first column reads `text`, from `start` on; -1 with none.
    int FindItem(const QString& text, int start = 0) const;

    // Images.
    void SetImageList(const QList<QIcon>& images, ImageList which);
    bool SetItemImage(int row, int image);
    int GetItemImage(int row) const;
    bool SetItemStateImage(int row, int image);
    int GetItemStateImage(int row) const;

    // Check boxes in the first column, off until turned on.
    void SetCheckBoxes(bool on);
    bool HasCheckBoxes() const;
    bool SetCheck(int row, bool checked);
    bool GetCheck(int row) const;

    // The program's own value of a row.
    bool SetItemData(int row, quintptr data);
    quintptr GetItemData(int row) const;

    // Selection and focus.
    void SetSingleSelection(bool single);
    bool SetItemSelected(int row, bool selected);
    bool IsItemSelected(int row) const;
    int GetSelectedCount() const;
    // The selected rows, top to bottom.
    QVector<int> GetSelectedRows() const;
    int GetFocusedRow() const;
    bool SetFocusedRow(int row);
    bool EnsureVisible(int row);

    // The row and column at a point of the viewport; -1 for each that the point misses.
    int HitTest(const QPoint& point, int* column = nullptr) const;
    // The rectangle of a row in viewport coordinates; empty for a row that does not exist.
    QRect GetRowRect(int row) const;
    // Sorts the rows by the texts of a column.
    void SortByColumn(int column, bool ascending);

  signals:
    // A row's selection or check state changed (also when the program changed it).
    void itemStateChanged(int row);
    // A press of the left button on a row, at a point of the viewport.
    void itemClicked(int row, int column, const QPoint& point);
    void itemDoubleClicked(int row, int column);
    void headingClicked(int column);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    QTreeWidgetItem* Row(int row) const;
    void ShowImages(QTreeWidgetItem* item) const;
    void OnSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
    void OnItemChanged(QTreeWidgetItem* item, int column);

    QList<QIcon> m_images;
    QList<QIcon> m_stateImages;
    bool m_checkBoxes = false;
};
