#include "dialogs/Ndd2QfxSetting.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "dialogs/forms/ControlIds.h"
#include "ui/UiTypes.h"

namespace {

constexpr int kWidth = 700;
constexpr int kHeight = 800;
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 23;
constexpr int kMargin = 6;
// Message number of a window being destroyed.
constexpr unsigned kMsgDestroy = 2;

}  // namespace

CNdd2QfxSetting::CNdd2QfxSetting(QWidget* parent, DialogServices services)
    : CUiDialog(0, parent), m_property(services), m_netChoice(services), m_ibisFiles(services) {}

bool CNdd2QfxSetting::OnInitDialog() {
    CUiDialog::OnInitDialog();
    QWidget* dialog = GetHandle();
    if (!dialog || m_hTabCtrl) return true;
    dialog->setWindowTitle("Settings");
    dialog->resize(kWidth, kHeight);
    auto* column = new QVBoxLayout(dialog);
    // Narrow margins: the pages' forms are 680 wide in a window of 700.
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_hTabCtrl = new QTabWidget(dialog);
    column->addWidget(m_hTabCtrl);
    auto* row = new QHBoxLayout();
    row->addStretch();
    for (int id : {kIdOk, kIdCancel}) {
        auto* button = new QPushButton(id == kIdOk ? "OK" : "Cancel", dialog);
        button->setObjectName(id == kIdOk ? "ui_IDOK" : "ui_IDCANCEL");
        button->setFixedSize(kButtonWidth, kButtonHeight);
        button->setDefault(id == kIdOk);
        QObject::connect(button, &QPushButton::clicked, dialog, [this, id] {
            OnCmdMsg(static_cast<unsigned>(id), kCodeClicked, nullptr, false);
        });
        row->addWidget(button);
    }
    column->addLayout(row);
    m_property.Create(IDD_SETTINGS, m_hTabCtrl, false, "QWidget");
    m_netChoice.Create(IDD_NET_CHOICE, m_hTabCtrl, false, "QWidget");
    m_hTabCtrl->addTab(m_property.GetHandle(), "Translation Options");
    m_hTabCtrl->addTab(m_netChoice.GetHandle(), "Net Selection");
    m_ibisFiles.Create(IDD_IBIS_FILE_SELECTION, m_hTabCtrl, false, "QWidget");
    m_hTabCtrl->addTab(m_ibisFiles.GetHandle(), "IBIS Files");
    return true;
}

std::string CNdd2QfxSetting::GetHelpFormName() const {
    return m_hTabCtrl && m_hTabCtrl->currentIndex() == 1 ? "NddNetChoiceForm" : "Ndd2QfxOptions";
}

void CNdd2QfxSetting::OnOK() {
    CUiDialog::OnOK();
    m_property.OnOK();
    m_netChoice.OnOK();
    m_ibisFiles.OnOK();
}

int CNdd2QfxSetting::DoModal() {
    int result = CUiDialog::DoModal();
    m_netChoice.OnWndMsg(kMsgDestroy, 0, 0);
    return result;
}
