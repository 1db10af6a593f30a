#pragma once
// What the dialogs ask of the desktop: a file name, a net colour, a choice from a popup menu, a
// help page opened in the desktop's viewer, and the end of the process. Each is a replaceable
// function, so that a test can answer in place of the person and the desktop.
#include <functional>
#include <string>

class QAction;
class QMenu;
class QWidget;

// A file dialog as the main dialog asks for one.
struct FileRequest {
    bool save = false;             // a save dialog, else an open dialog
    std::string title;             // empty: the toolkit's own title
    std::string filter;            // "ndd Files (*.ndd)"
    std::string defaultExtension;  // added to a name typed without one
};

struct DialogServices {
    // The chosen path, or "" when the user cancelled.
    std::function<std::string(QWidget* parent, const FileRequest& request)> chooseFile;
    // The chosen entry of a popup menu shown at the pointer, or null.
    std::function<QAction*(QMenu& menu)> popupMenu;
    // Opens a page of the local help (a file URL); false when the desktop could not.
    std::function<bool(const std::string& url)> openUrl;
    // The colour picker over parent, opened at a colour number (0 default, 1 to 11); false
    // when the user cancelled, else the number is the one chosen.
    std::function<bool(QWidget* parent, int& colourIndex)> chooseNetColor;
    // Ends the process at once with status.
    std::function<void(int status)> endProcess;
    // False when no one can answer a window: a platform with no screen and no answerer of
    // message boxes in place of the person.
    std::function<bool()> someoneAnswers;
};

// The services of the desktop: Qt's file dialogs, QMenu::exec, QDesktopServices.
DialogServices DesktopServices();
