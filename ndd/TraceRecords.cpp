#include <algorithm>
#include <new>

#include "base/HugePages.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"
#include "ndd/TraceReader.h"

namespace {

constexpr size_t kTraceBlock = 2048;

// The table grows in whole blocks of 2048 records, but by half its size at least, so that a
// board of millions of segments does not copy its table thousands of times.
size_t NextTraceCapacity(size_t count) {
    size_t wanted = count + count / 2;
    if (wanted < count + kTraceBlock) wanted = count + kTraceBlock;
    return (wanted + kTraceBlock - 1) / kTraceBlock * kTraceBlock;
}

}  // namespace

int GrowTraceArrays() {
    std::vector<TraceRec>& traces = g_model.g_aTraces;
    if (traces.size() < traces.capacity() &&
        g_model.g_aTraceNets.size() < g_model.g_aTraceNets.capacity() &&
        g_model.g_aTraceFlags.size() < g_model.g_aTraceFlags.capacity())
        return 1;
    size_t capacity = NextTraceCapacity(traces.size());
    try {
        base::ReserveLarge(traces, capacity);
        g_model.g_aTraceNets.reserve(capacity);
        g_model.g_aTraceFlags.reserve(capacity);
    } catch (const std::bad_alloc&) {
        ReportMessage("Insufficient Memory");
        return 0;
    }
    return 1;
}

int AddTraceRecord(double x1, double y1, double x2, double y2, double width, int32_t layer,
                   int32_t net) {
    TraceRec trace;
    trace.startNode = AddNode(nullptr, x1, y1, layer, net, 1, nullptr, 0.0);
    if (trace.startNode == -1) return 0;
    trace.endNode = AddNode(nullptr, x2, y2, layer, net, 1, nullptr, 0.0);
    if (trace.endNode == -1) return 0;
    trace.width = width;
    trace.layer = layer;
    trace.color = NetColorOf(net);
    g_model.g_aTraces.push_back(trace);
    g_model.g_aTraceNets.push_back(net);
    g_model.g_aTraceFlags.push_back(0);
    return 1;
}

void CutTraceFields(std::string_view line, std::string* fields, int count) {
    std::string_view rest = line;
    for (int i = 0; i < count; ++i) {
        int position = kNoPosition;
        fields[i] = NddGetToken(rest, position);
        // A lone ";" leaves the position negative: the rest stays and reads as empty again.
        if (position >= 0) rest = rest.substr(std::min(rest.size(), static_cast<size_t>(position)));
    }
}

std::string TraceLayerName(const std::string& token) {
    return token.size() >= 2 ? token.substr(1, token.size() - 2) : std::string();
}

bool TakeTraceNet(std::string token, int32_t& net) {
    NddStripQuotes(token);
    net = NetIndexByName(token);
    if (token.empty()) return g_options.g_nIncludeNoNetEtches != 0;
    return IsNetSelected(token);
}
