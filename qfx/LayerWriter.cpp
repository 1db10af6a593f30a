#include "qfx/LayerWriter.h"

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/OutputScale.h"

namespace {

const char* const kLayerColors[6] = {"blue", "green", "red", "magenta", "yellow", "darkgreen"};

// Prints one layer line; returns how many planes it counts for.
int WriteLayerLine(FILE* out, int i) {
    LayerRec& layer = g_model.g_aLayers[i];
    layer.thickness *= kOutputScale;
    const std::string name = LayerName(layer);
    const char* affix = Affix().c_str();
    const double conductivity =
        static_cast<double>(layer.conductivity) * g_model.g_dbConductivityScale;
    const char* color = kLayerColors[i % 6];
    if (layer.kind == kLayerSignal) {
        std::fprintf(out, "Signal$%s%s Thickness = %emm Conductivity = %le Color = %s\n", affix,
                     name.c_str(), layer.thickness, conductivity, color);
        return g_options.g_bAllowPatches && layer.hasShapes ? 1 : 0;
    }
    if (layer.kind == kLayerPlane) {
        if (layer.hasShapes)
            std::fprintf(
                out,
                "Plane$%s%s Thickness = %emm Conductivity = %le Shape = Shape$%s%s Color = "
                "%s\n",
                affix, name.c_str(), layer.thickness, conductivity, affix, name.c_str(), color);
        else
            std::fprintf(out,
                         "Plane$%s%s Thickness = %emm Conductivity = %le Shape = PseudoNullShape "
                         "Color = %s\n",
                         affix, name.c_str(), layer.thickness, conductivity, color);
        return 1;
    }
    const bool atEnd = i == 0 || i == g_model.g_nLayerCount - 1;
    if (atEnd && layer.thickness == 0.0) return 0;
    std::fprintf(out, "Medium$%s%s Thickness = %emm Permittivity = %e\n", affix, name.c_str(),
                 layer.thickness, layer.permittivity);
    return 0;
}

void WritePseudoLayers(FILE* out, int planes) {
    const char* affix = Affix().c_str();
    int n = g_model.g_nLayerCount;
    auto medium = [&] {
        std::fprintf(out, "MediumPseudo%s%d Thickness = 0.01mm Permittivity = 4.0\n", affix, n++);
    };
    auto plane = [&] {
        std::fprintf(out,
                     "PlanePseudo%s%d Thickness = 0.01mm Conductivity = 5.8e7 Shape = "
                     "PseudoNullShape Color = yellow\n",
                     affix, n++);
    };
    const LayerRec* last = n > 0 ? &g_model.g_aLayers[n - 1] : nullptr;
    const bool lastIsDielectric = last && last->kind == kLayerDielectric;
    if (planes == 0) {
        if (!lastIsDielectric || last->thickness == 0.0) medium();
        plane();
        medium();
        plane();
    } else if (planes == 1) {
        if (!lastIsDielectric) medium();
        plane();
    }
}

}  // namespace

void WriteLayers(FILE* out) {
    int planes = 0;
    for (int i = 0; i < g_model.g_nLayerCount; ++i) planes += WriteLayerLine(out, i);
    if (g_options.g_bAddPseudoPlane) WritePseudoLayers(out, planes);
    if (!g_options.g_bAllowPatches) return;
    const char* affix = Affix().c_str();
    for (int i = 0; i < g_model.g_nLayerCount; ++i) {
        const LayerRec& layer = g_model.g_aLayers[i];
        if (layer.kind != kLayerSignal) continue;
        const std::string name = LayerName(layer);
        std::fprintf(out, "Patch$%s%s\n+ Shape = Shape$%s%s Layer = Signal$%s%s\n", affix,
                     name.c_str(), affix, name.c_str(), affix, name.c_str());
    }
}
