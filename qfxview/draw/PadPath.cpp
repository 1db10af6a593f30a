#include "draw/PadPath.h"

#include <QPolygonF>

namespace qfxview {

QPainterPath PadPath(const PadShape& pad) {
    QPainterPath path;
    const double w = pad.width, h = pad.height;
    switch (pad.form) {
        case PadShape::Box:
            path.addRect(-w / 2, -h / 2, w, h);
            break;
        case PadShape::Square:
            path.addRect(-w / 2, -w / 2, w, w);
            break;
        case PadShape::Circle:
            path.addEllipse(QPointF(0, 0), w, w);
            break;
        case PadShape::RoundedX:
            path.addRoundedRect(-w / 2, -h / 2, w, h, h / 2, h / 2);
            break;
        case PadShape::RoundedY:
            path.addRoundedRect(-w / 2, -h / 2, w, h, w / 2, w / 2);
            break;
        case PadShape::Polygon: {
            QPolygonF polygon;
            for (const auto& p : pad.points) polygon << QPointF(p.first, p.second);
            path.addPolygon(polygon);
            path.closeSubpath();
            break;
        }
        case PadShape::None:
            break;
    }
    return path.translated(pad.offsetX, pad.offsetY);
}

}  // namespace qfxview
