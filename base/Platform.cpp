#include "base/Platform.h"

#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/ScopedClassicLocale.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace base {

std::string NativeSeparators(std::string path) {
    for (char& c : path)
        if (c == '\\' || c == '/') c = kSep;
    return path;
}

size_t LastSeparator(const std::string& path) {
    return path.find_last_of("/\\");
}

bool HasSeparator(const std::string& path) {
    return LastSeparator(path) != std::string::npos;
}

std::string CurrentFolder() {
    std::vector<char> buf(4096);
    if (!::getcwd(buf.data(), buf.size())) return std::string();
    return std::string(buf.data());
}

std::string AbsolutePath(const std::string& input) {
    std::string path = NativeSeparators(input);
    if (path.empty()) return path;
    if (path[0] != kSep) path = CurrentFolder() + kSep + path;
    std::vector<std::string> parts;
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find(kSep, start);
        if (end == std::string::npos) end = path.size();
        std::string part = path.substr(start, end - start);
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
        start = end + 1;
    }
    std::string out;
    for (const auto& p : parts) out += kSep + p;
    return out.empty() ? std::string(1, kSep) : out;
}

bool ChangeFolder(const std::string& folder) {
    return ::chdir(folder.c_str()) == 0;
}

bool PathExists(const std::string& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0;
}

bool IsFolder(const std::string& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool RemoveFile(const std::string& path) {
    return std::remove(path.c_str()) == 0;
}

bool IsReadOnlyFile(const std::string& path) {
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) return false;
    // The permission bits decide even for the superuser, whom access() never refuses.
    return (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || ::access(path.c_str(), W_OK) != 0;
}

bool DeleteUnlessReadOnly(const std::string& path) {
    if (IsReadOnlyFile(path)) {
        errno = EACCES;
        return false;
    }
    return RemoveFile(path);
}

bool RenameWithoutReplacing(const std::string& from, const std::string& to) {
    if (PathExists(to)) {
        errno = EEXIST;
        return false;
    }
    return std::rename(from.c_str(), to.c_str()) == 0;
}

std::string TempFolder() {
    for (const char* name : {"TMP", "TEMP", "TMPDIR"}) {
        const char* v = std::getenv(name);
        if (v && *v) return v;
    }
    return "/tmp";
}

std::string ProgramFolder(const char* argv0) {
    std::vector<char> buf(4096);
    ssize_t n = ::readlink("/proc/self/exe", buf.data(), buf.size() - 1);
    std::string self =
        n > 0 ? std::string(buf.data(), static_cast<size_t>(n)) : AbsolutePath(argv0 ? argv0 : "");
    size_t sep = LastSeparator(self);
    return sep == std::string::npos ? std::string() : self.substr(0, sep + 1);
}

std::string FormatTime(const char* format, std::time_t when) {
    std::string fmt(format);
    for (size_t p; (p = fmt.find("%#d")) != std::string::npos;) fmt.replace(p, 3, "%-d");
    ScopedClassicLocale classicNames;
    std::tm tmv{};
    localtime_r(&when, &tmv);
    char buf[512];
    size_t n = std::strftime(buf, sizeof buf, fmt.c_str(), &tmv);
    return std::string(buf, n);
}

const char* ErrorText(int error) {
    return std::strerror(error);
}

size_t StackRoom() {
    pthread_attr_t attr;
    if (pthread_getattr_np(pthread_self(), &attr) != 0) return 0;
    void* low = nullptr;
    size_t size = 0;
    int rc = pthread_attr_getstack(&attr, &low, &size);
    pthread_attr_destroy(&attr);
    char here = 0;
    const char* mark = &here;
    const char* bottom = static_cast<const char*>(low);
    if (rc != 0 || mark < bottom || mark > bottom + size) return 0;
    return static_cast<size_t>(mark - bottom);
}

std::string FolderWithSeparator(const std::string& path) {
    size_t sep = LastSeparator(path);
    return sep == std::string::npos ? std::string() : path.substr(0, sep + 1);
}

}  // namespace base
