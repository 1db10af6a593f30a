#pragma once
// Large model tables are touched page by page as they fill; with the kernel's default 4 KB
// pages a big board spends a tenth of its time in page faults. Asking for huge pages on the
// large tables (before they are touched) takes that time away. Only advice: where the system
// has no huge pages, nothing changes.
#include <cstddef>

namespace base {

// Advises huge pages for the whole 2 MB pages inside [p, p + bytes).
void AdviseHugePages(const void* p, size_t bytes);

// Reserves room for count elements in v and advises huge pages for it.
template <class Vector>
void ReserveLarge(Vector& v, size_t count) {
    v.reserve(count);
    AdviseHugePages(v.data(), v.capacity() * sizeof(*v.data()));
}

}  // namespace base
