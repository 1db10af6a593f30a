#include "ui/EscapeKeyFilter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "ui/UiDialog.h"

void CEscapeKeyFilter::Install() {
    static CEscapeKeyFilter* installed = nullptr;
    if (installed || !qApp) return;
    installed = new CEscapeKeyFilter;
    installed->setParent(qApp);
    qApp->installEventFilter(installed);
    QObject::connect(qApp, &QObject::destroyed, [] { installed = nullptr; });
}

bool CEscapeKeyFilter::eventFilter(QObject* watched, QEvent* e) {
    if (e->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(e)->key() != Qt::Key_Escape ||
        !watched->isWidgetType())
        return false;
    auto* start = static_cast<QWidget*>(watched);
    if (start->window()->windowType() == Qt::Popup) return false;
    bool ours = false;
    for (QWidget* w = start; w; w = w->parentWidget()) {
        auto* dialog = dynamic_cast<CUiDialog*>(CUiWnd::FromHandle(w));
        if (dialog) {
            ours = true;
            CUiWnd* cancel = dialog->GetDlgItem(kIdCancel);
            if ((cancel && cancel->IsWindowEnabled()) || w->isWindow()) {
                dialog->OnWndMsg(kMsgCommand, MakeWParam(kIdCancel, kCodeClicked), 0);
                return true;
            }
        }
        if (w->isWindow()) break;
    }
    return ours;
}
