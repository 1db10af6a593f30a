#include "base/ScopedClassicLocale.h"

namespace base {

ScopedClassicLocale::ScopedClassicLocale() {
    // The thread's other categories stay as they are: start from a copy of its locale.
    locale_t current = duplocale(uselocale(locale_t()));
    if (current == locale_t()) return;
    classic_ = newlocale(LC_NUMERIC_MASK | LC_TIME_MASK, "C", current);
    if (classic_ == locale_t()) {
        freelocale(current);
        return;
    }
    previous_ = uselocale(classic_);
}

ScopedClassicLocale::~ScopedClassicLocale() {
    if (classic_ == locale_t()) return;
    uselocale(previous_);
    freelocale(classic_);
}

}  // namespace base
