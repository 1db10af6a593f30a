#include "dialogs/IBISFileSelector.h"

#include <QEvent>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <set>

#include "dialogs/PowerPinSelector.h"
#include "dialogs/forms/ControlIds.h"
#include "ibis/IbisReader.h"
#include "ibis/ModelAssignment.h"
#include "model/LayoutModel.h"
#include "model/ReportMessage.h"
#include "model/TranslationHost.h"
#include "model/TranslationOptions.h"
#include "ui/UiListCtrl.h"

namespace {

constexpr char kRefDesLabel[] = "Refdes List : ";

bool Opens(const std::string& path) {
    if (path.empty()) return false;
    std::ifstream file(path);
    return file.is_open();
}

bool HasPinMappingTable(const std::string& path) {
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line))
        if (line.rfind("[Pin Mapping]", 0) == 0) return true;
    return false;
}

std::string Folder(const std::string& path) {
    size_t cut = path.find_last_of("/\\");
    return cut == std::string::npos ? std::string() : path.substr(0, cut);
}

std::string ForeignPinMessage(const std::string& file, const std::string& package,
                              const std::string& part) {
    const char* format =
        "Pins in IBIS file : %s \ndo not exist in  Package : %s for the selected Part No\n"
        "Please assign IBIS file matched to selected Part No :%s .";
    int length = std::snprintf(nullptr, 0, format, file.c_str(), package.c_str(), part.c_str());
    std::string text(static_cast<size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, file.c_str(), package.c_str(), part.c_str());
    text.resize(static_cast<size_t>(length));
    return text;
}

// The names of the chosen nets, when a net selection is in force.
std::set<std::string> ChosenNetNames() {
    std::set<std::string> names;
    if (!g_options.g_bSelectedOnly) return names;
    int count = std::min<int>(g_options.g_nSelectedNetCount,
                              static_cast<int>(g_options.g_pSelectedNets.size()));
    for (int i = 0; i < count; ++i) {
        int32_t net = g_options.g_pSelectedNets[static_cast<size_t>(i)];
        names.insert(PlainNetName(net));
        names.insert(DisplayNetName(net));
    }
    names.erase("");
    return names;
}

bool OnChosenNet(const ComponentRec& component, const std::set<std::string>& nets) {
    return std::any_of(component.pins.begin(), component.pins.end(), [&](const PinRec& pin) {
        return (component.ibisError || pin.pinClass == 0) && nets.count(pin.net);
    });
}

// The page fills its list each time it comes to the front.
class ShowWatcher : public QObject {
  public:
    ShowWatcher(QObject* parent, CIBISFileSelector& page) : QObject(parent), m_page(page) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show) m_page.FillList();
        return false;
    }

  private:
    CIBISFileSelector& m_page;
};

}  // namespace

CIBISFileSelector::CIBISFileSelector(DialogServices services, ModelAssignment* models)
    : CUiDialog(IDD_IBIS_FILE_SELECTION), m_services(std::move(services)), m_models(models) {}

void CIBISFileSelector::SetModelAssignment(ModelAssignment* models) {
    m_models = models;
}

const CClassFunctionCall* CIBISFileSelector::GetChainHead() const {
    static const CHandlerChain chain(
        CUiDialog::GetChainHead(),
        OnCommand(IDC_CHECK_BOX_APPLY_TO_ALL, UI_FN(&CIBISFileSelector::OnApplyToAll)),
        OnCommand(IDC_BUTTON_EDIT_IBIS_FILE, UI_FN(&CIBISFileSelector::OnEditFile)));
    return chain.Head();
}

bool CIBISFileSelector::OnInitDialog() {
    CUiDialog::OnInitDialog();
    CUiWnd* control = GetDlgItem(IDC_CTRL_LIST_IBIS_FILE_SELECTION);
    auto* list = control ? qobject_cast<CUiListCtrl*>(control->GetHandle()) : nullptr;
    if (!list || m_list.List()) return true;
    m_list.Attach(list);
    m_list.onChooseFile = [this](int row) { ChooseFile(row); };
    m_list.onRowClicked = [this](int row) { ShowRefDes(row); };
    GetHandle()->installEventFilter(new ShowWatcher(GetHandle(), *this));
    FillList();
    return true;
}

bool CIBISFileSelector::Listed(const std::string& partNumber, const ComponentRec& part) const {
    if (!part.isActive || partNumber.empty()) return false;
    const std::set<std::string> nets = ChosenNetNames();
    if (nets.empty()) return true;
    return std::any_of(m_models->components.begin(), m_models->components.end(),
                       [&](const ComponentRec* c) {
                           return c->partNumber == partNumber && OnChosenNet(*c, nets);
                       });
}

void CIBISFileSelector::FillList() {
    CUiListCtrl* list = m_list.List();
    if (!list) return;
    SetDlgItemText(IDC_STATIC_REFDES_LIST, kRefDesLabel);
    list->DeleteAllItems();
    if (!m_models) return;
    m_models->partComponents.ForEach([&](const std::string& partNumber, ComponentRec* part) {
        if (!part || !Listed(partNumber, *part)) return;
        part->ibisError = Opens(part->ibisFile) ? 0 : 1;
        std::string refDes;
        if (const auto* names = m_models->partRefDes.Find(partNumber))
            for (const std::string& name : *names) refDes += name + ", ";
        m_list.AddRow(partNumber, part->ibisError ? "" : part->ibisFile, refDes,
                      part->mappingComplete != 0);
    });
    m_list.WidenColumns();
}

