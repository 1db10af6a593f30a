#pragma once
// Assigns groups to the checked signal pins of the pin mapping dialog: a combo box for each
// of pull down, pull up, power clamp and gnd clamp, "<none>" first. Power groups with pins
// are offered for pull up and power clamp, ground groups with pins for the other two.
#include <string>
#include <vector>

#include "dialogs/PinGroups.h"
#include "ui/UiDialog.h"

class CUiListCtrl;
class QComboBox;

class CGroupSelector : public CUiDialog {
  public:
    CGroupSelector(std::string partNumber, const std::vector<PinGroupRec>& groups,
                   CUiListCtrl& pins, QWidget* parent = nullptr);

    bool OnInitDialog() override;
    // Sets the cells of every checked row whose model has the box's node.
    void OnOK() override;

    QComboBox* Box(int id);

  private:
    void FillBox(int id, int column, const std::string& kind);

    std::string m_partNumber;
    const std::vector<PinGroupRec>& m_groups;
    CUiListCtrl& m_pins;
};
