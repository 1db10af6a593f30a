#pragma once
// The list of the IBIS file page, over a list control of the form: part number, file path
// and designators, a state picture and a check mark per row. The check mark tells whether
// the part's file holds a complete pin mapping, so only the program sets it: a press on the
// check-box area asks for a file instead.
#include <QObject>
#include <functional>
#include <string>

class CUiListCtrl;

// Columns of the list.
enum IbisListColumn { kColPartNo = 0, kColIbisFile = 1, kColRefDes = 2 };

// Row state pictures.
enum IbisRowState { kStateNoFile = 0, kStateUnmapped = 1, kStateMapped = 2 };

class CIBISListCtrl : public QObject {
  public:
    // A row's press on its check-box area, or a double click: the file dialog for the row.
    std::function<void(int row)> onChooseFile;
    // A press elsewhere on a row.
    std::function<void(int row)> onRowClicked;

    // Columns, check boxes, state pictures and the mouse of list.
    void Attach(CUiListCtrl* list);
    CUiListCtrl* List() const { return m_list; }

    // Appends a row; the designators each followed by ", ".
    int AddRow(const std::string& partNumber, const std::string& file, const std::string& refDes,
               bool mapped);
    // Shows a row's file and mapping state.
    void ShowRowState(int row, const std::string& file, bool mapped, bool opened);
    // Keeps the file and designator columns at least as wide as their minimum.
    void WidenColumns();

  private:
    void OnClick(int row, const QPoint& point);

    CUiListCtrl* m_list = nullptr;
};
