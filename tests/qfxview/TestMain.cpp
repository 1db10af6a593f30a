// The pictures need the toolkit's application object (fonts); nothing is ever shown.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cstdlib>

#include "draw/ToolkitLeaks.h"

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
