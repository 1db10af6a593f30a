#include "dialogs/forms/FormScale.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

double g_dbDpiOverride = 0;

QScreen* ActiveScreen() {
    QWidget* active = QApplication::activeWindow();
    if (active && active->windowHandle() && active->windowHandle()->screen())
        return active->windowHandle()->screen();
    return QGuiApplication::primaryScreen();
}

QRect Scaled(const QRect& r, double sx, double sy) {
    return QRect(qRound(r.x() * sx), qRound(r.y() * sy), qRound(r.width() * sx),
                 qRound(r.height() * sy));
}

}  // namespace

QSizeF FormDpi() {
    if (g_dbDpiOverride > 0) return QSizeF(g_dbDpiOverride, g_dbDpiOverride);
    QScreen* screen = ActiveScreen();
    if (!screen) return QSizeF(96, 96);
    return QSizeF(screen->logicalDotsPerInchX(), screen->logicalDotsPerInchY());
}

void OverrideFormDpi(double dpi) {
    g_dbDpiOverride = dpi;
}

void ScaleForm(QWidget* dialog) {
    const QSizeF dpi = FormDpi();
    const double sx = dpi.width() / 96.0;
    const double sy = dpi.height() / 96.0;
    if (sx == 1.0 && sy == 1.0) return;
    // The controls keep their places relative to the grown dialog.
    for (QWidget* child : dialog->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        child->setGeometry(Scaled(child->geometry(), sx, sy));
    dialog->resize(qRound(dialog->width() * sx), qRound(dialog->height() * sy));
}
