#include "geometry/CellTable.h"

#include <utility>

namespace {

constexpr int kFirstBits = 10;

}  // namespace

void CellTable::Clear() {
    std::vector<Slot>().swap(slots_);
    used_ = 0;
    shift_ = 64;
}

size_t CellTable::Home(uint64_t key) const {
    // Fibonacci hashing: the high bits of the product depend on every bit of the key.
    return static_cast<size_t>((key * 0x9E3779B97F4A7C15ull) >> shift_);
}

const CellTable::List* CellTable::Find(uint64_t key) const {
    if (slots_.empty()) return nullptr;
    const size_t mask = slots_.size() - 1;
    for (size_t i = Home(key);; i = (i + 1) & mask) {
        const Slot& slot = slots_[i];
        if (!slot.used) return nullptr;
        if (slot.key == key) return &slot.nodes;
    }
}

CellTable::List& CellTable::Get(uint64_t key) {
    // At most half the slots are used, so every probe meets a free slot.
    if (2 * (used_ + 1) > slots_.size()) Grow();
    const size_t mask = slots_.size() - 1;
    size_t i = Home(key);
    for (; slots_[i].used; i = (i + 1) & mask)
        if (slots_[i].key == key) return slots_[i].nodes;
    slots_[i].used = true;
    slots_[i].key = key;
    ++used_;
    return slots_[i].nodes;
}

void CellTable::Grow() {
    std::vector<Slot> old;
    old.swap(slots_);
    const int bits = old.empty() ? kFirstBits : 64 - shift_ + 1;
    shift_ = 64 - bits;
    slots_.resize(size_t{1} << bits);
    const size_t mask = slots_.size() - 1;
    for (Slot& slot : old) {
        if (!slot.used) continue;
        size_t i = Home(slot.key);
        while (slots_[i].used) i = (i + 1) & mask;
        slots_[i].used = true;
        slots_[i].key = slot.key;
        slots_[i].nodes = std::move(slot.nodes);
    }
}
