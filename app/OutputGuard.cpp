#include "app/OutputGuard.h"

#include <utility>
#include <vector>

#include "base/FileChecks.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"

namespace {

// The name the pipeline hands on: ".QFX" is added to an output with another extension.
std::string PipelineName(const std::string& outputFile) {
    size_t dot = outputFile.rfind('.');
    std::string ext = dot == std::string::npos ? outputFile : outputFile.substr(dot);
    if (outputFile.empty() || outputFile.back() == '.' || EqualsNoCase(ext, ".QFX"))
        return outputFile;
    return outputFile + ".QFX";
}

std::string Clash(const std::string& target, const std::string& source) {
    return "Cannot write file : " + target + " (it is " + source + ", which this run reads)";
}

}  // namespace

std::string FindInputClash(const std::string& inputFile, const std::string& outputFile) {
    const TranslationOptions& o = g_options;
    const std::vector<std::string> reads = {inputFile, o.g_strTraceFile, o.g_strHkpFile};
    const std::string pipeline = PipelineName(outputFile);
    std::vector<std::string> decks = {outputFile, pipeline};
    std::vector<std::string> logs = {outputFile + ".log",        pipeline + ".log",
                                     outputFile + "temp.log",    pipeline + "temp.log",
                                     o.g_strOutputFile + ".log", o.g_strOutputFile + "temp.log"};
    for (const std::string& target : decks) {
        for (const std::string& source : reads)
            if (base::SameFile(target, source)) return Clash(target, source);
        if (base::SameFile(target, o.g_strCmdLogFile)) return Clash(target, o.g_strCmdLogFile);
    }
    for (const std::string& target : logs)
        for (const std::string& source : reads)
            if (base::SameFile(target, source)) return Clash(target, source);
    return std::string();
}

std::string FindErrorLogClash(const std::string& errorLog) {
    const TranslationOptions& o = g_options;
    for (const std::string* source :
         {&o.g_strCmdLogFile, &o.g_strCmdInputFile, &o.g_strTraceFile, &o.g_strHkpFile})
        if (base::SameFile(errorLog, *source)) return Clash(errorLog, *source);
    return std::string();
}
