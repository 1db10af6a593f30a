#include "dialogs/DialogServices.h"

#include <QCursor>
#include <QDesktopServices>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QUrl>
#include <cstdio>
#include <cstdlib>

#include "dialogs/ColorPicker.h"
#include "ui/MessageBox.h"

namespace {

std::string ChooseFile(QWidget* parent, const FileRequest& request) {
    QFileDialog dialog(parent, QString::fromStdString(request.title), QString(),
                       QString::fromStdString(request.filter));
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(QString::fromStdString(request.defaultExtension));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().first().toStdString();
}

bool ChooseNetColor(QWidget* parent, int& colourIndex) {
    CColorPicker picker(colourIndex, parent);
    if (picker.DoModal() != kIdOk) return false;
    colourIndex = picker.GetColorIndex();
    return true;
}

bool SomeoneAnswers() {
    MessageBoxAnswerer answerer = SetMessageBoxAnswerer(nullptr);
    bool answered = static_cast<bool>(answerer);
    SetMessageBoxAnswerer(std::move(answerer));
    QString platform = QGuiApplication::platformName();
    return answered || (platform != "offscreen" && platform != "minimal");
}

}  // namespace

DialogServices DesktopServices() {
    DialogServices services;
    services.chooseFile = ChooseFile;
    services.chooseNetColor = ChooseNetColor;
    services.popupMenu = [](QMenu& menu) { return menu.exec(QCursor::pos()); };
    services.openUrl = [](const std::string& url) {
        return QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
    };
    services.endProcess = [](int status) {
        // At once, as a refused replacement demands: no dialog comes back.
        std::fflush(nullptr);
        std::_Exit(status);
    };
    services.someoneAnswers = SomeoneAnswers;
    return services;
}
