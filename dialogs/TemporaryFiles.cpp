#include "dialogs/TemporaryFiles.h"

#include <sys/stat.h>

#include <cstdio>

#include "base/Platform.h"
#include "model/TranslationOptions.h"

namespace {

void CloseStream(FILE*& stream) {
    if (stream) std::fclose(stream);
    stream = nullptr;
}

// Only a plain file goes: a folder of that name is the user's.
void DeleteIfFile(const std::string& path) {
    struct stat info;
    if (::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode)) base::RemoveFile(path);
}

}  // namespace

void DeleteTemporaryFiles(const std::string& input, const std::string& output) {
    TranslationOptions& o = g_options;
    CloseStream(o.g_pOutputFile);
    CloseStream(o.g_pLogFile);
    CloseStream(o.g_pTempLogFile);
    if (!input.empty()) DeleteIfFile(base::FolderWithSeparator(input) + "temp.log");
    if (output.empty()) return;
    DeleteIfFile(output + "temp.log");
    size_t sep = base::LastSeparator(output);
    size_t dot = output.rfind('.');
    // The stem's siblings only: a dot in a folder's name does not count.
    if (dot == std::string::npos || (sep != std::string::npos && dot < sep)) return;
    DeleteIfFile(output.substr(0, dot + 1) + "log");
    DeleteIfFile(output.substr(0, dot));
}
