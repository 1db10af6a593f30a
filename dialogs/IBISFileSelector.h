#pragma once
// The "IBIS Models" page of the Settings dialog: one row per part number of the active
// components (of the chosen nets, when nets are chosen), the IBIS file of each, whether its
// pin mapping is complete, and the pin mapping dialog of a row. OK names the part numbers
// whose rows are checked as those that take part in the IBIS step.
#include <string>

#include "base/StringMap.h"
#include "dialogs/DialogServices.h"
#include "dialogs/IBISListCtrl.h"
#include "model/ComponentRecords.h"
#include "ui/MessageBoxHost.h"
#include "ui/UiDialog.h"

class ModelAssignment;

class CIBISFileSelector : public CUiDialog {
  public:
    explicit CIBISFileSelector(DialogServices services = DesktopServices(),
                               ModelAssignment* models = nullptr);

    // The parts and files of one translation; null shows an empty list.
    void SetModelAssignment(ModelAssignment* models);

    bool OnInitDialog() override;
    // The checked rows' part numbers into the map of parts of the IBIS step.
    void OnOK() override;
    const CClassFunctionCall* GetChainHead() const override;

    // Handlers.
    void OnApplyToAll();
    void OnEditFile();

    // Empties the list and fills it again from the parts.
    void FillList();
    // The file dialog of a row, and what the chosen file changes.
    void ChooseFile(int row);
    void ShowRefDes(int row);

    CIBISListCtrl& ListCtrl() { return m_list; }
    const base::StringMap<std::string>& SelectedParts() const { return m_selectedParts; }

  private:
    ComponentRec* PartOfRow(int row);
    void SetPartFile(const std::string& partNumber, const std::string& file);
    void TakeFile(int row, const std::string& file);
    void ApplyFolder(int row, const std::string& file);
    void ShowPart(int row, ComponentRec& part);
    bool Listed(const std::string& partNumber, const ComponentRec& part) const;

    DialogServices m_services;
    ModelAssignment* m_models = nullptr;
    base::StringMap<std::string> m_selectedParts{base::kComponentBuckets};
    CIBISListCtrl m_list;
    int m_applyToAll = 0;
    CMessageBoxHost m_boxHost;
};
