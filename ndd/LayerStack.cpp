#include "ndd/LayerStack.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/TokenList.h"

namespace {

// Material kinds.
constexpr int32_t kDielectricMaterial = 1;
constexpr int32_t kConductorMaterial = 2;

// Kinds of layer line.
enum class LayerLine { None, Dielectric, Signal, Plane };

bool IsCommentOrEmpty(const std::string& line) {
    return line.empty() || line[0] == '#' || line[0] == '\n';
}

// A conductivity is stored as an integer. A value the integer cannot hold (an infinite
// conductivity from a resistivity of 0, say) becomes the lowest integer, as the processor's
// own truncation gives it, instead of undefined behaviour.
int32_t TruncateToInt(double value) {
    if (std::isnan(value) || value >= 2147483648.0 || value <= -2147483649.0)
        return std::numeric_limits<int32_t>::min();
    return static_cast<int32_t>(value);
}

void ReadMaterials(base::LineStream& stream) {
    std::string line;
    bool seenMaterial = false;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (IsCommentOrEmpty(line)) continue;
        if (seenMaterial && (StartsWith(line, "%signal") || StartsWith(line, "%power"))) return;
        if (Contains(line, "%dielectric_material")) {
            auto tokens = NddTokenList(line, 3);
            MaterialRec material;
            material.kind = kDielectricMaterial;
            material.name = StripQuotes(tokens[1]);
            material.permittivity = ToDouble(tokens[2]);
            g_model.g_lstMaterials.push_back(material);
            seenMaterial = true;
        } else if (Contains(line, "%conductor_material")) {
            auto tokens = NddTokenList(line, 4);
            MaterialRec material;
            material.kind = kConductorMaterial;
            material.name = StripQuotes(tokens[1]);
            double value = ToDouble(tokens[3]);
            material.conductivity = tokens[2] == "%resistivity" ? 1.0 / value : value;
            material.permittivity = 4.0;
            g_model.g_lstMaterials.push_back(material);
            seenMaterial = true;
        }
    }
}

LayerLine ClassifyLayerLine(const std::string& line) {
    if (StartsWith(line, "%dielectric") && !Contains(line, "%dielectric_material"))
        return LayerLine::Dielectric;
    if (StartsWith(line, "%signal")) return LayerLine::Signal;
    // A "%power" unit line ("mW", "uW") is no plane layer.
    if (StartsWith(line, "%power") && !Contains(line, "%powerport") && !Contains(line, "mW") &&
        !Contains(line, "uW"))
        return LayerLine::Plane;
    return LayerLine::None;
}

// First material of a kind other than `otherThan` whose name equals name without case.
const MaterialRec* FindMaterial(const std::string& name, int32_t otherThan) {
    for (const MaterialRec& material : g_model.g_lstMaterials)
        if (material.kind != otherThan && EqualsNoCase(material.name, name)) return &material;
    return nullptr;
}

void FillDielectric(LayerRec& layer, const std::string& name, const std::string& material) {
    g_model.g_mapLayerKind.Set(name, "D");
    if (Contains(ToUpper(material), "AIR")) layer.permittivity = 1.0;
    layer.kind = kLayerDielectric;
    layer.conductivity = 0;
    if (const MaterialRec* found = FindMaterial(material, kConductorMaterial))
        layer.permittivity = found->permittivity;
}

void FillConductor(LayerRec& layer, const std::string& name, LayerLine kind,
                   const std::string& material) {
    g_model.g_mapLayerKind.Set(name, kind == LayerLine::Signal ? "S" : "P");
    layer.permittivity = 4.0;
    // With signals allowed on planes, a plane layer is written as a signal layer.
    layer.kind =
        (g_options.g_bAllowSignalOnPlane || kind == LayerLine::Signal) ? kLayerSignal : kLayerPlane;
    if (const MaterialRec* found = FindMaterial(material, kDielectricMaterial))
        layer.conductivity = TruncateToInt(found->conductivity);
}

int ReportTooManyLayers() {
    ReportMessage("The layer stack of the NDD file has more than " + std::to_string(kMaxLayers) +
                  " layers.\nThe translation is stopped.");
    return 0;
}

int ReadLayers(base::LineStream& stream) {
    g_model.g_nLayerCount = 0;
    bool begun = false;
    int ordinal = 0;
    std::string line;
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (IsCommentOrEmpty(line)) continue;
        if (begun && StartsWith(line, "%board_outline")) break;
        LayerLine kind = ClassifyLayerLine(line);
        if (kind == LayerLine::None) continue;
        begun = true;
        auto tokens = NddTokenList(line, 6);
        // The table keeps 32 characters of a name; the maps and the look-ups use the same.
        std::string name = StripQuotes(tokens[1]).substr(0, kLayerNameBytes);
        // Conductor names are unique; dielectric names may repeat.
        if (LayerIndexByName(name) != -1) continue;
        if (g_model.g_nLayerCount >= kMaxLayers) return ReportTooManyLayers();
        if (kind != LayerLine::Dielectric) g_model.g_mapLayerId.Set(StripQuotes(tokens[2]), name);

        LayerRec& layer = g_model.g_aLayers[g_model.g_nLayerCount];
        layer = LayerRec{};
        layer.ordinal = static_cast<uint8_t>(ordinal);
        SetLayerName(layer, name);
        layer.thickness = ToDouble(StripQuotes(tokens[4])) * g_model.g_dbLengthScale;
        if (kind == LayerLine::Dielectric)
            FillDielectric(layer, name, StripQuotes(tokens[3]));
        else
            FillConductor(layer, name, kind, StripQuotes(tokens[5]));
        layer.hasShapes = 0;
        ++g_model.g_nLayerCount;
        ++ordinal;
    }
    return 1;
}

}  // namespace

int ParseLayer(const std::string& path) {
    g_model.g_lstMaterials.clear();
    if (!g_model.g_aLayers) g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    g_model.g_nLayerCount = 0;
    g_model.g_mapLayerId.Clear();
    g_model.g_mapLayerKind.Clear();
    auto stream = OpenNdd(path);
    if (!stream) return 1;
    ReadMaterials(*stream);
    stream->Rewind();
    return ReadLayers(*stream);
}
