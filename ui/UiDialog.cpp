#include "ui/UiDialog.h"

#include <set>

#include "ui/DataExchange.h"
#include "ui/UiApi.h"
#include "ui/UiControls.h"

CUiDialog* g_pModalDialog = nullptr;

namespace {

// A wrapper by the widget's class.
std::unique_ptr<CUiWnd> MakeWrapper(QWidget* widget) {
    if (widget->inherits("QComboBox")) return std::make_unique<CUiComboBox>();
    if (widget->inherits("QPushButton") || widget->inherits("QCheckBox"))
        return std::make_unique<CUiButton>();
    if (widget->inherits("QLineEdit")) return std::make_unique<CUiEdit>();
    if (widget->inherits("QLabel")) return std::make_unique<CUiStatic>();
    return std::make_unique<CUiWnd>();
}

}  // namespace

CUiDialog::~CUiDialog() {
    m_controls.clear();
    m_ownedControls.clear();
    if (GetHandle()) UiApi().DestroyForm(Detach());
}

const CClassFunctionCall* CUiDialog::GetChainHead() const {
    static const CHandlerChain chain(CUiWnd::GetChainHead(),
                                     OnCommand(kIdOk, UI_FN(&CUiDialog::OnOK)),
                                     OnCommand(kIdCancel, UI_FN(&CUiDialog::OnCancel)));
    return chain.Head();
}

void CUiDialog::OnOK() {
    UpdateData(true);
    EndDialog(kIdOk);
}

void CUiDialog::OnCancel() {
    EndDialog(kIdCancel);
}

void CUiDialog::EndDialog(int result) {
    if (GetHandle()) UiApi().EndForm(GetHandle(), result);
}

bool CUiDialog::Create(int templateId, QWidget* parent, bool modal, const char* className) {
    if (GetHandle()) return true;
    m_nTemplateId = templateId;
    m_pParent = parent;
    QWidget* form =
        UiApi().CreateFormWidget(className ? className : "QDialog", parent, modal, templateId);
    if (!form) return false;
    Attach(form);
    m_created = 1;
    FilterComboBoxes();
    if (!modal) OnInitDialog();
    return true;
}

// Combo boxes whose list opening (code 7) or closing (code 8) has a handler report both.
void CUiDialog::FilterComboBoxes() {
    std::set<int> ids;
    for (int code : {kCodeDropDown, kCodeCloseUp})
        for (const CClassFunctionCall* e = GetChainHead(); e; e = e->next)
            if (e->message == kMsgCommand && e->code == code)
                for (int id = e->firstId; id <= e->lastId; ++id) ids.insert(id);
    for (int id : ids)
        if (QWidget* combo = UiApi().GetFormControl(GetHandle(), id))
            UiApi().InstallComboBoxFilter(combo, this, id);
}

int CUiDialog::DoModal() {
    g_pModalDialog = this;
    int result = -1;
    if (Create(m_nTemplateId, m_pParent, true, nullptr)) result = UiApi().RunModal(GetHandle());
    g_pModalDialog = nullptr;
    return result;
}

bool CUiDialog::OnInitDialog() {
    UpdateData(false);
    bool mouse = false;
    for (const CClassFunctionCall* e = GetChainHead(); e; e = e->next) {
        if (e->message == kMsgIdleUpdateCmdUI || e->message == kMsgKickIdle)
            m_bHasIdleHandler = true;
        if (e->message == kMsgMouseMove) mouse = true;
    }
    if (!GetHandle()) return true;
    if (mouse) UiApi().SetMouseTracking(GetHandle(), true);
    UiApi().SetCommandTarget(GetHandle(), this);
    return true;
}

CUiWnd* CUiDialog::GetDlgItem(int id) {
    auto found = m_controls.find(id);
    if (found != m_controls.end()) return found->second;
    QWidget* widget = GetHandle() ? UiApi().GetFormControl(GetHandle(), id) : nullptr;
    if (!widget) return nullptr;
    CUiWnd* wrapper = CUiWnd::FromHandle(widget);
    if (!wrapper) {
        m_ownedControls.push_back(MakeWrapper(widget));
        wrapper = m_ownedControls.back().get();
        wrapper->Attach(widget);
    }
    wrapper->SetDlgCtrlID(id);
    m_controls[id] = wrapper;
    return wrapper;
}

int CUiDialog::UpdateData(bool save) {
    CDataExchange exchange(this, save);
    DoDataExchange(&exchange);
    return 1;
}

void CUiDialog::DoDataExchange(CDataExchange*) {}

void CUiDialog::SetDlgItemText(int id, const std::string& text) {
    if (CUiWnd* w = GetDlgItem(id)) w->SetWindowText(text);
}

std::string CUiDialog::GetDlgItemText(int id) {
    CUiWnd* w = GetDlgItem(id);
    return w ? w->GetWindowText() : std::string();
}

void CUiDialog::CheckDlgButton(int id, int state) {
    if (CUiWnd* w = GetDlgItem(id)) w->SetCheck(state);
}

int CUiDialog::IsDlgButtonChecked(int id) {
    CUiWnd* w = GetDlgItem(id);
    return w ? w->GetCheck() : 0;
}
