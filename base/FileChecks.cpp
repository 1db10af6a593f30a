#include "base/FileChecks.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>

namespace base {

bool SameFile(const std::string& a, const std::string& b) {
    struct stat sa {
    }, sb{};
    if (a.empty() || b.empty() || ::stat(a.c_str(), &sa) != 0 || ::stat(b.c_str(), &sb) != 0)
        return false;
    return sa.st_dev == sb.st_dev && sa.st_ino == sb.st_ino;
}

std::string SystemReason(int error) {
    return std::strerror(error);
}

bool CloseWritten(FILE*& stream, std::string& reason) {
    if (!stream) return true;
    // errno of an earlier failed write may since have been overwritten: the error flag is
    // what tells, and the flush below usually fails again with the real cause.
    errno = 0;
    bool ok = std::fflush(stream) == 0 && !std::ferror(stream);
    int error = errno;
    if (std::fclose(stream) != 0 && ok) {
        ok = false;
        error = errno;
    }
    stream = nullptr;
    if (!ok) reason = error != 0 ? SystemReason(error) : std::string("write error");
    return ok;
}

}  // namespace base
