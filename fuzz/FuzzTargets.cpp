#include "fuzz/FuzzTargets.h"

#include <unistd.h>

#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

#include "app/LogLoader.h"
#include "app/TranslationDriver.h"
#include "ibis/IbisReader.h"
#include "ibis/PinMappingRows.h"
#include "ibis/PinMappingWriter.h"
#include "model/BatchHost.h"
#include "model/LayoutModel.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"

namespace fuzz {

ScratchFolder::ScratchFolder() {
    const char* tmp = std::getenv("TMPDIR");
    std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/ndd2qfx_fuzz_XXXXXX";
    std::vector<char> buf(pattern.begin(), pattern.end());
    buf.push_back('\0');
    if (!mkdtemp(buf.data())) {
        std::perror("ndd2qfx fuzz: cannot make a scratch folder");
        std::abort();
    }
    path_ = buf.data();
}

ScratchFolder::~ScratchFolder() {
    std::string cmd = "rm -rf '" + path_ + "'";
    if (std::system(cmd.c_str()) != 0) std::fprintf(stderr, "cannot remove %s\n", path_.c_str());
}

bool WriteBytes(const std::string& path, const uint8_t* data, size_t size) {
    FILE* f = std::fopen(path.c_str(), "wb");
    if (!f) return false;
    bool ok = std::fwrite(data, 1, size, f) == size;
    return std::fclose(f) == 0 && ok;
}

void ResetForInput() {
    setenv("KEEP_BENCHMARK", "0", 1);
    ResetTraceStep();
    ResetTranslationOptions();
    ResetLayoutModel();
    ForgetNddInput();
    g_options.g_nBatchMode = -1;
    g_options.g_nQuiet = -1;
}

namespace {

// ibisPart: a part that the user chose for the IBIS step, as the dialog would hand it over.
int RunTranslation(const std::string& input, const std::string& folder,
                   const std::string& ibisPart = std::string()) {
    std::string output = folder + "/out.qfx";
    g_options.g_strInputFile = input;
    g_options.g_strOutputFile = output;
    BatchHost host;
    TranslationDriver driver(host);
    if (!ibisPart.empty()) driver.AddUnresolvedPart(ibisPart);
    int result = driver.Translate(input, output) == TranslateStatus::Done ? 1 : 0;
    // A failed run may leave its streams open; close them before the next input.
    ResetTranslationOptions();
    return result;
}

// The board copied into folder, so that files looked for beside the input are looked for there.
std::string CopyBoard(const std::string& boardPath, const std::string& folder) {
    static std::string text;
    static std::string from;
    if (from != boardPath) {
        std::ifstream in(boardPath, std::ios::binary);
        std::stringstream ss;
        ss << in.rdbuf();
        text = ss.str();
        from = boardPath;
    }
    std::string copy = folder + "/board.ndd";
    WriteBytes(copy, reinterpret_cast<const uint8_t*>(text.data()), text.size());
    return copy;
}

}  // namespace

int TranslateNdd(const uint8_t* data, size_t size, const std::string& folder) {
    ResetForInput();
    std::string input = folder + "/in.ndd";
    if (!WriteBytes(input, data, size)) return 0;
    return RunTranslation(input, folder);
}

int TranslateWithTraces(const uint8_t* data, size_t size, const std::string& folder,
                        const std::string& boardPath) {
    ResetForInput();
    std::string traces = folder + "/traces";
    if (!WriteBytes(traces, data, size)) return 0;
    g_options.g_strTraceFile = traces;
    return RunTranslation(boardPath, folder);
}

int TranslateWithHkp(const uint8_t* data, size_t size, const std::string& folder,
                     const std::string& boardPath) {
    ResetForInput();
    std::string hkp = folder + "/layout.hkp";
    if (!WriteBytes(hkp, data, size)) return 0;
    g_options.g_strHkpFile = hkp;
    return RunTranslation(boardPath, folder);
}

int TranslateWithIbis(const uint8_t* data, size_t size, const std::string& folder,
                      const std::string& boardPath) {
    ResetForInput();
    std::string models = folder + "/IBISModels";
    mkdir(models.c_str(), 0755);
    if (!WriteBytes(models + "/SN74LVC1G14.ibs", data, size)) return 0;
    return RunTranslation(CopyBoard(boardPath, folder), folder, "SN74LVC1G14");
}

int TranslateWithLog(const uint8_t* data, size_t size, const std::string& folder,
                     const std::string& boardPath) {
    ResetForInput();
    std::string log = folder + "/in.log";
    if (!WriteBytes(log, data, size)) return 0;
    std::string input = CopyBoard(boardPath, folder);
    std::string named = input, output = folder + "/out.qfx";
    if (!LoadLogFile(log, named, output)) return 0;
    return RunTranslation(input, folder);
}

int SavePinMapping(const uint8_t* data, size_t size, const std::string& folder) {
    ResetForInput();
    ComponentRec part;
    part.isActive = 1;
    part.ibisFile = folder + "/part.ibs";
    if (!WriteBytes(part.ibisFile, data, size)) return 0;
    for (const char* name : {"1", "2", "3", "4", "5"}) part.pins.emplace_back().name = name;
    ParseIbisFile(part);
    StoreMappingRows(
        part, {{"2", "GNDGRP0", "PWRGRP0", "GNDGRP0", "PWRGRP0"}},
        {{"PWRGRP0", "PU", {"5"}}, {"GNDGRP0", "PD", {"3"}}, {kAvailablePinsGroup, "ALL", {"1"}}});
    int saved = PinMappingWriter(part);
    ParseIbisFile(part);
    return saved;
}

}  // namespace fuzz
