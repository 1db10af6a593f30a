#pragma once
// The groups list of the pin mapping dialog, drawn over a list control of the form: a group
// row, then its pins when it is open. A press on a group's picture opens or closes it; pins
// dragged onto a group row move into that group, and a drag held past either end of the list
// scrolls it. A click on a column head does nothing here.
#include <QObject>
#include <QPoint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "dialogs/PinGroups.h"

class CUiListCtrl;
class QTimer;

class CDragDropListCtrl : public QObject {
  public:
    // Receives the names of the groups that a move left empty.
    using EmptiedHandler = std::function<void(const std::vector<std::string>&)>;

    CDragDropListCtrl();
    ~CDragDropListCtrl() override;

    // Takes over list: one column, the ten images, the mouse on its viewport.
    void Attach(CUiListCtrl* list, std::vector<PinGroupRec> groups,
                std::map<std::string, std::string> pinTexts);
    void SetEmptiedHandler(EmptiedHandler handler) { m_onEmptied = std::move(handler); }

    // Shows the groups again as they stand.
    void Refresh();
    std::vector<PinGroupRec>& Groups() { return m_groups; }
    CUiListCtrl* List() const { return m_list; }

    // The group of a row (group or pin row), -1 for none; the pin of a pin row, "" else.
    int GroupOfRow(int row) const;
    std::string PinOfRow(int row) const;
    int RowOfGroup(const std::string& name) const;

    void Toggle(int row);
    void SetOpen(const std::string& group, bool open);
    // Moves the chosen pin rows into the group of the target row; false when nothing moved.
    bool DropOn(int row);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool OnPress(const QPoint& point);
    void OnMove(const QPoint& point);
    void OnRelease(const QPoint& point);
    void ScrollStep();

    CUiListCtrl* m_list = nullptr;
    std::vector<PinGroupRec> m_groups;
    std::map<std::string, std::string> m_pinTexts;
    // Per row of the list: the group and the pin (-1 for the group row).
    std::vector<std::pair<int, int>> m_rows;
    EmptiedHandler m_onEmptied;
    bool m_pressedOnPin = false;
    bool m_dragging = false;
    QPoint m_pressPoint;
    int m_scrollDirection = 0;
    QTimer* m_scrollTimer = nullptr;
};
