#include "model/NodePad.h"

#include <cmath>

#include "model/LayoutModel.h"

namespace {
const NodePadEntry kNoPad;
}

const NodePadEntry& NodePad::Entry() const {
    const std::vector<NodePadEntry>& table = g_model.g_aNodePads;
    return index_ < table.size() ? table[index_] : kNoPad;
}

void NodePad::Set(PadStackRec* padStack, double rotation) {
    // A rotation that is no number is kept as given, as a field would keep it.
    if (!padStack && rotation == 0.0 && !std::signbit(rotation)) {
        index_ = 0;
        return;
    }
    std::vector<NodePadEntry>& table = g_model.g_aNodePads;
    if (table.empty()) table.emplace_back();
    table.push_back(NodePadEntry{padStack, rotation});
    index_ = static_cast<uint32_t>(table.size() - 1);
}
