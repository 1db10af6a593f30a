#include "dialogs/forms/ResourcePictures.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include "dialogs/forms/NetColorTable.h"

namespace {

QByteArray Png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// Board-like stripes in the net colours on a dark substrate.
void PaintTraces(QPainter& painter, const QRect& area, int width) {
    painter.fillRect(area, QColor(0x1E, 0x3A, 0x2A));
    const int step = area.height() / (kNetColorCount + 1);
    for (int i = 1; i <= kNetColorCount; ++i) {
        painter.setPen(QPen(NetColorToQColor(kNetColorValues[i]), width));
        const int y = area.top() + i * step;
        painter.drawLine(area.left() + i * 2, y, area.right() - (kNetColorCount - i) * 2, y);
    }
}

}  // namespace

QByteArray NetColorStripPng() {
    constexpr int kWidth = 16, kHeight = 15;
    QImage strip((kNetColorCount + 1) * kWidth, kHeight, QImage::Format_ARGB32);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    for (int i = 0; i <= kNetColorCount; ++i) {
        const QRect box(i * kWidth + 1, 1, kWidth - 3, kHeight - 3);
        painter.fillRect(box,
                         i == 0 ? QColor(0xE0, 0xE0, 0xE0) : NetColorToQColor(kNetColorValues[i]));
        painter.setPen(i == 0 ? QColor(0x80, 0x80, 0x80) : QColor(Qt::black));
        painter.drawRect(box);
    }
    painter.end();
    return Png(strip);
}

QByteArray ProgramIconPng() {
    QImage icon(32, 32, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    PaintTraces(painter, QRect(2, 2, 28, 28), 2);
    painter.end();
    return Png(icon);
}

QByteArray AboutPicturePng() {
    QImage picture(440, 220, QImage::Format_ARGB32);
    QPainter painter(&picture);
    PaintTraces(painter, picture.rect(), 8);
    painter.end();
    return Png(picture);
}
