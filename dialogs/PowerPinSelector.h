#pragma once
// The pin mapping of one active component: its signal pins with their four references on
// the left, its power and ground groups on the right. OK stores the rows and the groups into
// the pins and rewrites the component's IBIS file; leaving otherwise offers to save first.
#include <string>

#include "dialogs/DragDropListCtrl.h"
#include "model/ComponentRecords.h"
#include "ui/MessageBoxHost.h"
#include "ui/UiDialog.h"

class CUiListCtrl;

class CPowerPinSelector : public CUiDialog {
  public:
    explicit CPowerPinSelector(ComponentRec& component, QWidget* parent = nullptr);

    bool OnInitDialog() override;
    // Saves the mapping into the file, then closes.
    void OnOK() override;
    // Asks whether to save first.
    void OnCancel() override;
    const CClassFunctionCall* GetChainHead() const override;

    // Handlers.
    void OnAddGroup();
    void OnAddGndGroup();
    void OnAddPcGroup();
    void OnAddGcGroup();
    void OnDeleteGroup();
    void OnCheckAll();
    void OnUncheckAll();
    void OnResetAll();
    void OnDeleteRow();
    void OnLinkGroups();

    // The rows and groups into the pins; mappingComplete as the rows are.
    void StoreDialogRows();

    CUiListCtrl* PinList();
    CUiListCtrl* GroupList();
    CDragDropListCtrl& Groups() { return m_groups; }

  private:
    void AddGroup(const char* prefix, const char* kind);
    void CheckAll(bool on);
    void SortPins(int column);

    ComponentRec& m_component;
    CDragDropListCtrl m_groups;
    int m_sortColumn = -1;
    bool m_sortAscending = true;
    CMessageBoxHost m_boxHost;
};
