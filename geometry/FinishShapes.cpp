#include "geometry/FinishShapes.h"

#include <cmath>

#include "geometry/CollinearPoints.h"
#include "geometry/ShapeArea.h"
#include "geometry/ShapeBoxes.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"

namespace {

void DropClosingAndCollinear(ShapeRec& s) {
    if (s.geometry == kGeometryCircle || s.pointCount < 3) return;
    ShapePoint* p = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
    const ShapePoint& first = p[0];
    const ShapePoint& last = p[s.pointCount - 1];
    if (std::fabs(last.x - first.x) < kClosingPointTolerance &&
        std::fabs(last.y - first.y) < kClosingPointTolerance)
        --s.pointCount;
    s.pointCount = RemoveCollinearPoints(p, s.pointCount);
}

void Widen(LayerRec& L, double x0, double y0, double x1, double y1) {
    if (x0 < L.minX) L.minX = x0;
    if (y0 < L.minY) L.minY = y0;
    if (x1 > L.maxX) L.maxX = x1;
    if (y1 > L.maxY) L.maxY = y1;
}

}  // namespace

void SetLayerExtents() {
    if (!g_model.g_aLayers) return;
    const int count = g_model.g_nLayerCount;
    for (int l = 0; l < count; ++l) {
        LayerRec& L = g_model.g_aLayers[l];
        L.minX = L.minY = 1e30;
        L.maxX = L.maxY = -1e30;
    }
    for (const ShapeRec& s : g_model.g_aShapes) {
        if (s.layer < 0 || s.layer >= count || s.pointCount <= 0) continue;
        LayerRec& L = g_model.g_aLayers[s.layer];
        const ShapePoint* p = &g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
        if (s.geometry == kGeometryCircle) {
            double r = s.pointCount >= 2 ? p[1].x : 0.0;
            Widen(L, p[0].x - r, p[0].y - r, p[0].x + r, p[0].y + r);
            continue;
        }
        for (int32_t k = 0; k < s.pointCount; ++k) Widen(L, p[k].x, p[k].y, p[k].x, p[k].y);
    }
    for (int l = 0; l < count; ++l) {
        LayerRec& L = g_model.g_aLayers[l];
        bool filled = L.minX <= L.maxX && L.minY <= L.maxY;
        L.gridX = filled ? (L.maxX - L.minX) * kGridFraction : 0.0;
        L.gridY = filled ? (L.maxY - L.minY) * kGridFraction : 0.0;
    }
}

void FinishShapes() {
    for (int32_t i = 0; i < g_model.ShapeCount(); ++i)
        g_model.g_aShapes[static_cast<size_t>(i)].area = ShapeArea(i);
    for (ShapeRec& s : g_model.g_aShapes) DropClosingAndCollinear(s);
    SortShapeTable();
    SetLayerExtents();
    BuildShapeBoxes();
}
