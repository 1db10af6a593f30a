#pragma once
// Everything a run can be told, and the run's own mode flags and streams. One instance,
// alive for the whole process; the command line, the Settings dialog and a loaded
// translation log write it, and every pass reads it. Flags are 32-bit: any non-zero value is on.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

class CNdd2QfxDlg;

struct TranslationOptions {
    // Elements to write.
    int32_t g_bTranslateShapes = 1;
    int32_t g_bTranslateLayers = 1;
    int32_t g_bTranslateTraces = 1;
    int32_t g_bTranslateVias = 1;
    int32_t g_nTranslatePads = 1;

    // Stack and net handling.
    int32_t g_bAllowSignalOnPlane = 1;
    int32_t g_bAllowPatches = 1;
    int32_t g_bAddPseudoPlane = 1;
    int32_t g_nIncludeNoNetEtches = 0;
    int32_t g_bAppendNetName = 1;
    std::string g_strNameAffix;
    int32_t g_bColorShapesByNet = 1;

    // Clean-up thresholds (mm, mm²).
    double g_dbVoidAreaLimit = 0.0;
    int32_t g_bExcludeVoidEnclosingVia = 1;
    double g_dbViaVoidArea = 0.0;
    double g_dbTraceUnionLength = 0.0;
    double g_dbMaxArcLength = 0.2;
    std::string g_strTraceGapPercent;
    double g_dbDrillClearance = -1.0;
    double g_dbGapAroundAreaFillOnPlaneLayers = -1.0;

    // Spatial range (mm).
    int32_t g_bSpatialLimit = 0;
    double g_dbSpatialMinX = -1e38;
    double g_dbSpatialMinY = -1e38;
    double g_dbSpatialMaxX = 1e38;
    double g_dbSpatialMaxY = 1e38;

    // Components and models.
    int32_t g_bTranslateLinkages = 1;
    int32_t g_bWriteLinkages = 1;
    std::string g_strValueFieldName;

    // Side files; a translation log does not record these two.
    std::string g_strTraceFile;
    std::string g_strHkpFile;

    // Net selection.
    int32_t g_nSelectedNetCount = 0;
    std::vector<int32_t> g_pSelectedNets;
    // Colour index of every net, by net index: the one record of net colours. Reading the
    // net table fills the defaults; a loaded log and the net choice put the user's colours in.
    std::vector<int32_t> g_pNetColors;
    std::vector<int32_t> g_aSortedSelectedNets;  // g_pSelectedNets sorted, for look-ups
    int32_t g_bAllNets = 1;
    int32_t g_bSelectedOnly = 0;
    int32_t g_bAllNetsFromLog = 0;
    int32_t g_bLogLoaded = 0;
    std::vector<std::string> g_lstLogNets;
    std::vector<std::string> g_lstLogColors;
    // The input holds at least one net.
    int32_t g_bHasNets = 0;

    // Run mode and paths.
    int32_t g_nBatchMode = 0;
    int32_t g_nQuiet = 0;
    std::string g_strCmdLogFile;
    std::string g_strCmdInputFile;
    std::string g_strCmdOutputFile;
    std::string g_strInputFile;
    std::string g_strOutputFile;
    std::string g_strProgramFolder;
    int32_t g_bVerboseFlag = 0;  // set by "/v"; nothing reads it
    // "-strict": a failed batch translation ends the process with status 1 instead of 0.
    bool g_bStrictStatus = false;
    // Where error.log was opened, and whether a write to it has failed.
    std::string g_strErrorLogPath;
    bool g_bErrorLogFailed = false;

    // Streams of a run: error.log of a batch run, the output, the translation log and the
    // temporary model log.
    FILE* g_pErrorLog = nullptr;
    FILE* g_pOutputFile = nullptr;
    FILE* g_pLogFile = nullptr;
    FILE* g_pTempLogFile = nullptr;
    CNdd2QfxDlg* g_pMainDialog = nullptr;
};

extern TranslationOptions g_options;

// Back to the initial values. Open streams are closed first.
void ResetTranslationOptions();

// Colour names of net colour indices 1 to 11; index 0 prints as "Default".
extern const char* const kNetColorNames[11];
// Name of colour index i (1-based), or nullptr when out of range.
const char* NetColorName(int32_t index);
// Colour index of a colour name, ignoring case: 1 to 11, or 0 (default) for any other word.
int32_t NetColorIndexByName(const std::string& name);
// The colour of a net as the output and the log give it: the one held in g_pNetColors, where
// the user's choice lives. A net without an entry (or no net at all) has 0, the default.
int32_t NetColorOf(int32_t net);
