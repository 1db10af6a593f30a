#pragma once
// The pictures of the resource table, drawn once as PNG bytes.
#include <QByteArray>

// The net colour swatches: one strip of 16 by 15 images, "default" first (a plain button
// face) and then the eleven colours.
QByteArray NetColorStripPng();
// The program's icon, 32 by 32.
QByteArray ProgramIconPng();
// The picture of the About box.
QByteArray AboutPicturePng();
