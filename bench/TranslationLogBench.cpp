// Writing the log header and loading a log back, for designs with many nets.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/LogLoader.h"
#include "app/TranslationLog.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

namespace {

std::string NetName(int i) {
    return "NET_" + std::to_string(i);
}

std::string TempPath(const char* name) {
    const char* tmp = std::getenv("TMPDIR");
    return std::string(tmp && *tmp ? tmp : "/tmp") + "/" + name + std::to_string(::getpid());
}

// An input whose net table holds n nets, and a log that selects every one of them.
void MakeFiles(int n, const std::string& ndd, const std::string& log) {
    FILE* f = std::fopen(ndd.c_str(), "w");
    for (int i = 0; i < n; ++i)
        std::fprintf(f, "%%port \"U%d-1\" \"%s\";\n", i, NetName(i).c_str());
    std::fclose(f);
    f = std::fopen(log.c_str(), "w");
    std::fprintf(f, "Ndd2Qfx Version 1.0.0.1\nFrom file : %s\n\nNets Translated : \n", ndd.c_str());
    for (int i = 0; i < n; ++i) std::fprintf(f, "\t%s\tred\n", NetName(i).c_str());
    std::fprintf(f, "\nSettings :\n\tName affix : AB\n\n\nWarning(s):\n");
    std::fclose(f);
}

void BM_LoadLogWithSelectedNets(benchmark::State& state) {
    int n = static_cast<int>(state.range(0));
    std::string ndd = TempPath("bench_log.ndd"), log = TempPath("bench_log.log");
    MakeFiles(n, ndd, log);
    for (auto _ : state) {
        ResetTranslationOptions();
        ResetLayoutModel();
        g_options.g_nBatchMode = -1;
        std::string input, output;
        LoadLogFile(log, input, output);
        benchmark::DoNotOptimize(g_options.g_pSelectedNets.data());
    }
    state.SetItemsProcessed(state.iterations() * n);
    std::remove(ndd.c_str());
    std::remove(log.c_str());
}
BENCHMARK(BM_LoadLogWithSelectedNets)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_WriteLogHeaderAllNets(benchmark::State& state) {
    int n = static_cast<int>(state.range(0));
    ResetTranslationOptions();
    ResetLayoutModel();
    for (int i = 0; i < n; ++i) {
        NetRec rec;
        std::snprintf(rec.name, sizeof rec.name, "%s", NetName(i).c_str());
        g_model.g_strNetNames.push_back(rec);
        g_options.g_pNetColors.push_back(i % 11 + 1);
    }
    g_model.g_nNetCount = n;
    FILE* sink = std::fopen("/dev/null", "w");
    for (auto _ : state) WriteLogHeader(sink);
    std::fclose(sink);
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_WriteLogHeaderAllNets)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
