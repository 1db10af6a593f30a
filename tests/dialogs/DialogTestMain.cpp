// The dialog tests run inside one toolkit application on the offscreen platform, with the
// translator's forms registered as the program registers them.
#include <gtest/gtest.h>

#include <QApplication>

#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "ui/QtResourceMgr.h"
#include "ui/ToolkitLeaks.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    CQtNdd2QfxResourceMgr resources;
    RegisterResourceMgr(&resources);
    int status = RUN_ALL_TESTS();
    RegisterResourceMgr(nullptr);
    return status;
}
