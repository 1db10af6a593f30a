#pragma once
// Lists of nodes by a 64-bit cell key, in one open-addressed table of a power-of-two size: a
// look-up is a multiply, a shift and a few neighbouring slots, where a node-based hash map
// pays a division and a pointer chase for every cell that a via asks about.
#include <cstdint>
#include <vector>

#include "model/NodeRec.h"

class CellTable {
  public:
    using List = std::vector<const NodeRec*>;

    void Clear();
    // The list of key, or null when no list has that key.
    const List* Find(uint64_t key) const;
    // The list of key, made empty when it has none.
    List& Get(uint64_t key);

  private:
    struct Slot {
        uint64_t key = 0;
        bool used = false;
        List nodes;
    };
    size_t Home(uint64_t key) const;
    void Grow();

    std::vector<Slot> slots_;
    size_t used_ = 0;
    int shift_ = 64;
};
