// Every folder of tests/data/cases is one run of the built program, checked against the
// files beside it (see the README there). Adding a case is adding a folder.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <sstream>

#include "TestSupport.h"

namespace {

namespace fs = std::filesystem;
using namespace testing_support;

const fs::path kCases = fs::path(NDD2QFX_SOURCE_DIR) / "tests/data/cases";

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kCases))
        if (entry.is_directory()) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string Replace(std::string text, const std::string& word, const std::string& by) {
    for (size_t p = text.find(word); p != std::string::npos; p = text.find(word, p + by.size()))
        text.replace(p, word.size(), by);
    return text;
}

class CaseRun : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        char buf[PATH_MAX];
        dir_ = realpath(scratch_.Path().c_str(), buf) ? buf : scratch_.Path();
        run_ = dir_ + "/run";
        fs::create_directory(run_);
        from_ = kCases / GetParam();
    }
    std::string CaseFile(const std::string& name) const {
        return fs::exists(from_ / name) ? ReadFile((from_ / name).string()) : std::string();
    }
    std::string Expand(const std::string& text) const {
        return Replace(Replace(text, "{dir}", run_), "{src}", NDD2QFX_SOURCE_DIR);
    }
    void CopyInputs() const {
        if (fs::exists(from_ / "in")) fs::copy(from_ / "in", run_, fs::copy_options::recursive);
        std::istringstream copies(CaseFile("copy"));
        for (std::string from, to; copies >> from >> to;)
            fs::copy_file(fs::path(NDD2QFX_SOURCE_DIR) / from, fs::path(run_) / to);
    }
    // One line of "run": the exit status wanted, then the arguments.
    void RunLine(const std::string& line, std::string& out, std::string& err) const {
        std::istringstream words(Expand(line));
        int wanted = 0;
        words >> wanted;
        std::string cmd = "cd '" + run_ + "' && env KEEP_BENCHMARK=0";
        std::istringstream env(Expand(CaseFile("env")));
        for (std::string setting; env >> setting;) cmd += " '" + setting + "'";
        cmd += " '" NDD2QFX_BINARY "'";
        for (std::string arg; words >> arg;) cmd += " '" + arg + "'";
        cmd += " >'" + dir_ + "/stdout' 2>'" + dir_ + "/stderr'";
        int status = std::system(cmd.c_str());
        EXPECT_EQ(WIFEXITED(status) ? WEXITSTATUS(status) : -1, wanted) << line;
        out += ReadFile(dir_ + "/stdout");
        err += ReadFile(dir_ + "/stderr");
    }
    // "lines/NAME": blocks of "> REGEX" and the lines of NAME it must select, in order; a
    // regex with a group compares the group's text only.
    void CheckSelectedLines(const fs::path& expected, const std::string& actualPath) const {
        std::vector<std::string> actual = SplitLines(ReadFile(actualPath));
        std::vector<std::string> block = SplitLines(Expand(ReadFile(expected.string())));
        for (size_t i = 0; i < block.size();) {
            ASSERT_EQ(block[i].compare(0, 2, "> "), 0) << expected << ": " << block[i];
            const std::string pattern = block[i].substr(2);
            std::regex select(pattern);
            std::vector<std::string> want, got;
            for (++i; i < block.size() && block[i].compare(0, 2, "> ") != 0; ++i)
                want.push_back(block[i]);
            for (const std::string& line : actual) {
                std::smatch m;
                if (std::regex_search(line, m, select))
                    got.push_back(m.size() > 1 ? m[1].str() : line);
            }
            EXPECT_EQ(got, want) << expected << " selected by " << pattern;
        }
    }
    // "part/NAME": pieces of text that the file holds, separated by "--" lines.
    static void ExpectParts(const std::string& got, const std::string& parts,
                            const std::string& rel) {
        for (size_t from = 0; from < parts.size();) {
            size_t end = parts.find("\n--\n", from);
            if (end == std::string::npos) end = parts.size();
            const std::string piece = parts.substr(from, end - from + (end < parts.size()));
            from = end + 4;
            EXPECT_NE(got.find(piece), std::string::npos) << rel << " lacks:\n" << piece;
        }
    }
    void CheckResults(const std::string& out, const std::string& err) const {
        if (fs::exists(from_ / "stdout")) {
            EXPECT_EQ(out, Expand(CaseFile("stdout")));
        }
        if (fs::exists(from_ / "stderr")) {
            EXPECT_EQ(err, Expand(CaseFile("stderr")));
        }
        std::istringstream absent(CaseFile("absent"));
        for (std::string name; absent >> name;)
            EXPECT_FALSE(fs::exists(run_ + "/" + name)) << name << " should not exist";
        std::istringstream same(CaseFile("same"));
        for (std::string a, b; same >> a >> b;)
            EXPECT_EQ(ReadFile(run_ + "/" + b), ReadFile(run_ + "/" + a)) << a << " and " << b;
        for (const std::string kind : {"out", "head", "tail", "part", "lines"}) {
            if (!fs::exists(from_ / kind)) continue;
            for (const auto& e : fs::recursive_directory_iterator(from_ / kind)) {
                if (!e.is_regular_file()) continue;
                std::string rel = fs::relative(e.path(), from_ / kind).string();
                std::string actual = run_ + "/" + rel;
                ASSERT_TRUE(fs::exists(actual)) << rel << " was not written";
                if (kind == "lines") {
                    CheckSelectedLines(e.path(), actual);
                    continue;
                }
                const std::string got = ReadFile(actual);
                const std::string want = Expand(ReadFile(e.path().string()));
                if (kind == "out") {
                    EXPECT_EQ(got, want) << rel;
                } else if (kind == "head") {
                    EXPECT_EQ(got.substr(0, want.size()), want) << rel;
                } else if (kind == "tail") {
                    EXPECT_EQ(got.substr(got.size() - std::min(got.size(), want.size())), want)
                        << rel;
                } else {
                    ExpectParts(got, want, rel);
                }
            }
        }
    }

    ScratchDir scratch_;
    std::string dir_, run_;
    fs::path from_;
};

TEST_P(CaseRun, GivesTheExpectedFiles) {
    CopyInputs();
    std::string out, err;
    std::vector<std::string> runs = SplitLines(CaseFile("run"));
    ASSERT_FALSE(runs.empty()) << "a case needs a run file";
    for (const std::string& line : runs) {
        std::istringstream words(line);
        std::string first, from, to;
        words >> first >> from >> to;
        if (first == "cp")  // keeps a file of one run from the next
            fs::copy_file(run_ + "/" + from, run_ + "/" + to);
        else
            RunLine(line, out, err);
    }
    CheckResults(out, err);
}

std::string TestName(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Cases, CaseRun, ::testing::ValuesIn(CaseNames()), TestName);

}  // namespace
