#include "qfx/PadStackSection.h"

#include <cmath>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "qfx/Naming.h"

namespace {

int LayerCount() {
    return g_model.g_aLayers ? g_model.g_nLayerCount : 0;
}

const LayerRec& Layer(int i) {
    return g_model.g_aLayers[i];
}

const char* ClassWord(const LayerRec& layer) {
    if (layer.kind == kLayerSignal) return "Signal$";
    if (layer.kind == kLayerPlane) return "Plane$";
    return "Medium$";
}

void WriteHead(FILE* out, const std::string& name, const PadStackRec& stack) {
    double d = stack.drill;
    double clearance = g_options.g_dbDrillClearance;
    if (d > 1e-6 && d < 999999.0 && clearance > 0.0)
        std::fprintf(out, ".PadStackDef %s %emm %emm\n\n", name.c_str(), d + clearance, d);
    else if (d > 1e-6 && d < 999999.0)
        std::fprintf(out, ".PadStackDef %s %emm\n\n", name.c_str(), d);
    else
        std::fprintf(out, ".PadStackDef %s\n\n", name.c_str());
}

enum class PadShape { None, Box, Square, Circle, RoundedX, RoundedY, Polygon };

PadShape ShapeOf(const PadDefRec& pad) {
    const std::string& s = pad.shapeName;
    if (EqualsNoCase(s, "RECTANGLE") || EqualsNoCase(s, "RECT")) return PadShape::Box;
    if (EqualsNoCase(s, "SQUARE")) return PadShape::Square;
    if (EqualsNoCase(s, "CIRCLE") || EqualsNoCase(s, "CIRC")) return PadShape::Circle;
    if (EqualsNoCase(s, "OBLONG_X") || EqualsNoCase(s, "RoundedRect_X") ||
        EqualsNoCase(s, "OVAL_X"))
        return PadShape::RoundedX;
    if (EqualsNoCase(s, "OBLONG_Y") || EqualsNoCase(s, "RoundedRect_Y") ||
        EqualsNoCase(s, "OVAL_Y"))
        return PadShape::RoundedY;
    if ((EqualsNoCase(s, "POLYGON") || EqualsNoCase(s, "POLY")) && pad.points.size() > 2)
        return PadShape::Polygon;
    return PadShape::None;
}

// The size part of a pad statement, after "Regular" or "Anti"; false for no statement.
bool WriteSize(FILE* out, const char* role, const PadDefRec& pad) {
    switch (ShapeOf(pad)) {
        case PadShape::Box:
            std::fprintf(out, "%s Box %emm %emm\n", role, pad.width, pad.height);
            return true;
        case PadShape::Square:
            std::fprintf(out, "%s Square %emm\n", role, pad.width);
            return true;
        case PadShape::Circle:
            // The statement takes the radius; the record holds the diameter.
            std::fprintf(out, "%s Circle %emm\n", role, pad.width * 0.5);
            return true;
        case PadShape::RoundedX:
            std::fprintf(out, "%s RoundedRect_X %emm %emm\n", role, pad.width, pad.height);
            return true;
        case PadShape::RoundedY:
            std::fprintf(out, "%s RoundedRect_Y %emm %emm\n", role, pad.width, pad.height);
            return true;
        default:
            return false;
    }
}

bool HasOffset(const PadDefRec& pad) {
    return std::fabs(pad.offsetX) > 1e-5 || std::fabs(pad.offsetY) > 1e-5;
}

// Polygon points on continuation lines; xSign -1.0 mirrors them.
void WritePolygon(FILE* out, const PadDefRec& pad, bool offset, double xSign) {
    std::fprintf(out, "Regular Polygon\n+ ");
    for (const auto& p : pad.points) {
        if (offset)
            std::fprintf(out, "                   %emm %emm\n+ ", p.first, p.second);
        else
            std::fprintf(out, "                  %emm %emm\n+ ", p.first * xSign, p.second);
    }
    if (offset)
        std::fprintf(out, "                   offSetX = %emm offSetY = %emm", pad.offsetX,
                     pad.offsetY);
    std::fprintf(out, "\n");
}

void WriteRegular(FILE* out, const PadDefRec& pad, bool withOffsets, double xSign) {
    bool offset = withOffsets && HasOffset(pad);
    if (ShapeOf(pad) == PadShape::Polygon) {
        WritePolygon(out, pad, offset, xSign);
        return;
    }
    if (WriteSize(out, "Regular", pad) && offset)
        std::fprintf(out, "+ offSetX = %emm offSetY = %emm\n", pad.offsetX, pad.offsetY);
}

void WriteAnti(FILE* out, const PadDefRec& pad) {
    WriteSize(out, "Anti", pad);
}

// First layer of each name, compared without case.
std::unordered_map<std::string, int> LayersByName() {
    std::unordered_map<std::string, int> byName;
    for (int i = 0; i < LayerCount(); ++i) byName.emplace(ToLower(LayerName(Layer(i))), i);
    return byName;
}

// An entry's layer name becomes the layer's object name, in the entry itself.
void RenameEntryLayer(PadEntry& entry, const std::unordered_map<std::string, int>& byName) {
    auto found = byName.find(ToLower(entry.layerName));
    if (found == byName.end()) return;
    const LayerRec& layer = Layer(found->second);
    entry.layerName = ClassWord(layer) + Affix() + LayerName(layer);
}

void WritePadStack(FILE* out, const std::string& key, PadStackRec& stack,
                   const std::unordered_map<std::string, int>& byName) {
    WriteHead(out, Affix() + key, stack);
    if (g_options.g_nTranslatePads) {
        stack.defaultLayerFlag = 0;
        for (PadEntry& entry : stack.entries) {
            RenameEntryLayer(entry, byName);
            if (entry.layerName.empty() || StartsWith(entry.layerName, "Medium")) continue;
            std::fprintf(out, ".PadDef %s\n", entry.layerName.c_str());
            if (entry.regular) WriteRegular(out, *entry.regular, true, 1.0);
            if (entry.anti) WriteAnti(out, *entry.anti);
            std::fprintf(out, ".EndPadDef\n\n");
        }
    }
    std::fprintf(out, ".EndPadStackDef\n\n");
}

// Dielectric layers above the first and below the last conductor.
void CountOuterDielectrics(int& lead, int& trail) {
    int count = LayerCount();
    lead = 0;
    while (lead < count && Layer(lead).kind == kLayerDielectric) ++lead;
    trail = 0;
    while (trail < count && Layer(count - 1 - trail).kind == kLayerDielectric) ++trail;
}

// Layers by the name that the plain definitions gave them (class word and layer name, without
// the affix), compared without case, in stack order.
using MirrorIndex = std::unordered_map<std::string, std::vector<int>>;

MirrorIndex LayersByClassName() {
    MirrorIndex index;
    for (int i = 0; i < LayerCount(); ++i)
        index[ToLower(ClassWord(Layer(i)) + LayerName(Layer(i)))].push_back(i);
    return index;
}

// The layer that an entry of the plain definition lands on when the part is mirrored, and
// the exchange of regular and anti pads between signal and plane layers that goes with it.
std::string MirrorEntry(PadEntry& entry, int from, const MirrorIndex& index, int shift) {
    auto found = index.find(ToLower(entry.layerName));
    if (found == index.end()) return std::string();
    int count = LayerCount();
    for (int i : found->second) {
        int m = count - i - shift - 1;
        if (m < 0 || m >= count) continue;
        const LayerRec& target = Layer(m);
        if (target.kind == kLayerSignal) {
            if (from == kLayerPlane && entry.anti) {
                entry.regular = entry.anti;
                entry.anti = nullptr;
            }
            return "Signal$" + Affix() + LayerName(target);
        }
        if (target.kind == kLayerPlane) {
            if (from == kLayerSignal && entry.regular) {
                entry.anti = entry.regular;
                entry.regular = nullptr;
            }
            return "Plane$" + Affix() + LayerName(target);
        }
    }
    return std::string();
}

void WriteMirroredPadStack(FILE* out, const std::string& key, PadStackRec& stack,
                           const MirrorIndex& index, int shift) {
    WriteHead(out, Affix() + key + "_Mirrd", stack);
    if (g_options.g_nTranslatePads) {
        for (auto it = stack.entries.rbegin(); it != stack.entries.rend(); ++it) {
            PadEntry& entry = *it;
            int from = StartsWith(entry.layerName, "Signal")  ? kLayerSignal
                       : StartsWith(entry.layerName, "Plane") ? kLayerPlane
                                                              : 0;
            if (from == 0) continue;
            std::string target = MirrorEntry(entry, from, index, shift);
            if (entry.layerName.empty() || target.empty()) continue;
            std::fprintf(out, ".PadDef %s\n", target.c_str());
            // Offsets are not mirrored; only polygon points are.
            if (entry.regular) WriteRegular(out, *entry.regular, false, -1.0);
            if (entry.anti) WriteAnti(out, *entry.anti);
            std::fprintf(out, ".EndPadDef\n\n");
        }
    }
    std::fprintf(out, ".EndPadStackDef\n\n");
}

}  // namespace

void WritePadStackLibrary(FILE* out) {
    if (!out) return;
    std::fprintf(out, "\n*PadStack Library Section\n\n");
    auto byName = LayersByName();
    g_model.g_padStacks.ForEach([&](const std::string& key, PadStackRec& stack) {
        WritePadStack(out, key, stack, byName);
    });
}

void WriteMirroredPadStacks(FILE* out) {
    if (!out) return;
    int lead = 0, trail = 0;
    CountOuterDielectrics(lead, trail);
    MirrorIndex index = LayersByClassName();
    g_model.g_padStacks.ForEach([&](const std::string& key, PadStackRec& stack) {
        if (!stack.entries.empty()) WriteMirroredPadStack(out, key, stack, index, trail - lead);
    });
}
