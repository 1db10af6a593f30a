#include "dialogs/NetChoice.h"

#include <QMetaObject>
#include <algorithm>

#include "dialogs/ListNotify.h"
#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NetColors.h"
#include "ui/UiListCtrl.h"

namespace {

// Swatches are 16 by 15 pixels: "default" first, then the eleven colours.
constexpr int kSwatchWidth = 16;
constexpr int kNameColumnWidth = 180;
// Message number of a window being destroyed.
constexpr unsigned kMsgDestroy = 2;

bool IsNet(int net) {
    return net >= 0 && net < g_model.g_nNetCount;
}

QString NetName(int net) {
    return QString::fromUtf8(g_model.g_strNetNames[static_cast<size_t>(net)].name);
}

// The selection as far as its count goes.
std::vector<int32_t> SelectedNets() {
    const auto& nets = g_options.g_pSelectedNets;
    size_t count =
        std::min(nets.size(), static_cast<size_t>(std::max(0, g_options.g_nSelectedNetCount)));
    return std::vector<int32_t>(nets.begin(), nets.begin() + static_cast<std::ptrdiff_t>(count));
}

}  // namespace

CNetChoice::CNetChoice(DialogServices services)
    : CUiDialog(IDD_NET_CHOICE), m_services(std::move(services)) {}

const CClassFunctionCall* CNetChoice::GetChainHead() const {
    static const CHandlerChain chain(
        CUiDialog::GetChainHead(), OnMessage(kMsgDestroy, UI_FN(&CNetChoice::OnDestroy)),
        OnNotify(kNotifyItemChanged, IDC_NET_CHOICE, UI_FN(&CNetChoice::OnItemchangedNetChoice)),
        OnNotify(kNotifyClick, IDC_NET_CHOICE, UI_FN(&CNetChoice::OnClickNetChoice)),
        OnNotify(kNotifyItemChanged, IDC_NET_LIST, UI_FN(&CNetChoice::OnItemchangedNetList)));
    return chain.Head();
}

CUiListCtrl* CNetChoice::List(int id) {
    CUiWnd* control = GetDlgItem(id);
    return control ? qobject_cast<CUiListCtrl*>(control->GetHandle()) : nullptr;
}

CUiListCtrl* CNetChoice::NetList() {
    return List(IDC_NET_LIST);
}

CUiListCtrl* CNetChoice::ChoiceList() {
    return List(IDC_NET_CHOICE);
}

bool CNetChoice::OnInitDialog() {
    CUiDialog::OnInitDialog();
    CUiListCtrl* all = NetList();
    CUiListCtrl* chosen = ChoiceList();
    if (!all || !chosen) return true;
    CQtNdd2QfxResourceMgr resources;
    all->SetImageList(resources.LoadImageList(IDB_NET_COLORS, kSwatchWidth),
                      CUiListCtrl::kNormalImages);
    chosen->SetImageList(resources.LoadImageList(IDB_NET_COLORS_CHOSEN, kSwatchWidth),
                         CUiListCtrl::kNormalImages);
    all->InsertColumn(0, "Net Name", kNameColumnWidth);
    chosen->InsertColumn(0, "Net Name", kNameColumnWidth);
    FillNetList();
    if (g_options.g_bLogLoaded)
        TakeLogSelection();
    else
        ShowSelectedNets();
    MarkSelectedNets();
    // The opening's own changes are not the user's: the lists report from here on.
    RouteListNotifications(*all, IDC_NET_LIST, *this);
    RouteListNotifications(*chosen, IDC_NET_CHOICE, *this);
    return true;
}

void CNetChoice::FillNetList() {
    CUiListCtrl* all = NetList();
    for (int net = 0; net < g_model.g_nNetCount; ++net)
        all->InsertItem(net, NetName(net), NetColorOf(net));
}

// A loaded log is taken up here once: its nets become the selection, its colours go over the
// defaults, and the log counts as consumed.
void CNetChoice::TakeLogSelection() {
    TakeLogNetSelection();
    ApplyLogNetColors();
    if (!g_options.g_bAllNetsFromLog && g_options.g_nSelectedNetCount != 0) ShowSelectedNets();
    g_options.g_bLogLoaded = 0;
}

