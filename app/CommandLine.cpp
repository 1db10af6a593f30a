#include "app/CommandLine.h"

#include <cstdio>
#include <cstdlib>

#include "base/Platform.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"

namespace {

constexpr double kMilToMm = 0.0254;

bool IsOption(const std::string& arg, const char* name) {
    return EqualsNoCase(arg, std::string("-") + name) || EqualsNoCase(arg, std::string("/") + name);
}

void ReportGapValue() {
    char text[128];
    std::snprintf(text, sizeof text, "g_dbGapAroundAreaFillOnPlaneLayers = %.6f",
                  g_options.g_dbGapAroundAreaFillOnPlaneLayers);
    if (g_options.g_nBatchMode != 0)
        WriteBatchReport(text);
    else
        ReportMessage(text, kBoxOk);
}

// A side file named on the command line is made absolute at once: the start routine moves
// the working folder to the output's folder before the file is read.
std::string SideFilePath(const std::string& value) {
    return base::AbsolutePath(base::NativeSeparators(Trim(value, " ")));
}

}  // namespace

int ParseCommandLine(const std::vector<std::string>& args, std::string& logFile,
                     std::string& inputFile, std::string& outputFile) {
    if (args.size() < 2) return kCmdNoFile;
    bool drillSeen = false, gapSeen = false, pipeStart = false;
    size_t i = 1;
    for (; i < args.size(); ++i) {
        const std::string& a = args[i];
        // -drill and -EXP exclude one another by order: the first one met takes its value.
        if (IsOption(a, "drill") || IsOption(a, "EXP")) {
            bool drill = IsOption(a, "drill");
            double value = i + 1 < args.size() ? std::atof(args[i + 1].c_str()) * kMilToMm : 0.0;
            if (drill && !gapSeen) g_options.g_dbDrillClearance = value;
            if (!drill && !drillSeen) {
                g_options.g_dbGapAroundAreaFillOnPlaneLayers = value;
                ReportGapValue();
            }
            (drill ? drillSeen : gapSeen) = true;
            ++i;
        } else if (IsOption(a, "traces") || IsOption(a, "hkp")) {
            std::string& field =
                IsOption(a, "traces") ? g_options.g_strTraceFile : g_options.g_strHkpFile;
            if (i + 1 < args.size()) field = SideFilePath(args[++i]);
        } else if (IsOption(a, "NoUI")) {
            g_options.g_nBatchMode = -1;
        } else if (IsOption(a, "b")) {
            if (g_options.g_nBatchMode == 0) g_options.g_nBatchMode = 1;
        } else if (IsOption(a, "strict")) {
            g_options.g_bStrictStatus = true;
        } else if (IsOption(a, "pipe")) {
            pipeStart = true;
        } else if (IsOption(a, "log")) {
        } else if (a == "/v" || a == "/V") {
            g_options.g_bVerboseFlag = 1;
        } else if (EqualsNoCase(a, "-splitplane")) {
        } else {
            break;
        }
    }
    // The case comes over the pipe; the run mode options stand.
    if (pipeStart) return kCmdPipeStart;
    if (i >= args.size()) {
        if (g_options.g_nBatchMode != 0) ReportMessage("Invalid arguments: file name missing.");
        return kCmdNoFile;
    }
    std::string first = Trim(args[i], " ");
    std::string ext = first.size() >= 3 ? ToLower(first.substr(first.size() - 3)) : ToLower(first);
    first = base::AbsolutePath(base::NativeSeparators(first));
    auto next = [&](size_t k) { return i + k < args.size() ? args[i + k] : std::string(); };
    if (ext == "log") {
        logFile = first;
        inputFile = next(1);
        outputFile = next(2);
        return kCmdFilesTaken;
    }
    if (ext == "ndd") {
        inputFile = first;
        outputFile = next(1);
        if (i + 2 < args.size()) g_options.g_strTraceGapPercent = args[i + 2];
        return kCmdFilesTaken;
    }
    return kCmdUnknownExtension;
}

std::string DefaultOutputName(const std::string& inputFile) {
    size_t from = inputFile.size() >= 4 ? inputFile.size() - 4 : 0;
    size_t dot = inputFile.find('.', from);
    return (dot == std::string::npos ? inputFile : inputFile.substr(0, dot)) + ".qfx";
}
