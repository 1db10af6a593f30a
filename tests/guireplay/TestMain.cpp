// Record and replay need the widget application object; windows are shown on the offscreen
// platform only.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>

// Qt 5's offscreen platform and fontconfig leave their singletons behind at exit.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen.so\nleak:libQt5Gui.so\nleak:libQt5Core.so\nleak:libQt5Widgets.so\n"
           "leak:libfontconfig.so\n";
}

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("guireplay_tests"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
