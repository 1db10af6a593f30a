#include "geometry/SortShapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "geometry/ShapeArea.h"
#include "geometry/ShapeBoxes.h"
#include "model/LayoutModel.h"

namespace {

// An area that is no number sorts last, so the order stays a strict one whatever the input.
double SortArea(double area) {
    return std::isnan(area) ? std::numeric_limits<double>::infinity() : area;
}

bool ShapeSortsBefore(const ShapeRec& a, const ShapeRec& b) {
    if (a.layer != b.layer) return a.layer < b.layer;
    double aa = SortArea(a.area), ba = SortArea(b.area);
    if (aa != ba) return aa < ba;
    return a.polarity == kPolarityCopper && b.polarity != kPolarityCopper;
}

}  // namespace

void SortShapeTable() {
    std::stable_sort(g_model.g_aShapes.begin(), g_model.g_aShapes.end(), ShapeSortsBefore);
}

void SortShapes() {
    for (int32_t i = 0; i < g_model.ShapeCount(); ++i)
        g_model.g_aShapes[static_cast<size_t>(i)].area = ShapeArea(i);
    SortShapeTable();
    BuildShapeBoxes();
}
