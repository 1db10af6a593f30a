#pragma once
// Whether a via barrel touches a layer, and how far its pad reaches there.
#include <cstdint>

#include "geometry/PointInShape.h"
#include "geometry/ShapeBoxes.h"
#include "geometry/ShapeLocator.h"
#include "geometry/ShapeTable.h"
#include "model/ViaRec.h"

constexpr int32_t kNoShape = -1;

// Contact of the via on one of its end layers: 0 on a dielectric (or unknown) layer, and on a
// layer where the via's centre stands in copper of another net while the via has a net; 1
// otherwise. shapeOut receives the first shape of the layer, in table order, that holds the
// centre, or kNoShape. With a locator the layer's shapes are found through it; the answer is
// the same.
int ViaContact(int32_t layer, const ViaRec& via, int32_t* shapeOut,
               ShapeLocator* locator = nullptr);

// The first shape of layer, in table order, that holds (x, y) and for which accept(i) is
// true; kNoShape when none does. accept sees only shapes whose box holds the point.
template <class Accept>
int32_t FirstShapeHolding(int32_t layer, double x, double y, ShapeLocator* locator,
                          Accept&& accept);

// Radius of the via's pad on a middle layer: from the padstack entry of that layer (by name,
// ignoring case), 0 when the entry has no regular pad; 0.0001 when no entry names the layer.
double ViaPadRadius(const ViaRec& via, int32_t layer);

template <class Accept>
int32_t FirstShapeHolding(int32_t layer, double x, double y, ShapeLocator* locator,
                          Accept&& accept) {
    int32_t found = kNoShape;
    auto visit = [&](int32_t i) {
        const BoundingBox b = ShapeBox(i);
        if (x < b.minX || x > b.maxX || y < b.minY || y > b.maxY) return false;
        if (!accept(i)) return false;
        found = i;
        return true;
    };
    if (locator) {
        locator->Visit(layer, x, y, visit);
        return found;
    }
    const ShapeRun run = FindLayerShapeRun(layer);
    for (int32_t i = run.first; i < run.end; ++i)
        if (visit(i)) break;
    return found;
}
