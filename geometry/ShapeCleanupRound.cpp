#include "geometry/ShapeCleanupRound.h"

#include "geometry/CleanPolygon.h"
#include "geometry/FinishShapes.h"
#include "geometry/SeparateTouchingEdges.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"

void RunShapeCleanupRound() {
    const int32_t count = g_model.ShapeCount();
    for (int32_t i = 0; i < count; ++i) CleanPolygon(i);
    if (g_model.ShapeCount() == 0) return;
    FinishShapes();
    SeparateTouchingEdges();
    SortShapes();
}
