#include "model/ReportMessage.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "model/TranslationHost.h"
#include "model/TranslationOptions.h"

void WriteBatchReport(const std::string& text) {
    size_t end = text.find_last_not_of(" \n\t");
    std::string line = (end == std::string::npos ? std::string() : text.substr(0, end + 1)) + "\n";
    std::fputs(line.c_str(), stderr);
    FILE* errorLog = g_options.g_pErrorLog;
    if (!errorLog || g_options.g_bErrorLogFailed) return;
    if (std::fputs(line.c_str(), errorLog) < 0 || std::fflush(errorLog) != 0) {
        // Told once, on standard error only: the report file itself is what failed.
        g_options.g_bErrorLogFailed = true;
        std::fprintf(stderr, "Cannot write file : %s (%s)\n", g_options.g_strErrorLogPath.c_str(),
                     std::strerror(errno));
    }
}

void NoteFileProblem(const std::string& path, const std::string& reason) {
    if (g_options.g_nBatchMode == 0 || reason.empty()) return;
    std::fprintf(stderr, "ndd2qfx: %s: %s\n", path.c_str(), reason.c_str());
}

void ReportWriteFailure(const std::string& path, const std::string& reason) {
    ReportMessage("Cannot write file : " + path + " (" + reason + ")");
}

int ReportMessage(std::string text, int boxType, int helpId) {
    if (g_options.g_nBatchMode != 0) {
        WriteBatchReport(text);
        return 1;
    }
    TranslationHost& host = CurrentHost();
    if (boxType == kBoxYesNo) return host.Ask(text) ? kAnswerYes : kAnswerNo;
    host.ShowMessage(text, boxType, helpId);
    return 1;
}
