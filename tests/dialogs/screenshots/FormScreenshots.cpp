// Renders the README's pictures of the colour picker, the translation options page and the
// net selection page into docs/images/. Run by hand (offscreen or under Xvfb), never by CTest:
//   form_screenshots <folder>
#include <QApplication>
#include <QStringList>
#include <QWidget>
#include <clocale>
#include <cstdio>

#include "dialogs/ColorPicker.h"
#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "model/TranslationOptions.h"
#include "ui/ToolkitLeaks.h"
#include "ui/UiListCtrl.h"

namespace {

bool Save(QWidget* widget, const QString& path) {
    widget->show();
    QApplication::processEvents();
    const bool ok = widget->grab().save(path);
    std::printf("%s %s\n", ok ? "wrote" : "could not write", qPrintable(path));
    return ok;
}

// A few nets of an example board, each in its default colour (net index mod 11, plus 1).
void FillNets(CQtDialogForm& form, const CQtNdd2QfxResourceMgr& resources) {
    const QStringList nets = {"CLK_100M",   "DDR_DQ0",    "DDR_DQ1", "DDR_DQS0", "GND",
                              "PCIE_RX0_N", "PCIE_RX0_P", "VCC_1V8", "VCC_3V3",  "VCC_CORE"};
    for (int id : {IDC_NET_LIST, IDC_NET_CHOICE}) {
        CUiListCtrl* list = form.GetListControl(id);
        list->SetImageList(resources.LoadImageList(IDB_NET_COLORS, 16), CUiListCtrl::kNormalImages);
        list->InsertColumn(0, "Net Name", 190);
    }
    CUiListCtrl* all = form.GetListControl(IDC_NET_LIST);
    for (int i = 0; i < nets.size(); ++i) all->InsertItem(i, nets[i], i % 11 + 1);
    for (int row : {0, 4, 8}) all->SetItemSelected(row, true);
    CUiListCtrl* chosen = form.GetListControl(IDC_NET_CHOICE);
    for (int row : all->GetSelectedRows())
        chosen->InsertItem(chosen->GetItemCount(), all->GetItemText(row, 0),
                           all->GetItemImage(row));
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("docs/images");
    CQtNdd2QfxResourceMgr resources;
    RegisterResourceMgr(&resources);
    bool ok = true;

    CColorPicker picker(5);
    picker.Create(IDD_COLOR_PICKER);
    ok &= Save(picker.GetHandle(), folder + "/color-picker.png");

    QWidget options;
    resources.CreateDialogForm(IDD_SETTINGS)->setupUi(&options, true);
    ok &= Save(&options, folder + "/translation-options.png");

    QWidget nets;
    std::unique_ptr<CQtDialogForm> netForm = resources.CreateDialogForm(IDD_NET_CHOICE);
    netForm->setupUi(&nets, true);
    FillNets(*netForm, resources);
    ok &= Save(&nets, folder + "/net-selection.png");

    RegisterResourceMgr(nullptr);
    return ok ? 0 : 1;
}
