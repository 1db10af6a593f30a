#include "base/TextFile.h"

#include "base/HugePages.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace base {

namespace {
thread_local std::string t_lastFailure;
}

std::string LastLoadFailure() {
    return t_lastFailure;
}

std::string DropCrBeforeLf(std::string raw) {
    size_t out = 0;
    for (size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\r' && i + 1 < raw.size() && raw[i + 1] == '\n') continue;
        raw[out++] = raw[i];
    }
    raw.resize(out);
    return raw;
}

SharedText LoadTextFile(const std::string& path, LoadStatus* status) {
    auto set = [&](LoadStatus s, const char* reason = nullptr) {
        if (status) *status = s;
        t_lastFailure = reason ? reason : (s == LoadStatus::Ok ? "" : std::strerror(errno));
    };
    struct stat st {};
    errno = ENOENT;
    if (path.empty() || ::stat(path.c_str(), &st) != 0) {
        set(LoadStatus::Missing);
        return nullptr;
    }
    if (S_ISDIR(st.st_mode)) {
        set(LoadStatus::IsFolder, std::strerror(EISDIR));
        return nullptr;
    }
    if (!S_ISREG(st.st_mode)) {
        set(LoadStatus::NotRegular, "Not a regular file");
        return nullptr;
    }
    FILE* f = std::fopen(path.c_str(), "rb");
    if (!f) {
        set(LoadStatus::Unreadable);
        return nullptr;
    }
    std::string raw;
    // One allocation of the file's size: growing by doubling would hold up to twice the input.
    raw.reserve(static_cast<size_t>(st.st_size) + 1);
    AdviseHugePages(raw.data(), raw.capacity());
    char buf[65536];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) raw.append(buf, n);
    bool failed = std::ferror(f) != 0;
    int error = errno;
    std::fclose(f);
    errno = error;
    if (failed) {
        set(LoadStatus::Unreadable);
        return nullptr;
    }
    set(LoadStatus::Ok);
    return std::make_shared<const std::string>(DropCrBeforeLf(std::move(raw)));
}

bool LineStream::ReadLine(std::string& out, size_t bufferSize) {
    out.clear();
    if (AtEnd() || bufferSize < 2) return false;
    const std::string& t = *text_;
    size_t limit = std::min(t.size() - pos_, bufferSize - 1);
    const void* lf = std::memchr(t.data() + pos_, '\n', limit);
    size_t len =
        lf ? static_cast<size_t>(static_cast<const char*>(lf) - (t.data() + pos_)) + 1 : limit;
    const void* nul = std::memchr(t.data() + pos_, '\0', len);
    size_t visible =
        nul ? static_cast<size_t>(static_cast<const char*>(nul) - (t.data() + pos_)) : len;
    out.assign(t, pos_, visible);
    pos_ += len;
    return true;
}

}  // namespace base
