#pragma once
// The translator's resources: its dialog forms by dialog number, and a table of four pictures
// (the About picture, the program's icon and the two image lists of net colours) by number.
#include <cstddef>
#include <memory>

#include <QIcon>
#include <QList>
#include <QPixmap>

#include "dialogs/forms/QtDialogForm.h"

// One picture of the table: its number and its bytes (XPM text).
struct QtResourceEntry {
    int number;
    const char* data;
    std::size_t length;
};

class CQtNdd2QfxResourceMgr {
  public:
    // A new, unbuilt form of the dialog number; null for a number that names no form.
    std::unique_ptr<CQtDialogForm> CreateForm(int dialogId) const;
    // The picture of the number; null for a number outside the table.
    const QtResourceEntry* FindResource(int number) const;
    // The picture of the number made into a pixmap; a null pixmap for an unknown number.
    QPixmap LoadPixmap(int number) const;
    // The picture of the number cut into images `width` pixels wide, left to right (an image
    // list); empty for an unknown number.
    QList<QIcon> LoadImageList(int number, int width) const;
};
