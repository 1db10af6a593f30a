#pragma once
// The translator's resources: its dialog forms by dialog number, and a table of four pictures
// (the About picture, the program's icon and the two image lists of net colours) by number.
#include <cstddef>
#include <memory>

#include <QIcon>
#include <QList>
#include <QPixmap>

#include "dialogs/forms/QtDialogForm.h"
#include "ui/QtResourceMgr.h"

// One picture of the table: its number and its bytes (PNG).
struct QtResourceEntry {
    int number;
    const char* data;
    std::size_t length;
};

class CQtNdd2QfxResourceMgr : public IQtResourceMgr {
  public:
    // A new, unbuilt form of the dialog number; null for a number that names no form.
    std::unique_ptr<IQtForm> CreateForm(int templateId) override;
    bool FindResource(int number, const void** data, std::size_t* length) override;

    // The same as CreateForm, with the form's own interface.
    std::unique_ptr<CQtDialogForm> CreateDialogForm(int templateId) const;
    // The picture of the number; null for a number outside the table.
    const QtResourceEntry* FindEntry(int number) const;
    // The picture of the number made into a pixmap; a null pixmap for an unknown number.
    QPixmap LoadPixmap(int number) const;
    // The picture of the number cut into images `width` pixels wide, left to right (an image
    // list); empty for an unknown number.
    QList<QIcon> LoadImageList(int number, int width) const;
};
