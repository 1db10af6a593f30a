#include "ndd/ViaPass.h"

#include <new>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/Progress.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"
#include "ndd/PadStackSizes.h"
#include "ndd/TokenList.h"

namespace {

constexpr uint32_t kNoDrill = UINT32_MAX;

struct ViaFields {
    std::string padStack;
    double x = 0.0, y = 0.0, rotation = 0.0;
    int start = -1, end = -1;
    std::string net;
};

// "%via" padstack x y rotation [start-layer end-layer] net: without a seventh token, or with
// one that begins with '%', the via runs through all conductor layers.
ViaFields CutViaLine(const std::string& line) {
    auto t = NddTokenList(line, 8);
    ViaFields via;
    via.padStack = UnderscoreBlanksAndCommas(StripQuotes(t[1]));
    via.x = ToDouble(StripQuotes(t[2]));
    via.y = ToDouble(StripQuotes(t[3]));
    via.rotation = ToDouble(StripQuotes(t[4]));
    if (t[6].empty() || t[6][0] == '%') {
        via.net = StripQuotes(t[5]);
        via.start = FirstConductorLayer();
        via.end = LastConductorLayer();
    } else {
        via.start = LayerIndexByName(StripQuotes(t[5]));
        via.end = LayerIndexByName(StripQuotes(t[6]));
        via.net = StripQuotes(t[7]);
    }
    return via;
}

bool OutsideSpatialRange(double x, double y) {
    return g_options.g_bSpatialLimit && (x < g_model.g_dbWorkMinX || x > g_model.g_dbWorkMaxX ||
                                         y < g_model.g_dbWorkMinY || y > g_model.g_dbWorkMaxY);
}

// One via line. currentRadius is carried from via to via: a padstack that the size pass
// does not know takes the radius of the via before it.
void ReadViaLine(const std::string& line, double& currentRadius) {
    ViaFields f = CutViaLine(line);
    if (f.net.empty() ? !g_options.g_nIncludeNoNetEtches : !IsNetSelected(f.net)) return;
    if (f.end <= f.start || f.start == -1 || f.end == -1) return;
    double x = f.x * g_model.g_dbLengthScale;
    double y = f.y * g_model.g_dbLengthScale;

    PadStackRec* stack = g_model.g_padStacks.Find(f.padStack);
    if (PadStackSizeRec* const* size = g_model.g_mapPadStackSizes.Find(f.padStack))
        currentRadius = (*size)->dbMinRadius;
    if (!stack) return;
    if (stack->drill < 0.0 || stack->drill > currentRadius) stack->drill = currentRadius;
    uint32_t drillIndex = AddDrillRadius(currentRadius);
    if (OutsideSpatialRange(x, y)) return;

    ViaRec via;
    via.x = x;
    via.y = y;
    via.startLayer = static_cast<uint16_t>(f.start);
    via.endLayer = static_cast<uint16_t>(f.end);
    via.net = f.net.empty() ? kNoNet : NetIndexByName(f.net);
    via.noContact = 0;
    via.drillIndex = drillIndex;
    via.padStack = stack;
    via.rotation = f.rotation;
    g_model.g_aVias.push_back(via);
}

}  // namespace

uint32_t AddDrillRadius(double radius, size_t* outPosition) {
    std::vector<DrillRadius>& table = g_model.g_aDrillRadii;
    size_t lo = 0, hi = table.size();
    while (lo < hi) {
        size_t mid = lo + (hi - lo) / 2;
        if (table[mid].radius < radius)
            lo = mid + 1;
        else
            hi = mid;
    }
    if (outPosition) *outPosition = lo;
    if (lo < table.size() && table[lo].radius == radius) return table[lo].index;
    // kNoDrill means none.
    try {
        if (table.size() >= kNoDrill) throw std::bad_alloc();
        uint32_t index = static_cast<uint32_t>(table.size());
        table.insert(table.begin() + static_cast<std::ptrdiff_t>(lo), DrillRadius{radius, index});
        return index;
    } catch (const std::bad_alloc&) {
        ReportMessage("Insufficient Memory");
        return kNoDrill;
    }
}

int ParseVia(const std::string& path) {
    ParsePadStackSizes(path);
    g_model.g_aVias.clear();
    g_model.g_aDrillRadii.clear();
    auto stream = OpenNdd(path);
    if (!stream) return 0;
    StartPassProgress();
    double currentRadius = 0.0;
    std::string line;
    try {
        while (stream->ReadLine(line, base::kNddLineBuffer)) {
            if (!StartsWith(line, "%via") || Contains(line, "%viarule")) continue;
            CountPassLine();
            ReadViaLine(line, currentRadius);
        }
    } catch (const std::bad_alloc&) {
        ReportMessage("Insufficient Memory!");
        return 0;
    }
    return 1;
}
