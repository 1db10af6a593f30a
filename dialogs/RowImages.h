#pragma once
// Small pictures drawn by the program for the rows of its lists: the ten images of the pin
// mapping groups and the three state images of the IBIS file list.
#include <QIcon>
#include <QList>

// Power groups red, ground groups green, the available pins grey; an open group shows a
// lighter body, an empty one only its outline; a pin is a small dot.
QList<QIcon> PinGroupImages();
// Row states of the IBIS file list: no file, a file without a complete mapping, mapped.
QList<QIcon> IbisStateImages();
