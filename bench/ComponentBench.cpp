// Figures for the component passes on generated designs: reading placements and gates,
// reading a large IBIS file, binding pins to nodes and writing the component sections.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "base/TextFile.h"
#include "ibis/CircuitWriter.h"
#include "ibis/ComponentNodes.h"
#include "ibis/IbisReader.h"
#include "ibis/LinkageWriter.h"
#include "ibis/ModelAssignment.h"
#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"

namespace {

// n two-pin resistors on a grid, each with a value, and a gate with both pin nets.
std::string Design(int n) {
    std::string text =
        "%packagedef \"CHIP\"\n%pinloc\n \"1\" \"SMD\" -80000 0 0;\n"
        " \"2\" \"SMD\" 80000 0 0;\n%package_drc_bound 0 0 1 1;\n";
    char line[256];
    for (int i = 0; i < n; ++i) {
        std::snprintf(line, sizeof line,
                      "%%partinst \"R%d\" \"CHIP\" %d %d 0 %%topplace ;\n"
                      "%%prop \"ICX_VALUE\" \"RES %dK\"\n",
                      i, (i % 1000) * 300000, (i / 1000) * 300000, i % 100 + 1);
        text += line;
    }
    for (int i = 0; i < n; ++i) {
        std::snprintf(line, sizeof line,
                      "%%gate \"G%d\"\n%%prop \"ICX_REF_DES\" \"R%d\"\n"
                      "%%prop \"ICX_PART_NUMBER\" \"RES\"\n%%port \"1\" \"N%d\"\n"
                      "%%prop \"ICX_PIN_NUMBER\" \"1\"\n%%port \"2\" \"N%d\"\n"
                      "%%prop \"ICX_PIN_NUMBER\" \"2\"\n",
                      i, i, i % 500, (i + 1) % 500);
        text += line;
    }
    return text;
}

void ReadComponents(const std::string& text) {
    auto shared = std::make_shared<const std::string>(text);
    base::LineStream stream(shared);
    ReadPackageDefs(stream);
    stream.Rewind();
    GetCompPlacementInfo(stream, 1);
    stream.Rewind();
    GetPinNetInfo(stream, "/tmp/board.ndd");
}

void BM_PlacementsAndGates(benchmark::State& state) {
    std::string text = Design(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ResetLayoutModel();
        ReadComponents(text);
        benchmark::DoNotOptimize(g_model.g_mapComponents.Size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["bytes"] = static_cast<double>(text.size());
}
BENCHMARK(BM_PlacementsAndGates)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

// An IBIS file of n pins with a full pin mapping and one model per ten pins.
std::string IbisText(int n) {
    std::string text = "[IBIS Ver] 4.1\n[Component] BIG\n[Pin] signal model\n";
    char line[128];
    for (int i = 0; i < n; ++i) {
        std::snprintf(line, sizeof line, "P%d S%d M%d 0.1 1n 1p\n", i, i, i / 10);
        text += line;
    }
    text += "[Pin Mapping] pd pu gc pc\n";
    for (int i = 0; i < n; ++i) {
        std::snprintf(line, sizeof line, "P%d GNDBUS VCCBUS\n", i);
        text += line;
    }
    text += "P0 NC VCCBUS\n";
    for (int m = 0; m < n / 10; ++m) {
        std::snprintf(line, sizeof line, "|\n[Model] M%d\nModel_type I/O\nC_comp 1p 1p 1p\n", m);
        text += line;
    }
    return text;
}

void BM_ParseIbisFile(benchmark::State& state) {
    int n = static_cast<int>(state.range(0));
    std::string path = "/tmp/ndd2qfx_bench_big.ibs";
    FILE* f = std::fopen(path.c_str(), "w");
    std::string text = IbisText(n);
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
    ComponentRec c;
    c.isActive = 1;
    c.ibisFile = path;
    for (int i = 0; i < n; ++i) {
        PinRec pin;
        pin.name = "P" + std::to_string(i);
        c.pins.push_back(pin);
    }
    for (auto _ : state) {
        ParseIbisFile(c);
        benchmark::DoNotOptimize(c.mappingComplete);
    }
    std::remove(path.c_str());
    state.SetItemsProcessed(state.iterations() * n);
    state.counters["bytes"] = static_cast<double>(text.size());
}
BENCHMARK(BM_ParseIbisFile)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_BindAndWrite(benchmark::State& state) {
    int n = static_cast<int>(state.range(0));
    std::string text = Design(n);
    FILE* sink = std::fopen("/dev/null", "w");
    for (auto _ : state) {
        state.PauseTiming();
        ResetLayoutModel();
        g_model.g_aLayers.reset(new LayerRec[kMaxLayers]);
        g_model.g_aLayers[0].kind = kLayerSignal;
        g_model.g_nLayerCount = 1;
        ReadComponents(text);
        // A node under every pin, as the pin pass would leave them.
        g_model.g_mapComponents.ForEach([](const std::string&, ComponentRec& c) {
            for (PinRec& pin : c.pins)
                AddNode(nullptr, c.x + pin.x, c.y + pin.y, 0, 1, 0, nullptr, 0);
        });
        RebuildNodeArray();
        RebuildNodeIndex();
        ModelAssignment models(&g_model.g_mapComponents, "o", nullptr, nullptr, nullptr, "i");
        models.ResolveModels();
        state.ResumeTiming();
        ComponentNodes nodes(&g_model.g_mapComponents, &models, "i", sink, sink, "");
        nodes.BindPinsToNodes(models.blocks);
        WriteCircuitDescription(sink, &models);
        WriteLinkageDescription(sink, sink, &nodes);
    }
    std::fclose(sink);
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_BindAndWrite)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

}  // namespace
