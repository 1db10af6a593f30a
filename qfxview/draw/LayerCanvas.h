#pragma once
// The picture of one conductor layer: a PNG image, and an SVG drawing beside it when one is
// asked for. Everything is drawn in board millimetres; the canvas maps them to the picture,
// y upwards.
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSvgGenerator>
#include <memory>
#include <string>

#include "deck/DeckScan.h"

namespace qfxview {

struct Frame {
    int width = 0, height = 0;
    QTransform toPicture;
    QRectF board;  // the extent, in mm
};

// A frame of the given width around the extent, with a margin, the board's y upwards.
Frame FrameOf(const Extent& extent, int width);

class LayerCanvas {
  public:
    LayerCanvas(const Frame& frame, const std::string& svgPath);
    ~LayerCanvas();
    LayerCanvas(const LayerCanvas&) = delete;
    LayerCanvas& operator=(const LayerCanvas&) = delete;

    void Fill(const QPainterPath& path, const QColor& color);
    // A line of the given width in mm, round at its ends; at least one pixel wide.
    void Line(const QPointF& from, const QPointF& to, double width, const QColor& color);
    void Mark(const QPointF& at, const QColor& color);
    // Ends the painting; false if the PNG could not be written.
    bool Save(const std::string& pngPath);

  private:
    template <class F>
    void EachPainter(F&& draw);
    QImage image_;
    QPainter painter_;
    std::unique_ptr<QSvgGenerator> svg_;
    std::unique_ptr<QPainter> svgPainter_;
    double pixelsPerMm_ = 1.0;
};

}  // namespace qfxview
