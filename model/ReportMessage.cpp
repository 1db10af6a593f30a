#include "model/ReportMessage.h"

#include <cstdio>

#include "model/TranslationHost.h"
#include "model/TranslationOptions.h"

void WriteBatchReport(const std::string& text) {
    size_t end = text.find_last_not_of(" \n\t");
    std::string line = (end == std::string::npos ? std::string() : text.substr(0, end + 1)) + "\n";
    if (g_options.g_pErrorLog) {
        std::fputs(line.c_str(), g_options.g_pErrorLog);
        std::fflush(g_options.g_pErrorLog);
    }
    std::fputs(line.c_str(), stderr);
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
