#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "geometry/TraceCleanup.h"
#include "geometry/TraceCleanupSupport.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"

namespace {

// Which traces may name a node: those that named it when the pass began, in table order, and
// those moved onto it since. Moving a going node's traces then costs the number of its
// traces, not a walk over the whole table, while the traces are still taken in table order.
class NodeTraceRefs {
  public:
    NodeTraceRefs(const std::vector<TraceRec>& traces, uint32_t nodeCount) {
        offsets_.assign(static_cast<size_t>(nodeCount) + 1, 0);
        ForEachRef(traces, [&](uint32_t id, int32_t) { ++offsets_[id + 1]; });
        for (size_t i = 1; i < offsets_.size(); ++i) offsets_[i] += offsets_[i - 1];
        traces_.resize(offsets_.back());
        std::vector<uint32_t> fill(offsets_.begin(), offsets_.end() - 1);
        ForEachRef(traces, [&](uint32_t id, int32_t t) { traces_[fill[id]++] = t; });
    }

    // Trace indices that may name node id, ascending, without repeats.
    std::vector<int32_t> Candidates(uint32_t id) const {
        std::vector<int32_t> list;
        if (id + 1 < offsets_.size())
            list.assign(traces_.begin() + offsets_[id], traces_.begin() + offsets_[id + 1]);
        auto moved = moved_.find(id);
        if (moved != moved_.end()) {
            list.insert(list.end(), moved->second.begin(), moved->second.end());
            std::sort(list.begin(), list.end());
            list.erase(std::unique(list.begin(), list.end()), list.end());
        }
        return list;
    }

    void AddMoved(uint32_t id, int32_t trace) { moved_[id].push_back(trace); }

  private:
    // Calls add(node, trace) once for each node a trace names, in table order.
    template <class F>
    void ForEachRef(const std::vector<TraceRec>& traces, F&& add) const {
        const uint32_t limit = static_cast<uint32_t>(offsets_.size() - 1);
        for (size_t t = 0; t < traces.size(); ++t) {
            const uint32_t start = static_cast<uint32_t>(traces[t].startNode);
            const uint32_t end = static_cast<uint32_t>(traces[t].endNode);
            if (start < limit) add(start, static_cast<int32_t>(t));
            if (end < limit && end != start) add(end, static_cast<int32_t>(t));
        }
    }

    std::vector<uint32_t> offsets_;
    std::vector<int32_t> traces_;
    std::unordered_map<uint32_t, std::vector<int32_t>> moved_;
};

bool IsHeld(const NodeRec& node) {
    return node.viaRefs != 0 || !node.label.empty();
}

// The measure of a trace's length. It mixes the coordinates on purpose and is compared with
// the squared limit itself: the pass has always decided this way, and boards depend on it.
double TinyTraceMeasure(const NodeRec& s, const NodeRec& e) {
    const double a = s.x - e.y;
    const double b = e.x - e.y;
    return std::sqrt(a * a + b * b);
}

// Hands the going node's traces to the staying node, in table order, until as many as the
// going node still counted have moved. left may run below 0 when one trace names the going
// node at both ends; the walk then goes on over all its traces.
void MoveTraces(uint32_t going, NodeRec& staying, int left, NodeTraceRefs& refs) {
    std::vector<TraceRec>& traces = g_model.g_aTraces;
    if (left == 0) return;
    for (int32_t t : refs.Candidates(going)) {
        if (left == 0) break;
        TraceRec& trace = traces[static_cast<size_t>(t)];
        if (IsDeletedTrace(trace)) continue;
        if (static_cast<uint32_t>(trace.startNode) == going) {
            trace.startNode = static_cast<int32_t>(staying.id);
            ++staying.traceRefs;
            --left;
            refs.AddMoved(staying.id, t);
        }
        if (static_cast<uint32_t>(trace.endNode) == going) {
            trace.endNode = static_cast<int32_t>(staying.id);
            ++staying.traceRefs;
            --left;
            refs.AddMoved(staying.id, t);
        }
    }
}

void ClearTinyTrace(TraceRec& trace, NodeTraceRefs& refs) {
    NodeRec* s = NodeById(trace.startNode);
    NodeRec* e = NodeById(trace.endNode);
    if (!s || !e) return;
    if (TinyTraceMeasure(*s, *e) > g_model.g_dbTinyTraceLimitSquared) return;
    if (trace.startNode == trace.endNode) {
        trace.width = kDeletedTraceWidth;
        LowerTraceRefs(*s, 2);
        return;
    }
    NodeRec* going = e;
    NodeRec* staying = s;
    if (IsHeld(*e)) {
        if (IsHeld(*s)) return;
        going = s;
        staying = e;
    }
    trace.width = kDeletedTraceWidth;
    const int left = going->traceRefs > 0 ? going->traceRefs - 1 : 0;
    LowerTraceRefs(*staying, 1);
    MoveTraces(going->id, *staying, left, refs);
    going->traceRefs = 0;
}

// Merging can leave a trace that now begins and ends on one node.
void DropLoops() {
    for (TraceRec& trace : g_model.g_aTraces) {
        if (trace.startNode != trace.endNode || !(trace.width > kDeletedTraceWidth)) continue;
        trace.width = kDeletedTraceWidth;
        if (NodeRec* node = NodeById(trace.startNode)) LowerTraceRefs(*node, 2);
    }
}

}  // namespace

void ClearTinyTraces() {
    if (!(g_model.g_dbTinyTraceLimitSquared > 0)) return;
    std::vector<TraceRec>& traces = g_model.g_aTraces;
    if (traces.empty() || g_model.g_aNodes.empty()) return;
    const std::vector<uint8_t>& flags = g_model.g_aTraceFlags;
    NodeTraceRefs refs(traces, g_model.g_nNodeCount);
    for (size_t t = 0; t < traces.size(); ++t) {
        if (t < flags.size() && flags[t] != 0) continue;
        if (traces[t].width < 0) continue;
        ClearTinyTrace(traces[t], refs);
    }
    DropLoops();
}
