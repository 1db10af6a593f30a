#include "dialogs/RowImages.h"

#include <QPainter>
#include <QPixmap>

#include "dialogs/PinGroups.h"

namespace {

constexpr int kSide = 15;
constexpr int kStateWidth = 42;
constexpr int kStateHeight = 4;

QIcon Folder(const QColor& colour, bool open, bool empty) {
    QPixmap picture(kSide, kSide);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(colour.darker());
    painter.setBrush(empty ? QColor(Qt::transparent) : open ? colour.lighter(150) : colour);
    painter.drawRect(1, 3, kSide - 3, kSide - 6);
    if (open) painter.drawLine(3, kSide - 3, kSide - 1, 5);
    return QIcon(picture);
}

QIcon Dot() {
    QPixmap picture(kSide, kSide);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::darkGray);
    painter.drawEllipse(5, 5, 4, 4);
    return QIcon(picture);
}

QIcon Bar(const QColor& colour) {
    QPixmap picture(kStateWidth, kStateHeight);
    picture.fill(colour);
    return QIcon(picture);
}

}  // namespace

QList<QIcon> PinGroupImages() {
    QList<QIcon> images;
    for (const QColor& colour : {QColor(200, 40, 40), QColor(40, 150, 40), QColor(130, 130, 130)})
        for (int look = 0; look < 3; ++look) images << Folder(colour, look == 1, look == 2);
    images << Dot();
    return images;
}

QList<QIcon> IbisStateImages() {
    return {Bar(QColor(200, 40, 40)), Bar(QColor(230, 170, 30)), Bar(QColor(40, 150, 40))};
}
