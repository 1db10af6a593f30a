#pragma once
// Names kept as 64-bit hashes: a deck of a billion bytes names tens of millions of objects,
// and the checks only ask whether a name was seen. Two names of one deck sharing a hash is
// possible in principle (about one chance in ten thousand for a hundred million names); it
// can only hide a finding, never make one.
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace qfxview {

uint64_t HashName(const std::string& name);
// The hash of the name with ASCII letters in lower case.
uint64_t HashFolded(const std::string& name);

// A set of hashed names that grows while its section is read and answers look-ups after.
// Each name keeps the line that defined it, so that a second definition can be reported.
class HashedNames {
  public:
    struct Entry {
        uint64_t hash;
        uint64_t line;
    };
    void Add(uint64_t hash, uint64_t line);
    bool Contains(uint64_t hash);
    size_t Size() const { return entries_.size() + late_.size(); }
    // Sorts what was added; calls report(line, firstLine) for each repeated name, in the
    // order of the repeating lines' hashes.
    template <class Report>
    void Seal(Report&& report);

  private:
    void SortAndReport(std::vector<std::pair<uint64_t, uint64_t>>& repeats);
    std::vector<Entry> entries_;
    // Names added after the set was sealed: only a deck out of order does that.
    std::unordered_set<uint64_t> late_;
    bool sealed_ = false;
};

template <class Report>
void HashedNames::Seal(Report&& report) {
    if (sealed_) return;
    std::vector<std::pair<uint64_t, uint64_t>> repeats;
    SortAndReport(repeats);
    for (const auto& r : repeats) report(r.first, r.second);
}

}  // namespace qfxview

namespace qfxview {

// Hashed names with no line kept, for look-ups that need no report of a repeat.
class HashSet {
  public:
    void Add(uint64_t hash) { hashes_.push_back(hash), sorted_ = false; }
    bool Contains(uint64_t hash);

  private:
    std::vector<uint64_t> hashes_;
    bool sorted_ = true;
};

}  // namespace qfxview
