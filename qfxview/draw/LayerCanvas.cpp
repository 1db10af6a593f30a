#include "draw/LayerCanvas.h"

#include <QPen>
#include <algorithm>
#include <cmath>

#include "draw/DeckColors.h"

namespace qfxview {

namespace {

const int kMargin = 16;
const int kMaxHeight = 16384;

}  // namespace

Frame FrameOf(const Extent& extent, int width) {
    Frame frame;
    frame.width = std::max(width, 2 * kMargin + 1);
    double spanX = extent.empty ? 1.0 : std::max(extent.maxX - extent.minX, 1e-6);
    double spanY = extent.empty ? 1.0 : std::max(extent.maxY - extent.minY, 1e-6);
    double scale = (frame.width - 2 * kMargin) / spanX;
    double height = spanY * scale + 2 * kMargin;
    frame.height = static_cast<int>(std::min<double>(std::ceil(height), kMaxHeight));
    double minX = extent.empty ? 0.0 : extent.minX, maxY = extent.empty ? 1.0 : extent.maxY;
    frame.board = QRectF(minX, maxY - spanY, spanX, spanY);
    frame.toPicture =
        QTransform(scale, 0, 0, -scale, kMargin - minX * scale, kMargin + maxY * scale);
    return frame;
}

LayerCanvas::LayerCanvas(const Frame& frame, const std::string& svgPath)
    : image_(frame.width, frame.height, QImage::Format_RGB32), pixelsPerMm_(frame.toPicture.m11()) {
    image_.fill(Background());
    painter_.begin(&image_);
    if (!svgPath.empty()) {
        svg_ = std::make_unique<QSvgGenerator>();
        svg_->setFileName(QString::fromStdString(svgPath));
        svg_->setSize(QSize(frame.width, frame.height));
        svg_->setViewBox(QRect(0, 0, frame.width, frame.height));
        svgPainter_ = std::make_unique<QPainter>(svg_.get());
        svgPainter_->fillRect(QRect(0, 0, frame.width, frame.height), Background());
    }
    // A thin grey outline of the board's extent, so that a layer with little on it still
    // shows where it lies.
    QPen outline(QColor(0x80, 0x80, 0x80));
    outline.setWidth(0);
    EachPainter([&](QPainter& p) {
        p.setRenderHint(QPainter::Antialiasing, true);
        p.setTransform(frame.toPicture);
        p.setPen(outline);
        p.drawRect(frame.board);
        p.setPen(Qt::NoPen);
    });
}

LayerCanvas::~LayerCanvas() {
    if (painter_.isActive()) painter_.end();
    if (svgPainter_ && svgPainter_->isActive()) svgPainter_->end();
}

template <class F>
void LayerCanvas::EachPainter(F&& draw) {
    draw(painter_);
    if (svgPainter_) draw(*svgPainter_);
}

void LayerCanvas::Fill(const QPainterPath& path, const QColor& color) {
    EachPainter([&](QPainter& p) { p.fillPath(path, color); });
}

void LayerCanvas::Line(const QPointF& from, const QPointF& to, double width, const QColor& color) {
    QPen pen(color);
    if (width * pixelsPerMm_ < 1.0) {
        pen.setWidth(0);  // cosmetic: one pixel whatever the scale
    } else {
        pen.setWidthF(width);
    }
    pen.setCapStyle(Qt::RoundCap);
    EachPainter([&](QPainter& p) {
        p.setPen(pen);
        p.drawLine(from, to);
        p.setPen(Qt::NoPen);
    });
}

void LayerCanvas::Mark(const QPointF& at, const QColor& color) {
    double arm = 3.0 / pixelsPerMm_;
    QPen pen(color);
    pen.setWidth(0);
    EachPainter([&](QPainter& p) {
        p.setPen(pen);
        p.drawLine(at - QPointF(arm, arm), at + QPointF(arm, arm));
        p.drawLine(at - QPointF(arm, -arm), at + QPointF(arm, -arm));
        p.setPen(Qt::NoPen);
    });
}

bool LayerCanvas::Save(const std::string& pngPath) {
    painter_.end();
    if (svgPainter_) svgPainter_->end();
    return image_.save(QString::fromStdString(pngPath), "PNG");
}

}  // namespace qfxview