ComponentRec* CIBISFileSelector::PartOfRow(int row) {
    CUiListCtrl* list = m_list.List();
    if (!m_models || !list || row < 0 || row >= list->GetItemCount()) return nullptr;
    ComponentRec** part = m_models->partComponents.Find(list->GetItemText(row, 0).toStdString());
    return part ? *part : nullptr;
}

void CIBISFileSelector::ShowRefDes(int row) {
    std::string refDes = m_list.List()->GetItemText(row, kColRefDes).toStdString();
    size_t cut = refDes.rfind(", ");
    if (cut != std::string::npos) refDes.resize(cut);
    SetDlgItemText(IDC_STATIC_REFDES_LIST, kRefDesLabel + refDes);
}

void CIBISFileSelector::SetPartFile(const std::string& partNumber, const std::string& file) {
    for (ComponentRec* component : m_models->components)
        if (component->partNumber == partNumber) component->ibisFile = file;
    if (ComponentRec** part = m_models->partComponents.Find(partNumber)) (*part)->ibisFile = file;
}

void CIBISFileSelector::ShowPart(int row, ComponentRec& part) {
    m_list.ShowRowState(row, part.ibisError ? "" : part.ibisFile, part.mappingComplete != 0,
                        part.ibisError == 0);
}

void CIBISFileSelector::ChooseFile(int row) {
    ComponentRec* part = PartOfRow(row);
    if (!part || !m_services.chooseFile) return;
    FileRequest request;
    request.title = "Select IBIS File for  Part No: " + part->partNumber;
    request.filter = "ibs Files (*.ibs)";
    request.defaultExtension = "ibs";
    const std::string file = m_services.chooseFile(GetHandle(), request);
    if (file.empty()) return;
    if (m_applyToAll)
        ApplyFolder(row, file);
    else
        TakeFile(row, file);
    m_list.WidenColumns();
}

// A file whose pins are not the package's is refused: the part keeps the file it had.
void CIBISFileSelector::TakeFile(int row, const std::string& file) {
    ComponentRec& part = *PartOfRow(row);
    const std::string old = part.ibisFile;
    SetPartFile(part.partNumber, file);
    ParseIbisFile(part);
    if (part.pinsMatch) {
        ShowPart(row, part);
        if (m_models->assignments) m_models->assignments->Set(part.partNumber, file);
        return;
    }
    {
        HostScope boxes(m_boxHost);
        ReportMessage(ForeignPinMessage(file, part.packageName, part.partNumber));
    }
    SetPartFile(part.partNumber, old);
    ParseIbisFile(part);
}

// Every part finds its file in the chosen folder under its own part number.
void CIBISFileSelector::ApplyFolder(int row, const std::string& file) {
    const std::string folder = Folder(file);
    CUiListCtrl* list = m_list.List();
    for (int other = 0; other < list->GetItemCount(); ++other) {
        ComponentRec* part = PartOfRow(other);
        const std::string candidate = folder + "/" + (part ? part->partNumber : "") + ".ibs";
        if (!part || !Opens(candidate)) continue;
        SetPartFile(part->partNumber, candidate);
        list->SetItemText(other, kColIbisFile, QString::fromStdString(candidate));
        if (m_models->assignments) m_models->assignments->Set(part->partNumber, candidate);
    }
    ComponentRec& chosen = *PartOfRow(row);
    SetPartFile(chosen.partNumber, file);
    if (m_models->assignments) m_models->assignments->Set(chosen.partNumber, file);
    m_list.ShowRowState(row, file, HasPinMappingTable(file), Opens(file));
}

void CIBISFileSelector::OnApplyToAll() {
    m_applyToAll = IsDlgButtonChecked(IDC_CHECK_BOX_APPLY_TO_ALL) ? 1 : 0;
}

void CIBISFileSelector::OnEditFile() {
    CUiListCtrl* list = m_list.List();
    if (!list) return;
    int row = list->GetFocusedRow();
    if (row < 0 && !list->GetSelectedRows().isEmpty()) row = list->GetSelectedRows().front();
    ComponentRec* part = PartOfRow(row);
    if (!part || list->GetItemText(row, kColIbisFile).indexOf(".ibs") < 0) return;
    ParseIbisFile(*part);
    {
        CPowerPinSelector mapping(*part, GetHandle());
        mapping.DoModal();
    }
    ParseIbisFile(*part);
    list->SetItemText(row, kColPartNo, QString::fromStdString(part->partNumber));
    ShowPart(row, *part);
}

void CIBISFileSelector::OnOK() {
    CUiListCtrl* list = m_list.List();
    if (m_models && list) {
        m_models->ibisParts = base::StringMap<std::string>(base::kComponentBuckets);
        m_selectedParts = base::StringMap<std::string>(base::kComponentBuckets);
        for (int row = 0; row < list->GetItemCount(); ++row) {
            if (!list->GetCheck(row)) continue;
            const std::string part = list->GetItemText(row, kColPartNo).toStdString();
            m_models->ibisParts.Set(part, "T");
            m_selectedParts.Set(part, "T");
        }
    }
    CUiDialog::OnOK();
}
