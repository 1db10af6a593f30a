#include "ibis/ModelTable.h"

#include "ndd/NddTokens.h"

void BuildModelTable(base::StringMap<std::string>& table) {
    static const char* const kRows[][2] = {
        {"Input", "nd_pc nd_gc nd_in gnd nd_out_of_in ;"},
        {"Output", "nd_pu nd_pd nd_out nd_in gnd nd_pc nd_gc ;"},
        {"I/O", "nd_pu nd_pd nd_out nd_in nd_en gnd nd_out_of_in nd_pc nd_gc ;"},
        {"3-state", "nd_pu nd_pd nd_out nd_in nd_en gnd nd_pc nd_gc ;"},
        {"Open_drain", "nd_pd nd_out nd_in gnd nd_pc nd_gc ;"},
        {"I/O_open_drain", "nd_pd nd_out nd_in nd_en gnd nd_out_of_in nd_pc nd_gc ;"},
        {"Open_sink", "nd_pd nd_out nd_in gnd nd_pc nd_gc ;"},
        {"I/O_open_sink", "nd_pd nd_out nd_in nd_en gnd nd_out_of_in nd_pc nd_gc ;"},
        {"Open_source", "nd_pu nd_out nd_in gnd nd_pc nd_gc ;"},
        {"I/O_open_source", "nd_pu nd_out nd_in nd_en gnd nd_out_of_in nd_pc nd_gc ;"},
        {"Input_ECL", "nd_pc nd_gc nd_in gnd nd_out_of_in ;"},
        {"Output_ECL", "nd_pu nd_out nd_in gnd nd_pc nd_gc ;"},
        {"I/O_ECL", "nd_pu nd_pd nd_out nd_in nd_en gnd nd_out_of_in nd_pc nd_gc ;"},
        {"3-state_ECL", "nd_pu nd_pd nd_out nd_in nd_en gnd nd_pc nd_gc ;"},
    };
    table.Clear();
    for (const auto& row : kRows) table.Set(row[0], row[1]);
}

const base::StringMap<std::string>& ModelTable() {
    static const base::StringMap<std::string> table = [] {
        base::StringMap<std::string> built(base::kComponentBuckets);
        BuildModelTable(built);
        return built;
    }();
    return table;
}

std::vector<std::string> ModelNodeTokens(const std::string& list) {
    std::vector<std::string> tokens;
    std::string rest = list;
    while (true) {
        int pos = kNoPosition;
        std::string token = NddGetToken(rest, pos, false);
        if (token.empty() || token == ";") break;
        tokens.push_back(token);
        rest = Mid(rest, pos);
    }
    return tokens;
}

std::vector<std::string> ModelNodesOf(const std::string& modelType, bool* found) {
    const std::string* list = ModelTable().Find(modelType);
    if (found) *found = list != nullptr;
    return list ? ModelNodeTokens(*list) : std::vector<std::string>();
}
