#include "draw/StackPicture.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>

#include "draw/DeckColors.h"

namespace qfxview {

namespace {

const int kBandMin = 22;     // a band of no thickness still holds its text
const int kBandGrowth = 40;  // added for the thickest layer
const int kMargin = 12;

// Dielectrics have no colour of their own in a deck.
const QColor kDielectric(0xe6, 0xd8, 0xad);

int BandHeight(const DeckLayer& layer, double thickest) {
    double share = thickest > 0.0 ? layer.thickness / thickest : 0.0;
    return kBandMin + static_cast<int>(share * kBandGrowth);
}

QColor BandColor(const DeckLayer& layer) {
    if (layer.kind == Kind::MediumLayer || layer.kind == Kind::MediumPseudo) return kDielectric;
    return DeckColor(layer.color);
}

QColor TextColor(const QColor& band) {
    const double luminance = 0.299 * band.red() + 0.587 * band.green() + 0.114 * band.blue();
    return luminance < 140.0 ? QColor(0xff, 0xff, 0xff) : QColor(0, 0, 0);
}

QString BandText(const DeckLayer& layer) {
    char thickness[64];
    std::snprintf(thickness, sizeof thickness, "%.4g mm", layer.thickness);
    return QString::fromStdString(layer.name) + "    " + QString::fromLatin1(thickness);
}

}  // namespace

bool WriteStackPicture(const std::vector<DeckLayer>& layers, int width, const std::string& path) {
    double thickest = 0.0;
    for (const DeckLayer& layer : layers) thickest = std::max(thickest, layer.thickness);
    int height = 2 * kMargin;
    for (const DeckLayer& layer : layers) height += BandHeight(layer, thickest);
    QImage image(std::max(width, 2 * kMargin + 1), std::max(height, 2 * kMargin + 1),
                 QImage::Format_RGB32);
    image.fill(Background());
    QPainter painter(&image);
    QFont font("DejaVu Sans");
    font.setPixelSize(13);
    painter.setFont(font);
    int y = kMargin;
    for (const DeckLayer& layer : layers) {
        int band = BandHeight(layer, thickest);
        QRect rect(kMargin, y, image.width() - 2 * kMargin, band);
        QColor color = BandColor(layer);
        painter.fillRect(rect, color);
        painter.setPen(QColor(0x40, 0x40, 0x40));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
        painter.setPen(TextColor(color));
        painter.drawText(rect.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft,
                         BandText(layer));
        y += band;
    }
    painter.end();
    return image.save(QString::fromStdString(path), "PNG");
}

}  // namespace qfxview
