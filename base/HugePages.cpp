#include "base/HugePages.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace base {

namespace {
constexpr uintptr_t kHugePage = 2u << 20;
}

void AdviseHugePages(const void* p, size_t bytes) {
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    const uintptr_t begin = (reinterpret_cast<uintptr_t>(p) + kHugePage - 1) & ~(kHugePage - 1);
    const uintptr_t end = (reinterpret_cast<uintptr_t>(p) + bytes) & ~(kHugePage - 1);
    if (p && end > begin) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
#else
    (void)p;
    (void)bytes;
#endif
}

}  // namespace base
