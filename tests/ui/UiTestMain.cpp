// The UI framework's and the record-and-replay tests: one application on the offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "ui/ToolkitLeaks.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
