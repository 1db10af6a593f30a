#include "dialogs/AboutDialog.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>

#include "Version.h"
#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"

std::string AboutEntryCaption() {
    return "&About Ndd2Qfx...";
}

std::string AboutVersionText() {
    std::string build = NDD2QFX_SPECIAL_BUILD;
    size_t dot = build.rfind('.');
    if (dot != std::string::npos) build.erase(dot);
    std::string version = NDD2QFX_PRODUCT_VERSION;
    std::replace(version.begin(), version.end(), ',', '.');
    char text[256];
    std::snprintf(text, sizeof text, "Version %s (Build No. %s)", build.c_str(), version.c_str());
    return text;
}

std::unique_ptr<QDialog> MakeAboutDialog(QWidget* parent) {
    auto dialog = std::make_unique<QDialog>(parent);
    dialog->setWindowTitle(QStringLiteral("About Ndd2Qfx"));
    dialog->resize(480, 360);
    auto* column = new QVBoxLayout(dialog.get());
    auto* picture = new QLabel(dialog.get());
    picture->setPixmap(CQtNdd2QfxResourceMgr().LoadPixmap(IDB_ABOUT));
    picture->setAlignment(Qt::AlignCenter);
    column->addWidget(picture, 1);
    auto* row = new QHBoxLayout();
    row->addWidget(new QLabel(QString::fromStdString(AboutVersionText()), dialog.get()), 1);
    auto* ok = new QPushButton(QStringLiteral("OK"), dialog.get());
    ok->setFixedSize(75, 23);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, dialog.get(), &QDialog::accept);
    row->addWidget(ok);
    column->addLayout(row);
    return dialog;
}
