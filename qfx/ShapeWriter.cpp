#include "qfx/ShapeWriter.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/NumberText.h"
#include "qfx/OutputScale.h"

namespace {

// A void (any polarity but copper) at or below the area limit is dropped unless the given
// undiscardable flag keeps it; a discarded shape always is.
bool Droppable(const ShapeRec& s, int32_t undiscardable, double limit) {
    if (s.discarded) return true;
    return s.polarity != kPolarityCopper && s.area <= limit && !undiscardable;
}

std::string ColorField(int32_t net) {
    if (!g_options.g_bColorShapesByNet || net == kNoNet || net == kNoNetAlt) return std::string();
    const char* name = NetColorName(NetColorOf(net));
    return name ? std::string("Color = ") + name : std::string();
}

// The Box line names its net by the plain name, and leaves the suffix out only for kNoNet.
std::string BoxNetSuffix(int32_t net) {
    if (!g_options.g_bAppendNetName || net == kNoNet) return std::string();
    return "::" + PlainNetName(net);
}

struct Box {
    double x, y, width, height;
};

// An axis-aligned rectangle of five points, in either winding, compared exactly.
bool AsBox(const ShapePoint* p, Box& box) {
    if (p[0].x != p[4].x || p[0].y != p[4].y) return false;
    if (p[0].x == p[3].x && p[0].y == p[1].y && p[1].x == p[2].x && p[2].y == p[3].y) {
        box = {std::min(p[0].x, p[1].x), std::min(p[0].y, p[3].y), std::abs(p[1].x - p[0].x),
               std::abs(p[3].y - p[0].y)};
        return true;
    }
    if (p[0].x == p[1].x && p[0].y == p[3].y && p[2].x == p[3].x && p[1].y == p[2].y) {
        box = {std::min(p[0].x, p[3].x), std::min(p[0].y, p[1].y), std::abs(p[3].x - p[0].x),
               std::abs(p[1].y - p[0].y)};
        return true;
    }
    return false;
}

// Two points a line: "  %emm %emm %emm %emm" first, "+   %emm %emm %emm %emm" after.
void WritePolygonPoints(FILE* out, const ShapePoint* p, int count) {
    std::string line;
    for (int k = 0; k < count; k += 2) {
        line.assign(k == 0 ? "  " : "+   ");
        for (int j = k; j < k + 2 && j < count; ++j) {
            if (j > k) line += ' ';
            AppendExp(line, p[j].x * kOutputScale, 6);
            line += "mm ";
            AppendExp(line, p[j].y * kOutputScale, 6);
            line += "mm";
        }
        line += '\n';
        PutText(out, line);
    }
}

void WriteElement(FILE* out, int index) {
    const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(index)];
    const ShapePoint* p = g_model.g_aShapePoints.data() + s.firstPoint;
    const char* affix = Affix().c_str();
    char sign = s.polarity == kPolarityCopper ? '+' : '-';
    std::string color = ColorField(s.net);
    if (s.geometry == kGeometryCircle) {
        if (s.pointCount < 2) return;
        std::fprintf(out, "Circle%s%-d%s%c %s %emm %emm %emm\n", affix, index,
                     NetSuffix(s.net).c_str(), sign, color.c_str(), p[0].x * kOutputScale,
                     p[0].y * kOutputScale, p[1].x * kOutputScale);
        return;
    }
    if (s.pointCount < 3) return;
    Box box;
    if (s.pointCount == 5 && AsBox(p, box)) {
        std::fprintf(out, "Box%s%-d%s%c %s %emm %emm %emm %emm\n", affix, index,
                     BoxNetSuffix(s.net).c_str(), sign, color.c_str(), box.x * kOutputScale,
                     box.y * kOutputScale, box.width * kOutputScale, box.height * kOutputScale);
        return;
    }
    std::fprintf(out, "Polygon%s%-d%s%c %s ", affix, index, NetSuffix(s.net).c_str(), sign,
                 color.c_str());
    WritePolygonPoints(out, p, s.pointCount);
}

bool ValidLayer(int32_t layer) {
    return layer >= 0 && layer < g_model.g_nLayerCount;
}

void WriteNullShapeIfReferred(FILE* out) {
    int planes = 0;
    for (int i = 0; i < g_model.g_nLayerCount; ++i) {
        const LayerRec& layer = g_model.g_aLayers[i];
        if (layer.kind != kLayerPlane) continue;
        ++planes;
        if (layer.hasShapes == 0) {
            std::fprintf(out, ".Shape PseudoNullShape Color = green\n.EndShape\n");
            return;
        }
    }
    if (g_options.g_bAddPseudoPlane && planes < 2)
        std::fprintf(out, ".Shape PseudoNullShape Color = green\n.EndShape\n");
}

// Calls section(layer, first, last) for each run of shapes [first, last] of one layer that
// gets a ".Shape" section, after marking the layer as holding shapes.
template <class Section>
void ForEachShapeSection(Section&& section) {
    const double limit = g_options.g_dbVoidAreaLimit / kOutputScale / kOutputScale;
    const auto& shapes = g_model.g_aShapes;
    const int count = static_cast<int>(shapes.size());
    int i = 0;
    while (i < count) {
        const ShapeRec& first = shapes[static_cast<size_t>(i)];
        // Shapes on a layer the stack does not know have no section to go to.
        if (!ValidLayer(first.layer) || Droppable(first, first.undiscardable, limit)) {
            ++i;
            continue;
        }
        LayerRec& layer = g_model.g_aLayers[first.layer];
        layer.hasShapes = 1;
        int end = i;
        while (end + 1 < count && shapes[static_cast<size_t>(end + 1)].layer == first.layer) ++end;
        section(layer, i, end, first.undiscardable, limit);
        i = end + 1;
    }
}

}  // namespace

void WriteShapes(FILE* out) {
    ForEachShapeSection(
        [out](const LayerRec& layer, int first, int last, int32_t undiscardable, double limit) {
            std::fprintf(out, ".Shape Shape$%s%s Color = green\n", Affix().c_str(),
                         LayerName(layer).c_str());
            // The shape that opened the section decides for the whole run whether small
            // voids stay.
            for (int k = last; k >= first; --k)
                if (!Droppable(g_model.g_aShapes[static_cast<size_t>(k)], undiscardable, limit))
                    WriteElement(out, k);
            std::fprintf(out, ".EndShape\n");
        });
    WriteNullShapeIfReferred(out);
}

void MarkShapeLayers() {
    ForEachShapeSection([](const LayerRec&, int, int, int32_t, double) {});
}