void CNetChoice::ShowSelectedNets() {
    for (int32_t net : SelectedNets()) AddChoice(net);
}

void CNetChoice::AddChoice(int net) {
    if (!IsNet(net)) return;
    CUiListCtrl* chosen = ChoiceList();
    chosen->InsertItem(chosen->GetItemCount(), NetName(net), NetColorOf(net));
}

void CNetChoice::MarkSelectedNets() {
    CUiListCtrl* all = NetList();
    for (int32_t net : SelectedNets()) {
        if (!IsNet(net)) continue;
        int row = all->FindItem(NetName(net));
        if (row < 0) continue;
        all->SetItemImage(row, NetColorOf(net));
        if (!g_options.g_bAllNets) all->SetItemSelected(row, true);
    }
}

// One change of the selection reports every row it touched: the chosen list is filled again
// once, when the burst is over.
void CNetChoice::OnItemchangedNetList(NMHDR*, LRESULT*) {
    if (m_bRefillPending || !GetHandle()) return;
    m_bRefillPending = true;
    QMetaObject::invokeMethod(
        GetHandle(), [this] { RefillChoiceList(); }, Qt::QueuedConnection);
}

void CNetChoice::RefillChoiceList() {
    m_bRefillPending = false;
    CUiListCtrl* all = NetList();
    CUiListCtrl* chosen = ChoiceList();
    chosen->DeleteAllItems();
    for (int row : all->GetSelectedRows())
        chosen->InsertItem(chosen->GetItemCount(), all->GetItemText(row, 0),
                           all->GetItemImage(row));
}

void CNetChoice::OnItemchangedNetChoice(NMHDR* notify, LRESULT*) {
    const int row = reinterpret_cast<NMLISTVIEW*>(notify)->iItem;
    CUiListCtrl* chosen = ChoiceList();
    if (row < 0 || row >= chosen->GetItemCount()) return;
    int found = NetList()->FindItem(chosen->GetItemText(row, 0));
    if (found >= 0) NetList()->EnsureVisible(found);
}

// The new colour shows in both lists; the record takes it with the page's OK, so that Cancel
// keeps the colours as they were.
void CNetChoice::OnClickNetChoice(NMHDR* notify, LRESULT*) {
    const int row = reinterpret_cast<NMLISTVIEW*>(notify)->iItem;
    CUiListCtrl* chosen = ChoiceList();
    if (row < 0 || row >= chosen->GetItemCount() || !m_services.chooseNetColor) return;
    int colour = chosen->GetItemImage(row);
    if (!m_services.chooseNetColor(GetHandle(), colour)) return;
    chosen->SetItemImage(row, colour);
    int found = NetList()->FindItem(chosen->GetItemText(row, 0));
    if (found >= 0) NetList()->SetItemImage(found, colour);
}

void CNetChoice::OnOK() {
    if (CUiListCtrl* all = NetList()) {
        std::vector<int32_t>& colors = g_options.g_pNetColors;
        colors.resize(static_cast<size_t>(std::max(all->GetItemCount(), g_model.g_nNetCount)), 0);
        for (int row = 0; row < all->GetItemCount(); ++row)
            colors[static_cast<size_t>(row)] = std::max(0, all->GetItemImage(row));
        const QVector<int> rows = all->GetSelectedRows();
        if (!rows.isEmpty()) {
            g_options.g_pSelectedNets.assign(rows.begin(), rows.end());
            g_options.g_nSelectedNetCount = static_cast<int32_t>(rows.size());
        } else {
            g_options.g_nSelectedNetCount = 0;
        }
        g_options.g_bSelectedOnly = g_options.g_nSelectedNetCount >= 1;
        g_options.g_bAllNets = !g_options.g_bSelectedOnly;
    }
    CUiDialog::OnOK();
}

void CNetChoice::OnDestroy() {
    for (CUiListCtrl* list : {NetList(), ChoiceList()})
        if (list) list->SetImageList({}, CUiListCtrl::kNormalImages);
}
