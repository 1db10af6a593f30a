// The text of a window's state in a check point, against data/guireplay/state/.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "ReplayTestSupport.h"
#include "TestWindow.h"
#include "guireplay/WidgetStateText.h"

TEST(CheckPointText, ListsEachControlsStateInItsForm) {
    TestWindow window;
    window.nameEdit->setText("board\none");
    window.nets->item(0)->setCheckState(Qt::Checked);
    window.nets->item(1)->setCheckState(Qt::PartiallyChecked);
    window.findChild<QCheckBox*>("keepCheck")->setChecked(true);
    window.findChild<QWidget*>("unitCombo")->setEnabled(false);
    EXPECT_EQ(guireplay::WidgetStateText(&window), ReadText(DataPath("state/all_controls.txt")));
}

TEST(CheckPointText, HiddenAndCustomControlsFollowTheirProperties) {
    TestWindow window;
    for (const char* name : {"optionsBox", "netList", "pages"})
        window.findChild<QWidget*>(name)->setProperty("GUIREPLAYHIDDEN", true);
    window.result->setProperty("GUIRecChkCustomContent", QString("own words"));
    window.nameEdit->setEnabled(false);
    EXPECT_EQ(guireplay::WidgetStateText(&window),
              ReadText(DataPath("state/hidden_and_custom.txt")));
}
