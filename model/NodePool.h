#pragma once
// Allocator of the node set's tree nodes. A board holds millions of nodes and frees them all at
// once: carving them from large blocks spares each one the heap's own header and the time of
// a heap call, and puts nodes made one after another next to each other in memory. A freed
// node goes to a free list for the next one; the blocks go back to the heap when the last node
// of all is freed. Not for use from more than one thread at a time.
#include <cstddef>
#include <new>

namespace node_pool {

// Single objects of one size (of at most the given alignment) from the shared blocks.
void* Take(size_t size);
void Give(void* p, size_t size);

}  // namespace node_pool

template <class T>
struct NodePoolAllocator {
    using value_type = T;

    NodePoolAllocator() = default;
    template <class U>
    NodePoolAllocator(const NodePoolAllocator<U>&) {}

    T* allocate(size_t n) {
        if (n == 1 && alignof(T) <= alignof(std::max_align_t))
            return static_cast<T*>(node_pool::Take(sizeof(T)));
        return static_cast<T*>(::operator new(n * sizeof(T)));
    }
    void deallocate(T* p, size_t n) {
        if (n == 1 && alignof(T) <= alignof(std::max_align_t))
            node_pool::Give(p, sizeof(T));
        else
            ::operator delete(p);
    }

    template <class U>
    bool operator==(const NodePoolAllocator<U>&) const {
        return true;
    }
    template <class U>
    bool operator!=(const NodePoolAllocator<U>&) const {
        return false;
    }
};
