#include "base/KnownLocations.h"

#include <cstdlib>

#include "base/Platform.h"
#include "base/RunLog.h"
#include "base/SafeFile.h"

namespace base {

namespace {

struct Table {
    std::string output, log, temp;
};

Table g_table;

std::string WithSeparator(std::string folder) {
    if (folder.empty() || folder.back() != kSep) folder += kSep;
    return folder;
}

// The file a LULIB_RUNLOG value names, or "" when it names another kind of destination.
std::string FileOfDestination(const char* value) {
    if (!value) return std::string();
    std::string v = value;
    if (v.size() >= 2 && v.front() == '"' && v.back() == '"') v = v.substr(1, v.size() - 2);
    size_t at = 0;
    for (char flag : {'"', ':', '?'})
        if (at < v.size() && v[at] == flag) ++at;
    v = v.substr(at);
    if (v.empty() || v[0] == '|' || v[0] == '*') return std::string();
    return v;
}

std::string LogFolder(const char* toolGroup) {
    std::string file = FileOfDestination(std::getenv("LULIB_RUNLOG"));
    if (!file.empty()) {
        std::string folder = FolderWithSeparator(file);
        return WithSeparator(AbsolutePath(folder.empty() ? std::string(".") : folder));
    }
    std::string root;
    if (const char* state = std::getenv("XDG_STATE_HOME"); state && *state)
        root = state;
    else if (const char* home = std::getenv("HOME"); home && *home)
        root = std::string(home) + "/.local/state";
    else
        root = TempFolder();
    return WithSeparator(root) + "lumora/" + toolGroup + "/";
}

}  // namespace

void InitializeLuLib(const char* toolGroup) {
    g_table.output = WithSeparator(CurrentFolder());
    g_table.temp = WithSeparator(TempFolder());
    g_table.log = LogFolder(toolGroup && *toolGroup ? toolGroup : "Tools");
    SafeCreatePath(g_table.log);
    RunLogDestination(KnownLocationPath(KnownLocation::RunLogFile).c_str(), 0);
}

std::string KnownLocationPath(KnownLocation which) {
    switch (which) {
        case KnownLocation::ToolOutputFolder:
            return g_table.output;
        case KnownLocation::ToolLogFolder:
            return g_table.log;
        case KnownLocation::ToolTempFolder:
            return g_table.temp;
        case KnownLocation::RunLogFile:
            return g_table.log.empty() ? "" : g_table.log + "Run.log";
    }
    return std::string();
}

}  // namespace base
