#pragma once
// The "Net Selection" page of the Settings dialog: every net of the table on the left, the
// chosen ones on the right, each row showing its colour. Selecting on the left chooses nets;
// a click on a chosen net opens the colour picker. The record (selection and net colours)
// changes only by the page's OK.
#include "dialogs/DialogServices.h"
#include "ui/UiDialog.h"
#include "ui/UiTypes.h"

class CUiListCtrl;

class CNetChoice : public CUiDialog {
  public:
    explicit CNetChoice(DialogServices services = DesktopServices());

    bool OnInitDialog() override;
    // The page's OK: colours and selection into the record, then the base's OK.
    void OnOK() override;
    const CClassFunctionCall* GetChainHead() const override;

    // Handlers.
    void OnDestroy();
    void OnItemchangedNetChoice(NMHDR* notify, LRESULT* result);
    void OnClickNetChoice(NMHDR* notify, LRESULT* result);
    void OnItemchangedNetList(NMHDR* notify, LRESULT* result);

    // The two lists: all nets (IDC_NET_LIST) and the chosen ones (IDC_NET_CHOICE).
    CUiListCtrl* NetList();
    CUiListCtrl* ChoiceList();

  private:
    CUiListCtrl* List(int id);
    void FillNetList();
    void TakeLogSelection();
    // The first g_nSelectedNetCount nets of the selection, into the chosen list.
    void ShowSelectedNets();
    void MarkSelectedNets();
    void AddChoice(int net);
    // The chosen list made again from the selected rows of the net list, in their order.
    void RefillChoiceList();

    DialogServices m_services;
    bool m_bRefillPending = false;
};
