#include "model/NodePool.h"

#include "base/HugePages.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace node_pool {

namespace {

constexpr size_t kFirstBlock = 256;      // objects
constexpr size_t kLargestBlock = 65536;  // objects

// One pool per object size; the node set uses one size only.
struct Pool {
    size_t size = 0;
    std::vector<std::unique_ptr<unsigned char[]>> blocks;
    unsigned char* next = nullptr;  // unused room in the newest block
    unsigned char* end = nullptr;
    void* freed = nullptr;  // free list, linked through the objects themselves
    size_t live = 0;

    void* Take() {
        ++live;
        if (freed) {
            void* p = freed;
            freed = *static_cast<void**>(p);
            return p;
        }
        if (next == end) Grow();
        void* p = next;
        next += size;
        return p;
    }

    void Give(void* p) {
        *static_cast<void**>(p) = freed;
        freed = p;
        if (--live == 0) Release();
    }

    // Blocks double in size, so that a small model wastes little and a big one makes few.
    void Grow() {
        blockObjects = blocks.empty() ? kFirstBlock : std::min(kLargestBlock, 2 * blockObjects);
        blocks.emplace_back(new unsigned char[blockObjects * size]);
        next = blocks.back().get();
        base::AdviseHugePages(next, blockObjects * size);
        end = next + blockObjects * size;
    }

    void Release() {
        blocks.clear();
        next = end = nullptr;
        freed = nullptr;
    }

    size_t blockObjects = 0;
};

size_t Rounded(size_t size) {
    const size_t align = alignof(std::max_align_t);
    size = std::max(size, sizeof(void*));
    return (size + align - 1) / align * align;
}

// Never destroyed: sets in objects of static lifetime free their nodes at exit, in any order.
Pool& PoolOf(size_t size) {
    static auto* pools = new std::vector<std::unique_ptr<Pool>>();
    for (auto& pool : *pools)
        if (pool->size == size) return *pool;
    pools->push_back(std::make_unique<Pool>());
    pools->back()->size = size;
    return *pools->back();
}

}  // namespace

void* Take(size_t size) {
    return PoolOf(Rounded(size)).Take();
}

void Give(void* p, size_t size) {
    PoolOf(Rounded(size)).Give(p);
}

}  // namespace node_pool
