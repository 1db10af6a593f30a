#include "geometry/ShapeBoxes.h"

#include "model/LayoutModel.h"

BoundingBox ComputeShapeBox(const ShapeRec& shape) {
    BoundingBox box;
    if (shape.pointCount <= 0) return box;
    const ShapePoint* pts = &g_model.g_aShapePoints[static_cast<size_t>(shape.firstPoint)];
    if (shape.geometry == kGeometryCircle) {
        double r = shape.pointCount >= 2 ? pts[1].x : 0.0;
        return BoundingBox{pts[0].x - r, pts[0].y - r, pts[0].x + r, pts[0].y + r};
    }
    box = BoundingBox{pts[0].x, pts[0].y, pts[0].x, pts[0].y};
    if (shape.pointCount < 2) return box;
    for (int32_t k = 1; k < shape.pointCount; ++k) {
        if (pts[k].x < box.minX) box.minX = pts[k].x;
        if (pts[k].y < box.minY) box.minY = pts[k].y;
        if (pts[k].x > box.maxX) box.maxX = pts[k].x;
        if (pts[k].y > box.maxY) box.maxY = pts[k].y;
    }
    return box;
}

void BuildShapeBoxes() {
    auto& boxes = g_model.g_aShapeBoxes;
    boxes.clear();
    boxes.reserve(g_model.g_aShapes.size());
    for (const ShapeRec& shape : g_model.g_aShapes) boxes.push_back(ComputeShapeBox(shape));
}

BoundingBox ShapeBox(int32_t i) {
    if (i >= 0 && static_cast<size_t>(i) < g_model.g_aShapeBoxes.size())
        return g_model.g_aShapeBoxes[static_cast<size_t>(i)];
    return ComputeShapeBox(g_model.g_aShapes[static_cast<size_t>(i)]);
}
