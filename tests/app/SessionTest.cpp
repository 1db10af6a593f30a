// Translations in one process leave nothing behind: each writes the files that a fresh
// process writes for the same board, also when the process runs under a comma-decimal locale
// as a toolkit application does.
#include <gtest/gtest.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "app/Ndd2QfxApp.h"
#include "model/TranslationOptions.h"

namespace {

using namespace testing_support;

const char kCommaLocale[] = "de_DE.UTF-8";

// A board in a folder of its own, with the example's side files beside it.
struct Board {
    const char* name;
    const char* source;  // under the source folder
};

const Board kExample{"example", "examples/board.ndd"};
const Board kSecond{"second", "tests/data/session/second-board.ndd"};

// What a translation leaves in its folder. The log's date line differs from run to run: it
// is kept apart.
struct Files {
    std::string qfx, log, errorLog, date;
};

void ExpectSameFiles(const Files& actual, const Files& expected) {
    EXPECT_EQ(actual.qfx, expected.qfx);
    EXPECT_EQ(actual.log, expected.log);
    EXPECT_EQ(actual.errorLog, expected.errorLog);
}

class SessionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        for (const Board& b : {kExample, kSecond}) {
            std::string folder = Folder(b);
            ASSERT_EQ(std::system(("mkdir -p '" + folder + "/IBISModels'").c_str()), 0);
            WriteFile(folder + "/board.ndd",
                      ReadFile(NDD2QFX_SOURCE_DIR "/" + std::string(b.source)));
            WriteFile(folder + "/traces", ReadFile(NDD2QFX_SOURCE_DIR "/examples/traces"));
            WriteFile(folder + "/layout.hkp", ReadFile(NDD2QFX_SOURCE_DIR "/examples/layout.hkp"));
            WriteFile(folder + "/IBISModels/SN74LVC1G14.ibs",
                      ReadFile(NDD2QFX_SOURCE_DIR "/examples/IBISModels/SN74LVC1G14.ibs"));
        }
    }

    std::string Folder(const Board& b) const { return dir_.File(b.name); }

    // The example's command line of run.sh, for any board.
    std::vector<std::string> Args(const Board& b) const {
        std::string f = Folder(b);
        return {"-NoUI",           "-traces",        f + "/traces",    "-hkp",
                f + "/layout.hkp", f + "/board.ndd", f + "/board.qfx", "20"};
    }

    // Reads and removes what the translation wrote.
    Files Take(const Board& b) const {
        std::string f = Folder(b);
        Files files{ReadFile(f + "/board.qfx"), ReadFile(f + "/board.qfx.log"),
                    ReadFile(f + "/error.log"), ""};
        std::vector<std::string> lines = SplitLines(files.log);
        if (lines.size() > 3) {
            files.date = lines[3];
            lines[3].clear();
        }
        files.log.clear();
        for (const std::string& l : lines) files.log += l + "\n";
        for (const char* name : {"/board.qfx", "/board.qfx.log", "/error.log"})
            std::remove((f + name).c_str());
        return files;
    }

    Files InFreshProcess(const Board& b) const {
        EXPECT_EQ(RunProgram(Folder(b), Args(b)), 0);
        return Take(b);
    }

    // One more translation in this process, the way the program's start routine runs it.
    Files InThisProcess(const Board& b) const {
        std::vector<std::string> args = Args(b);
        args.insert(args.begin(), NDD2QFX_BINARY);
        char here[4096];
        EXPECT_NE(getcwd(here, sizeof here), nullptr);
        {
            CNdd2QfxApp app(args);
            EXPECT_EQ(app.InitInstance(), -1);
            app.ExitInstance();
        }
        EXPECT_EQ(chdir(here), 0);
        // The process would end here and close error.log.
        if (g_options.g_pErrorLog) std::fclose(g_options.g_pErrorLog);
        g_options.g_pErrorLog = nullptr;
        return Take(b);
    }

    ScratchDir dir_;
};

TEST_F(SessionTest, EachTranslationWritesWhatAFreshProcessWrites) {
    Files example = InFreshProcess(kExample);
    Files second = InFreshProcess(kSecond);
    ASSERT_NE(example.qfx, second.qfx);
    ExpectSameFiles(InThisProcess(kExample), example);
    ExpectSameFiles(InThisProcess(kSecond), second);
    ExpectSameFiles(InThisProcess(kExample), example);
}

// Restores the process's locale at the end of a test.
class LocaleScope {
  public:
    LocaleScope() : saved_(std::setlocale(LC_ALL, nullptr)) {}
    ~LocaleScope() { std::setlocale(LC_ALL, saved_.c_str()); }

  private:
    std::string saved_;
};

TEST_F(SessionTest, ACommaDecimalLocaleWritesTheSameBytes) {
    Files expected = InFreshProcess(kExample);
    LocaleScope restore;
    if (!std::setlocale(LC_ALL, kCommaLocale))
        GTEST_SKIP() << "locale " << kCommaLocale
                     << " is not installed; tools_common.sh generates it";
    char number[16];
    std::snprintf(number, sizeof number, "%.1f", 1.5);
    ASSERT_STREQ(number, "1,5");
    Files actual = InThisProcess(kExample);
    ExpectSameFiles(actual, expected);
    // The date names the day in English, as in a fresh process: "Tuesday  November 24 ...".
    EXPECT_EQ(actual.date.substr(0, actual.date.find(' ')),
              expected.date.substr(0, expected.date.find(' ')));
}

}  // namespace
