// The test window as a program of its own, started the way the translator starts: record and
// replay are switched on by the environment alone. Prints what the window showed at its end.
#include <QApplication>
#include <QLabel>
#include <cstdio>

#include "../TestWindow.h"
#include "guireplay/ReplayStart.h"
#include "ui/ToolkitLeaks.h"

int main(int argc, char** argv) {
    guireplay::ArmFromEnvironment();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("guireplay_demo"));
    TestWindow window;
    window.exec();
    std::printf("%s\n", qUtf8Printable(window.result->text()));
    return 0;
}
