#include "dialogs/DialogProperty.h"

#include "base/Platform.h"
#include "dialogs/forms/ControlIds.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "ui/DataExchange.h"
#include "ui/MessageBox.h"

namespace {

// Both browsers carry the same title: the layout file's was never given one of its own.
const char kBrowseTitle[] = "Select Input Board Station Trace File.";

}  // namespace

CDialogProperty::CDialogProperty(DialogServices services)
    : CUiDialog(IDD_SETTINGS), m_services(std::move(services)) {
    m_page.Load();
}

const CClassFunctionCall* CDialogProperty::GetChainHead() const {
    static const CHandlerChain chain(
        CUiDialog::GetChainHead(),
        OnCommand(IDC_BOUNDARY_LIMIT, UI_FN(&CDialogProperty::OnBoundaryLimit)),
        OnCommand(IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA,
                  UI_FN(&CDialogProperty::OnExcludeVoidShapeEncloseAVia)),
        OnCommand(IDC_BUTTON_TRACE_FILE_BROWSE,
                  UI_FN(&CDialogProperty::OnBnClickedButtonTraceFileBrowse)),
        OnCommand(IDC_BUTTON_HKP_FILE_BROWSE,
                  UI_FN(&CDialogProperty::OnBnClickedButtonHkpFileBrowse)));
    return chain.Head();
}

void CDialogProperty::DoDataExchange(CDataExchange* dx) {
    CUiDialog::DoDataExchange(dx);
    DDX_Control(dx, IDC_VIA_HOLE, m_editViaVoidArea);
    DDX_Control(dx, IDC_FACTOR, m_editVoidAreaLimit);
    DDX_Control(dx, IDC_FACTOR_TRACE, m_editTraceUnionLength);
    DDX_Control(dx, IDC_ARC_LENGTH, m_editArcLength);
    DDX_Control(dx, IDC_EDIT_TRACE_VOID_CLEARANCE, m_editTraceGap);
    DDX_Control(dx, IDC_EDIT_PROPERTY_VALUE, m_editValueField);
    DDX_Control(dx, IDC_AFFIX, m_editAffix);
    DDX_Control(dx, IDC_MIN_X, m_editMinX);
    DDX_Control(dx, IDC_MIN_Y, m_editMinY);
    DDX_Control(dx, IDC_MAX_X, m_editMaxX);
    DDX_Control(dx, IDC_MAX_Y, m_editMaxY);

    SettingsPage& p = m_page;
    DDX_Check(dx, IDC_SHAPE, p.shape);
    DDX_Check(dx, IDC_LAYER, p.layer);
    DDX_Check(dx, IDC_TRACE, p.trace);
    DDX_Check(dx, IDC_VIA, p.via);
    DDX_Check(dx, IDC_CHECK_TRANSLATE_PAD, p.translatePads);
    DDX_Check(dx, IDC_NO_EMBEDPLANE, p.allowSignalOnPlane);
    DDX_Check(dx, IDC_ADD_PLANE, p.addPseudoPlane);
    DDX_Check(dx, IDC_ELIMINATE, p.excludeNoNetElements);
    DDX_Check(dx, IDC_OUTPUT_PATCH, p.allowPatches);
    DDX_Check(dx, IDC_SHAPE_COLOR, p.colorShapesByNet);
    DDX_Check(dx, IDC_CHECK_COMPONENT, p.translatePassiveLinkages);
    DDX_Check(dx, IDC_TRANSLATE_ACTIVE_COMPONENTS, p.translateLinkages);
    DDX_Check(dx, IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA, p.excludeVoidEnclosingVia);
    DDX_Text(dx, IDC_VIA_HOLE, p.viaVoidArea);
    DDX_Text(dx, IDC_FACTOR, p.voidAreaLimit);
    DDX_Text(dx, IDC_FACTOR_TRACE, p.traceUnionLength);
    DDX_Text(dx, IDC_ARC_LENGTH, p.maxArcLength);
    DDX_Text(dx, IDC_EDIT_TRACE_VOID_CLEARANCE, p.traceGapPercent);
    DDX_Text(dx, IDC_EDIT_PROPERTY_VALUE, p.valueFieldName);
    DDX_Text(dx, IDC_AFFIX, p.nameAffix);
    DDX_Check(dx, IDC_APPEND_NET_NAME, p.appendNetName);
    DDX_Check(dx, IDC_BOUNDARY_LIMIT, p.spatialLimit);
    DDX_Text(dx, IDC_MIN_X, p.minX);
    DDX_Text(dx, IDC_MIN_Y, p.minY);
    DDX_Text(dx, IDC_MAX_X, p.maxX);
    DDX_Text(dx, IDC_MAX_Y, p.maxY);
}

bool CDialogProperty::OnInitDialog() {
    CUiDialog::OnInitDialog();
    // The name in force may have changed since the page was made.
    m_page.valueFieldName = g_options.g_strValueFieldName;
    SetDlgItemText(IDC_EDIT_PROPERTY_VALUE, m_page.valueFieldName);
    EnableAreaEdits(m_page.spatialLimit != 0);
    m_editViaVoidArea.EnableWindow(m_page.excludeVoidEnclosingVia != 0);
    SetDlgItemText(IDC_EDIT_TRACE_FILE_PATH, g_options.g_strTraceFile);
    SetDlgItemText(IDC_EDIT_HKP_FILE_PATH, g_options.g_strHkpFile);
    return true;
}

void CDialogProperty::EnableAreaEdits(bool enable) {
    for (CUiEdit* edit : {&m_editMinY, &m_editMinX, &m_editMaxY, &m_editMaxX})
        edit->EnableWindow(enable);
}

void CDialogProperty::OnBoundaryLimit() {
    const int wasOn = m_page.spatialLimit;
    // Switching on takes what the boxes hold; switching off leaves the boxes as they are, so
    // switching on again finds the same numbers.
    if (!wasOn) UpdateData(true);
    m_page.spatialLimit = wasOn ? 0 : 1;
    EnableAreaEdits(m_page.spatialLimit != 0);
}

void CDialogProperty::OnExcludeVoidShapeEncloseAVia() {
    UpdateData(true);
    m_editViaVoidArea.EnableWindow(m_page.excludeVoidEnclosingVia != 0);
}

void CDialogProperty::OnBnClickedButtonTraceFileBrowse() {
    std::string file =
        m_services.chooseFile(GetHandle(), {false, kBrowseTitle, "trace Files (*.*)", ""});
    if (!file.empty()) SetDlgItemText(IDC_EDIT_TRACE_FILE_PATH, file);
}

void CDialogProperty::OnBnClickedButtonHkpFileBrowse() {
    std::string file =
        m_services.chooseFile(GetHandle(), {false, kBrowseTitle, "Layout.hkp Files (*.hkp)", ""});
    if (file.empty()) return;
    const size_t sep = base::LastSeparator(file);
    if (sep == std::string::npos) {
        UiMessageBox("Input file name invalid", kBoxOk);
        return;
    }
    if (!EqualsNoCase(file.substr(sep + 1), "layout.hkp")) {
        UiMessageBox("Please input Layout.hkp file", kBoxOk);
        return;
    }
    SetDlgItemText(IDC_EDIT_HKP_FILE_PATH, file);
}

void CDialogProperty::OnOK() {
    if (!UpdateData(true)) return;
    m_page.Apply();
    g_options.g_strTraceFile = GetDlgItemText(IDC_EDIT_TRACE_FILE_PATH);
    g_options.g_strHkpFile = GetDlgItemText(IDC_EDIT_HKP_FILE_PATH);
}
