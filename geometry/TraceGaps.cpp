#include <cstdlib>
#include <string>

#include "geometry/PointInShape.h"
#include "geometry/SegmentRectangle.h"
#include "geometry/ShapeLocator.h"
#include "geometry/TraceCleanup.h"
#include "geometry/TraceCleanupSupport.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"

namespace {

bool HasNet(int32_t net) {
    return net != kNoNet && net != kNoNetAlt;
}

// True when the first shape of the node's layer that holds the node's position is copper.
// Copper of another net does not count when the node has a net; a void that holds the
// position ends the search, since the table has small areas first.
bool InOwnCopper(const NodeRec& node, ShapeLocator& locator) {
    bool inCopper = false;
    locator.Visit(node.layer, node.x, node.y, [&](int32_t i) {
        const ShapeRec& shape = g_model.g_aShapes[static_cast<size_t>(i)];
        const bool copper = shape.polarity == kPolarityCopper;
        if (copper && shape.net != node.net && HasNet(node.net)) return false;
        if (!PointInShape(i, node.x, node.y, true)) return false;
        inCopper = copper;
        return true;
    });
    return inCopper;
}

// 1 for a trace that needs a gap: neither end lies in its own copper. A deleted trace needs
// none: its width would turn the gap inside out over the whole board.
int32_t NeedsGap(const TraceRec& trace, ShapeLocator& locator) {
    if (IsDeletedTrace(trace)) return 0;
    for (int32_t id : {trace.startNode, trace.endNode}) {
        const NodeRec* node = NodeById(id);
        if (node && InOwnCopper(*node, locator)) return 0;
    }
    return 1;
}

void TraceShapeCounts() {
    TraceStep(true, "lGeometries = %d  lGeoPoints = %d ",
              static_cast<int>(g_model.g_aShapes.size()),
              static_cast<int>(g_model.g_aShapePoints.size()));
}

}  // namespace

void GenerateTraceGaps() {
    const std::string& percent = g_options.g_strTraceGapPercent;
    if (percent.empty() || std::atof(percent.c_str()) == 0.0) return;
    std::vector<TraceRec>& traces = g_model.g_aTraces;
    {
        ShapeLocator locator;  // the gaps are added after all ends are tested
        for (TraceRec& trace : traces) trace.gap = NeedsGap(trace, locator);
    }

    TraceShapeCounts();
    for (const TraceRec& trace : traces) {
        if (trace.gap != 1) continue;
        const NodeRec* start = NodeById(trace.startNode);
        const NodeRec* end = NodeById(trace.endNode);
        if (!start || !end) continue;
        const double width = (2 * std::atof(percent.c_str()) + 100) * trace.width / 100;
        AddSegmentRectangle(start->x, start->y, end->x, end->y, width, start->layer, start->net,
                            true);
    }
    TraceShapeCounts();
}
