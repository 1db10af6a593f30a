#include "base/SafeFile.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

#include "base/Platform.h"
#include "base/RunLog.h"

namespace base {

bool SafeDeleteFile(const std::string& path) {
    if (std::remove(path.c_str()) == 0) return true;
    WriteRunLog("ERROR: /SafeDeleteFile/_tremove(%s) (%s)\n", path.c_str(), ErrorText(errno));
    return false;
}

bool SafeCreatePath(const std::string& folder) {
    std::string path = NativeSeparators(folder);
    for (size_t at = 1; at <= path.size(); ++at) {
        if (at < path.size() && path[at] != kSep) continue;
        std::string part = path.substr(0, at);
        if (IsFolder(part)) continue;
        if (::mkdir(part.c_str(), 0777) != 0 && errno != EEXIST) {
            WriteRunLog("ERROR: /SafeCreatePath/_tmkdir(%s) (%s)\n", part.c_str(),
                        ErrorText(errno));
            return false;
        }
    }
    return IsFolder(path);
}

}  // namespace base
