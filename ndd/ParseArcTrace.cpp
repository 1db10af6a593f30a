#include <string>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/Progress.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/TraceReader.h"

namespace {

// "%arc_trace " layer width x1 y1 x2 y2 x3 y3 net. The arc is not approximated: it becomes
// two straight traces, (x1,y1) to (x2,y2) and (x3,y3) to (x2,y2), meeting at the arc's
// middle point. The spatial range does not apply to arcs.
bool ReadArcTraceLine(const std::string& line) {
    std::string f[10];
    CutTraceFields(line, f, 10);
    int32_t net = kNoNet;
    if (!TakeTraceNet(f[9], net)) return true;
    int32_t layer = LayerIndexByName(TraceLayerName(f[1]));
    const double scale = g_model.g_dbLengthScale;
    double width = ToDouble(f[2]) * scale;
    double x[3], y[3];
    for (int i = 0; i < 3; ++i) {
        x[i] = ToDouble(f[3 + 2 * i]) * scale;
        y[i] = ToDouble(f[4 + 2 * i]) * scale;
    }
    if (!GrowTraceArrays() || !AddTraceRecord(x[0], y[0], x[1], y[1], width, layer, net))
        return false;
    return GrowTraceArrays() && AddTraceRecord(x[2], y[2], x[1], y[1], width, layer, net);
}

}  // namespace

int ParseArcTrace(const std::string& inputFile, int /*mode*/) {
    std::unique_ptr<base::LineStream> stream = OpenNdd(inputFile);
    if (!stream) return 0;
    StartPassProgress();
    std::string line;
    while (stream->ReadLine(line, base::kNddLineBuffer)) {
        if (!StartsWith(line, "%arc_trace ")) continue;
        CountPassLine();
        if (!ReadArcTraceLine(line)) return 0;
    }
    return 1;
}
