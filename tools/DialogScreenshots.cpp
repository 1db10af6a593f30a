// Takes the pictures of the dialogs for the README: the main window idle with a board named and
// in the middle of a translation, the Settings pages, the pin mapping dialog, the colour picker
// and the About box. Run under Xvfb (or QT_QPA_PLATFORM=offscreen):
//   xvfb-run -a build/tools/dialog_screenshots docs/images
#include <QApplication>
#include <QDialog>
#include <QTabWidget>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/SettingsPage.h"
#include "base/Platform.h"
#include "dialogs/AboutDialog.h"
#include "dialogs/ColorPicker.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/Ndd2QfxSetting.h"
#include "dialogs/PowerPinSelector.h"
#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ui/MessageBox.h"
#include "ui/QtResourceMgr.h"
#include "ui/UiListCtrl.h"

namespace {

bool Save(QWidget* widget, const std::string& path) {
    QApplication::processEvents();
    bool saved = widget->grab().save(QString::fromStdString(path), "PNG");
    std::printf("%s %s\n", saved ? "wrote" : "could not write", path.c_str());
    return saved;
}

// Calls act once with the modal dialog of type Dialog as soon as it shows; the caller then
// starts the modal run, which act must end. The timer must outlive that run.
template <class Dialog, class Act>
void WhenModalShows(QTimer& look, Act act) {
    QObject::connect(&look, &QTimer::timeout, [&look, act]() mutable {
        auto* dialog = dynamic_cast<Dialog*>(g_pModalDialog);
        if (!dialog || !dialog->GetHandle()->isVisible()) return;
        look.stop();
        act(*dialog);
    });
    look.start(50);
}

// The pin mapping dialog of the IBIS page's first part, every group open.
bool SavePinMapping(CNdd2QfxSetting& settings, const std::string& folder) {
    CIBISFileSelector& page = settings.IbisPage();
    CUiListCtrl* parts = page.ListCtrl().List();
    if (!parts || parts->GetItemCount() == 0) return false;
    parts->SetFocusedRow(0);
    bool ok = false;
    QTimer look;
    WhenModalShows<CPowerPinSelector>(look, [&](CPowerPinSelector& mapping) {
        for (const PinGroupRec& group : std::vector<PinGroupRec>(mapping.Groups().Groups()))
            mapping.Groups().SetOpen(group.group, true);
        ok = Save(mapping.GetHandle(), folder + "/pin-mapping.png");
        mapping.EndDialog(kIdCancel);
    });
    page.OnCmdMsg(IDC_BUTTON_EDIT_IBIS_FILE, kCodeClicked, nullptr, false);
    return ok;
}

// The pages of the Settings dialog over the example board, with three nets chosen.
bool SaveSettingsPages(const std::string& folder, const std::string& work) {
    CNdd2QfxDlg main;
    main.Create(IDD_Ndd2Qfx_DIALOG);
    main.SetDlgItemText(IDC_EDIT_INPUT, work + "/board.ndd");
    main.SetDlgItemText(IDC_EDIT_OUTPUT, work + "/board.qfx");
    g_options.g_strTraceFile = work + "/traces";
    bool ok = true;
    // The Settings step reads the board, then opens the dialog; the pictures are taken in its
    // modal run, which the last one ends.
    QTimer look;
    WhenModalShows<CNdd2QfxSetting>(look, [&](CNdd2QfxSetting& shown) {
        CNdd2QfxSetting* settings = &shown;
        ok &= Save(settings->GetHandle(), folder + "/settings-options.png");
        settings->TabControl()->setCurrentIndex(1);
        CUiListCtrl* nets = settings->NetChoicePage().NetList();
        for (int row : {0, 2, 3}) nets->SetItemSelected(row, true);
        QApplication::processEvents();
        // CLK as if given "darkmagenta" in the picker.
        nets->SetItemImage(0, 10);
        settings->NetChoicePage().ChoiceList()->SetItemImage(0, 10);
        ok &= Save(settings->GetHandle(), folder + "/settings-nets.png");
        settings->TabControl()->setCurrentIndex(2);
        ok &= Save(settings->GetHandle(), folder + "/settings-ibis.png");
        ok &= SavePinMapping(*settings, folder);
        settings->OnCancel();
    });
    main.OnProperty();
    return ok;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT-FOLDER\n", argv[0]);
        return 2;
    }
    std::string folder = base::AbsolutePath(argv[1]);
    QApplication application(argc, argv);
    CQtNdd2QfxResourceMgr resources;
    RegisterResourceMgr(&resources);
    std::string work = base::TempFolder() + "/ndd2qfx_screenshots";
    base::ChangeFolder(base::TempFolder());
    if (std::system(("rm -rf '" + work + "' && mkdir -p '" + work +
                     "' && cp '" NDD2QFX_SOURCE_DIR "/examples/board.ndd' '" + work +
                     "/' && cp -r '" NDD2QFX_SOURCE_DIR "/examples/IBISModels' '" + work + "/'")
                        .c_str()) != 0)
        return 1;
    bool ok = true;
    {
        // The traces question is answered No, as a quick translation would.
        CMessageBoxAnswers answers({kAnswerNo});
        CNdd2QfxDlg dialog;
        dialog.Create(IDD_Ndd2Qfx_DIALOG);
        dialog.SetDlgItemText(IDC_EDIT_INPUT, work + "/board.ndd");
        dialog.SetDlgItemText(IDC_EDIT_OUTPUT, work + "/board.qfx");
        dialog.GetHandle()->show();
        ok &= Save(dialog.GetHandle(), folder + "/main-dialog.png");
        bool taken = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (taken || dialog.GetDlgItemText(IDC_MSG) != "Writing Shape Info...") return;
            taken = true;
            ok &= Save(dialog.GetHandle(), folder + "/main-dialog-translating.png");
        });
        look.start(0);
        dialog.OnOK();
        ok &= taken;
    }
    ok &= SaveSettingsPages(folder, work);
    CColorPicker picker(5);
    picker.Create(IDD_COLOR_PICKER);
    picker.GetHandle()->show();
    ok &= Save(picker.GetHandle(), folder + "/color-picker.png");
    auto about = MakeAboutDialog(nullptr);
    about->show();
    ok &= Save(about.get(), folder + "/about-dialog.png");
    RegisterResourceMgr(nullptr);
    return ok ? 0 : 1;
}
