// The text of a window's state in a check point.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "TestWindow.h"
#include "guireplay/WidgetStateText.h"

TEST(CheckPointText, ListsEachControlsStateInItsForm) {
    TestWindow window;
    window.nameEdit->setText("board\none");
    window.nets->item(0)->setCheckState(Qt::Checked);
    window.nets->item(1)->setCheckState(Qt::PartiallyChecked);
    window.findChild<QCheckBox*>("keepCheck")->setChecked(true);
    window.findChild<QWidget*>("unitCombo")->setEnabled(false);
    EXPECT_EQ(guireplay::WidgetStateText(&window).toStdString(),
              "QDialog#testWindow: \"Replay Test\", Enabled\n"
              "QLineEdit#nameEdit: \"board&#x0Aone\", Enabled\n"
              "--------\n"
              "QGroupBox#optionsBox: \"Options\", Enabled\n"
              "QCheckBox#keepCheck: \"Keep vias\", Enabled, Checked\n"
              "QComboBox#unitCombo: \"mm\", Disabled\n"
              "    items:\n"
              "    0: \"mm\"\n"
              "    1: \"mil\"\n"
              "QListWidget#netList: items=3 columns=1, Enabled\n"
              "    items:\n"
              "    0: \"GND\" [Checked]\n"
              "    1: \"VCC\" [PartialChecked]\n"
              "    2: \"CLK\" [Unchecked] [Disabled]\n"
              "QTabWidget#pages: \"General\", Enabled\n"
              "    Tabs:\n"
              "    0: \"General\"\n"
              "    1: \"Colours\" [Disabled]\n"
              "--------\n"
              "QLabel#firstPage: \"first page\"\n"
              "--------\n"
              "QLabel#secondPage: \"second page\"\n"
              "QLabel#resultLabel: \"nothing yet\"\n"
              "QPushButton#applyButton: \"Apply\", Enabled\n"
              "QPushButton#confirmButton: \"Confirm\", Enabled\n");
}

TEST(CheckPointText, HiddenAndCustomControlsFollowTheirProperties) {
    TestWindow window;
    window.findChild<QWidget*>("optionsBox")->setProperty("GUIREPLAYHIDDEN", true);
    window.findChild<QWidget*>("netList")->setProperty("GUIREPLAYHIDDEN", true);
    window.findChild<QWidget*>("pages")->setProperty("GUIREPLAYHIDDEN", true);
    window.result->setProperty("GUIRecChkCustomContent", QString("own words"));
    window.nameEdit->setEnabled(false);
    EXPECT_EQ(guireplay::WidgetStateText(&window).toStdString(),
              "QDialog#testWindow: \"Replay Test\", Enabled\n"
              "QLineEdit#nameEdit: \"\", Disabled\n"
              "QLabel#resultLabel: \"own words\", Enabled\n"
              "QPushButton#applyButton: \"Apply\", Enabled\n"
              "QPushButton#confirmButton: \"Confirm\", Enabled\n");
}
