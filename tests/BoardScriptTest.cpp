// Every case file tests/data/<area>/<Suite>/<Case>.case: a board built by its script, and
// each command's output compared with the text that the case gives for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "BoardScript.h"
#include "TestSupport.h"

namespace {

namespace fs = std::filesystem;
const fs::path kData = fs::path(NDD2QFX_SOURCE_DIR) / "tests" / "data";

// "area/Suite/Case" of every case file.
std::vector<std::string> Cases() {
    std::vector<std::string> cases;
    for (const char* area : {"geometry", "qfx"})
        for (const auto& e : fs::recursive_directory_iterator(kData / area))
            if (e.path().extension() == ".case")
                cases.push_back(fs::relative(e.path(), kData).replace_extension().string());
    std::sort(cases.begin(), cases.end());
    return cases;
}

class BoardCase : public ::testing::TestWithParam<std::string> {};

TEST_P(BoardCase, PrintsWhatTheCaseSays) {
    const std::string file = GetParam() + ".case";
    for (const board_script::Step& step : board_script::Run(testing_support::DataFile(file)))
        EXPECT_EQ(step.actual, step.expected) << file << ":" << step.line << " " << step.command;
}

INSTANTIATE_TEST_SUITE_P(Data, BoardCase, ::testing::ValuesIn(Cases()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param.substr(info.param.find('/') + 1);
                             std::replace(name.begin(), name.end(), '/', '_');
                             return name;
                         });

}  // namespace
