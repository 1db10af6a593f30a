// The colour picker run modally as a user runs it: choose a name in the combo box, then OK.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include "dialogs/ColorPicker.h"
#include "dialogs/forms/ControlIds.h"
#include "ui/UiControls.h"

namespace {

struct PickerCase {
    int start;    // the colour index the picker opens with
    int chosen;   // the combo box row the user picks
    QRgb swatch;  // the middle of the swatch afterwards; 0 for the plain button face
};

const PickerCase kCases[] = {
    {0, 3, qRgb(0, 0, 255)},     // "blue", 0x00FF0000
    {2, 11, qRgb(128, 128, 0)},  // "darkyellow", 0x00008080
    {5, 0, 0},                   // back to "default"
};

}  // namespace

TEST(ColorPicker, ReturnsTheChosenIndexAndShowsItsColour) {
    for (const PickerCase& c : kCases) {
        CColorPicker picker(c.start);
        QRgb middle = 1;
        bool plain = false;
        QStringList names;
        QTimer::singleShot(0, [&] {
            auto* combo = static_cast<QComboBox*>(picker.GetDlgItem(IDC_COLOR_NAME)->GetHandle());
            for (int i = 0; i < combo->count(); ++i) names << combo->itemText(i);
            EXPECT_EQ(combo->currentIndex(), c.start);
            combo->setCurrentIndex(c.chosen);
            emit combo->activated(c.chosen);
            QWidget* swatch = picker.GetDlgItem(IDC_COLOR_SHOWER)->GetHandle();
            const QImage image = swatch->grab().toImage();
            middle = image.pixel(image.width() / 2, image.height() / 2);
            plain = static_cast<CColorButton*>(picker.GetDlgItem(IDC_COLOR_SHOWER))->IsDefault();
            static_cast<CUiButton*>(picker.GetDlgItem(IDOK))->Click();
        });
        EXPECT_EQ(picker.DoModal(), IDOK);
        EXPECT_EQ(picker.GetColorIndex(), c.chosen);
        EXPECT_EQ(names.join(','),
                  "default,red,green,blue,yellow,magenta,darkblue,darkgreen,darkcyan,darkred,"
                  "darkmagenta,darkyellow");
        EXPECT_EQ(plain, c.swatch == 0);
        if (c.swatch != 0)
            EXPECT_EQ(middle, c.swatch);
        else
            EXPECT_NE(qAlpha(middle), 0u);  // the button's own face, not a colour
    }
}
