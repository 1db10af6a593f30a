// Record and replay need the widget application object; windows are shown on the offscreen
// platform only.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>

#include "ui/ToolkitLeaks.h"

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("guireplay_tests"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
