#include <string>

#include "model/LayerLookup.h"
#include "model/LayoutModel.h"
#include "model/Progress.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/TraceReader.h"

namespace {

bool IsTraceLine(const std::string& line) {
    return line[0] != '#' && line[0] != '\n' && !Contains(line, "# Vias section.") &&
           !Contains(line, "%tracerule") && StartsWith(line, "%trace");
}

// The range test compares the file's own numbers with the range in mm: in any unit but mm
// it drops most traces. That is how the range has always worked for "%trace", unlike "%via".
bool RawPointInRange(double x, double y) {
    return x >= g_model.g_dbWorkMinX && x <= g_model.g_dbWorkMaxX && y >= g_model.g_dbWorkMinY &&
           y <= g_model.g_dbWorkMaxY;
}

enum class LineResult { Kept, Dropped, Failed };

// "%trace" layer width x1 y1 x2 y2 net
LineResult ReadTraceLine(const std::string& line) {
    std::string f[8];
    CutTraceFields(line, f, 8);
    int32_t net = kNoNet;
    if (!TakeTraceNet(f[7], net)) return LineResult::Dropped;
    int32_t layer = LayerIndexByName(TraceLayerName(f[1]));
    double x1 = ToDouble(f[3]), y1 = ToDouble(f[4]), x2 = ToDouble(f[5]), y2 = ToDouble(f[6]);
    if (g_options.g_bSpatialLimit && !RawPointInRange(x1, y1) && !RawPointInRange(x2, y2))
        return LineResult::Dropped;
    if (!GrowTraceArrays()) return LineResult::Failed;
    const double scale = g_model.g_dbLengthScale;
    if (!AddTraceRecord(x1 * scale, y1 * scale, x2 * scale, y2 * scale, ToDouble(f[2]) * scale,
                        layer, net))
        return LineResult::Failed;
    return LineResult::Kept;
}

}  // namespace

int ParseTrace(const std::string& inputFile, int /*mode*/) {
    std::unique_ptr<base::LineStream> stream = OpenNdd(inputFile);
    if (!stream) return 0;
    StartPassProgress();
    bool seenTrace = false;
    std::string line;
    while (stream->ReadLine(line, base::kNddLineBuffer)) {
        if (line.empty()) continue;
        if (seenTrace && StartsWith(line, "%tracerule")) break;
        if (!IsTraceLine(line)) continue;
        seenTrace = true;
        CountPassLine();
        if (ReadTraceLine(line) == LineResult::Failed) return 0;
    }
    return 1;
}
