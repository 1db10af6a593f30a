#include "deck/NameHash.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace qfxview {

uint64_t HashName(const std::string& name) {
    return std::hash<std::string_view>()(std::string_view(name));
}

uint64_t HashFolded(const std::string& name) {
    std::string folded(name);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return HashName(folded);
}

void HashedNames::Add(uint64_t hash, uint64_t line) {
    if (sealed_)
        late_.insert(hash);
    else
        entries_.push_back({hash, line});
}

bool HashedNames::Contains(uint64_t hash) {
    if (!sealed_)  // only before the section ends: a plain walk
        return std::any_of(entries_.begin(), entries_.end(),
                           [hash](const Entry& e) { return e.hash == hash; });
    auto it = std::lower_bound(entries_.begin(), entries_.end(), hash,
                               [](const Entry& e, uint64_t h) { return e.hash < h; });
    if (it != entries_.end() && it->hash == hash) return true;
    return late_.count(hash) != 0;
}

// Repeats are (line of the repeat, line of the first definition).
void HashedNames::SortAndReport(std::vector<std::pair<uint64_t, uint64_t>>& repeats) {
    std::sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
        return a.hash != b.hash ? a.hash < b.hash : a.line < b.line;
    });
    size_t kept = 0;
    for (size_t i = 0; i < entries_.size(); ++i) {
        if (kept > 0 && entries_[kept - 1].hash == entries_[i].hash) {
            repeats.emplace_back(entries_[i].line, entries_[kept - 1].line);
            continue;
        }
        entries_[kept++] = entries_[i];
    }
    entries_.resize(kept);
    entries_.shrink_to_fit();
    sealed_ = true;
}

}  // namespace qfxview

namespace qfxview {

bool HashSet::Contains(uint64_t hash) {
    if (!sorted_) {
        std::sort(hashes_.begin(), hashes_.end());
        hashes_.erase(std::unique(hashes_.begin(), hashes_.end()), hashes_.end());
        sorted_ = true;
    }
    return std::binary_search(hashes_.begin(), hashes_.end(), hash);
}

}  // namespace qfxview
