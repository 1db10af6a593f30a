#include "draw/DeckColors.h"

namespace qfxview {

QColor DeckColor(const std::string& word) {
    // The one colour word of the deck that is not an SVG colour name.
    if (word == "darkyellow") return QColor(0x80, 0x80, 0x00);
    QColor color(QString::fromStdString(word));
    return color.isValid() ? color : QColor(0x80, 0x80, 0x80);
}

QColor Background() {
    return QColor(0xff, 0xff, 0xff);
}

}  // namespace qfxview
