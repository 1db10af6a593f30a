#pragma once
// Forms are laid out for a screen of 96 dots per inch and grow with the screen's density.
#include <QSizeF>

class QWidget;

// The logical dots per inch of the active window's screen on each axis, 96 with no screen;
// or the value fixed by OverrideFormDpi.
QSizeF FormDpi();
// Fixes the density that FormDpi reports (tests); 0 returns to the screen's.
void OverrideFormDpi(double dpi);
// Multiplies the dialog's size, and every direct control's place and size, by dpi / 96 on
// each axis.
void ScaleForm(QWidget* dialog);
