#pragma once
// The Escape key of the program's dialogs. From the widget that has the key, up by parent, the
// first dialog whose Cancel control exists and is enabled (or that is a top-level form) gets
// the command of its Cancel control. Once a dialog of ours was met, the key is taken even when
// none answered; a window that is none of ours (a message box, a file chooser, a list's popup)
// keeps its own Escape. Any other key goes on.
#include <QObject>

class CEscapeKeyFilter : public QObject {
  public:
    // Installs the filter on the application once.
    static void Install();
    bool eventFilter(QObject* watched, QEvent* e) override;
};
