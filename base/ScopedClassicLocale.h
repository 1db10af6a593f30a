#pragma once
// Numbers and dates of every file this program writes or reads are in the "C" form ("1.5",
// "Tuesday"), whatever locale the process runs under: a toolkit sets the user's locale when
// it starts. ScopedClassicLocale switches the numeric and time categories of the calling
// thread to "C" for its lifetime and puts the thread's previous locale back afterwards, so it
// nests and leaves the rest of the process alone.
#include <locale.h>

namespace base {

class ScopedClassicLocale {
  public:
    ScopedClassicLocale();
    ~ScopedClassicLocale();
    ScopedClassicLocale(const ScopedClassicLocale&) = delete;
    ScopedClassicLocale& operator=(const ScopedClassicLocale&) = delete;

  private:
    locale_t classic_ = locale_t();
    locale_t previous_ = locale_t();
};

}  // namespace base
