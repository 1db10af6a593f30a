#include "model/NodeLabel.h"

#include "model/LayoutModel.h"

namespace {
const std::string kNoLabel;
}

const std::string& NodeLabel::str() const {
    const std::vector<std::string>& table = g_model.g_aNodeLabels;
    return index_ < table.size() ? table[index_] : kNoLabel;
}

NodeLabel& NodeLabel::operator=(const std::string& name) {
    if (name.empty()) {
        index_ = 0;
        return *this;
    }
    std::vector<std::string>& table = g_model.g_aNodeLabels;
    if (table.empty()) table.emplace_back();
    if (index_ != 0 && index_ < table.size() && table[index_] == name) return *this;
    table.push_back(name);
    index_ = static_cast<uint32_t>(table.size() - 1);
    return *this;
}
