// The entry of the dialog tests: one application object on the offscreen platform for all.
#include <gtest/gtest.h>

#include <QApplication>

#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "ui/QtResourceMgr.h"
#include "ui/ToolkitLeaks.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Listing the tests at build time happens without CTest's environment, and without display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The dialogs find their forms as the program's do.
    CQtNdd2QfxResourceMgr resources;
    RegisterResourceMgr(&resources);
    int status = RUN_ALL_TESTS();
    RegisterResourceMgr(nullptr);
    return status;
}
