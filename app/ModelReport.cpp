#include "app/ModelReport.h"

#include <cstdio>

#include "app/TranslationLog.h"
#include "base/Platform.h"
#include "base/SafeFile.h"
#include "ibis/CircuitWriter.h"
#include "ibis/LinkageWriter.h"
#include "model/NodeSet.h"
#include "model/ReportMessage.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"
#include "qfx/LayerWriter.h"
#include "qfx/NodeWriter.h"
#include "qfx/ShapeWriter.h"
#include "qfx/Skeleton.h"
#include "qfx/TraceWriter.h"
#include "qfx/ViaWriter.h"

namespace {

// The log belongs to the run's output name; a run started without one uses the pipeline's.
std::string LogBaseName(const std::string& outputFile) {
    return g_options.g_strOutputFile.empty() ? outputFile : g_options.g_strOutputFile;
}

void ReopenLog(const std::string& logPath) {
    bool wasOpen = g_options.g_pLogFile != nullptr;
    if (wasOpen) std::fclose(g_options.g_pLogFile);
    g_options.g_pLogFile = nullptr;
    if (!base::IsFolder(logPath)) base::RemoveFile(logPath);
    g_options.g_pLogFile = std::fopen(logPath.c_str(), "w");
    if (!g_options.g_pLogFile && wasOpen)
        ReportMessage("Cannot open log file : " + logPath, kBoxWarning);
}

// Every section from the finished model, whatever the four element switches say.
void WriteAllSections(FILE* out, ModelAssignment* models, ComponentNodes* nodes) {
    WriteTitle(out);
    WriteTransient(out);
    WriteMesh(out);
    WritePackageHead(out);
    WriteShapes(out);
    WriteLayers(out);
    WriteNodes(out);
    WriteTraces(out);
    WriteVias(out);
    WritePackageEnd(out);
    WriteCircuitDescription(out, models);
    if (g_options.g_pLogFile) WriteModelReportLines(g_options.g_pLogFile);
    WriteLinkageDescription(out, g_options.g_pLogFile, nodes);
    WriteFileEnd(out);
}

void DeleteTemporaryLog(const std::string& path) {
    if (base::PathExists(path)) base::SafeDeleteFile(path);
}

}  // namespace

int WriteModelReport(const std::string& outputFile, ModelAssignment* models,
                     ComponentNodes* nodes) {
    RebuildNodeIndex();
    if (g_options.g_pOutputFile) std::fclose(g_options.g_pOutputFile);
    g_options.g_pOutputFile = std::fopen(outputFile.c_str(), "w");
    std::string base = LogBaseName(outputFile);
    if (!g_options.g_pOutputFile) {
        ReportMessage("Cannot open file : " + outputFile, kBoxWarning);
        TraceStep(true, "Cannot open file : %s", outputFile.c_str());
        return 0;
    }
    ReopenLog(base + ".log");
    WriteLogHeader();
    WriteAllSections(g_options.g_pOutputFile, models, nodes);
    std::fclose(g_options.g_pOutputFile);
    g_options.g_pOutputFile = nullptr;
    if (g_options.g_pTempLogFile) std::fclose(g_options.g_pTempLogFile);
    g_options.g_pTempLogFile = nullptr;
    DeleteTemporaryLog(base + "temp.log");
    if (outputFile != base) DeleteTemporaryLog(outputFile + "temp.log");
    return 1;
}

int WriteModelReport() {
    return WriteModelReport(g_options.g_strOutputFile);
}
