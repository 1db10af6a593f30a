#include "app/Ndd2QfxApp.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>

#include "Version.h"
#include "app/CommandLine.h"
#include "app/LogLoader.h"
#include "app/OutputGuard.h"
#include "app/ProcessHooks.h"
#include "app/TerminalProgress.h"
#include "app/TranslationDriver.h"
#include "app/Usage.h"
#include "base/FileChecks.h"
#include "base/ParentPipe.h"
#include "base/Platform.h"
#include "base/ScopedClassicLocale.h"
#include "model/BatchHost.h"
#include "model/ReportMessage.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"

namespace {

// Trailing blanks and separators are cut from the current folder.
std::string WorkingFolder() {
    std::string folder = base::CurrentFolder();
    while (!folder.empty() &&
           (folder.back() == ' ' || folder.back() == '/' || folder.back() == '\\'))
        folder.pop_back();
    return folder;
}

std::string FolderOf(const std::string& path) {
    size_t sep = base::LastSeparator(path);
    return sep == std::string::npos ? std::string() : path.substr(0, sep);
}

std::string InFolder(const std::string& folder, const std::string& name) {
    return folder + base::kSep + name;
}

bool IsAbsolute(const std::string& path) {
    return !path.empty() && path[0] == base::kSep;
}

// "-h", "-help", "--help" and "/?" ask for the usage text, wherever they stand.
bool IsHelpRequest(const std::string& arg) {
    for (const char* form : {"-h", "-help", "--help", "/?"})
        if (EqualsNoCase(arg, form)) return true;
    return false;
}

// The parent tool hands the case over the pipe; a failure leaves its words in the trace only.
bool TakeCaseFromParent(std::string& logFile) {
    std::string words;
    if (base::GetCaseFromParent(&words, logFile, "I'm Gantry", true)) return true;
    TraceStep(true, "faile to get case name from pipe");
    while (!words.empty() && words.back() == '\n') words.pop_back();
    if (!words.empty()) TraceStep(true, "%s", words.c_str());
    return false;
}

}  // namespace

CNdd2QfxApp::~CNdd2QfxApp() {
    if (!g_options.g_pLogFile) return;
    std::string when = base::FormatTime("%A, %B %d, %Y ,%H:%M:%S  ", std::time(nullptr));
    std::fprintf(g_options.g_pLogFile, "Application Ended At : %s", when.c_str());
    std::fclose(g_options.g_pLogFile);
    g_options.g_pLogFile = nullptr;
}

// The log's folder, else the input's, then the output's, decides the working folder; bare
// names are made absolute with the current folder.
void CNdd2QfxApp::DecideFolder(std::string& folder) {
    TranslationOptions& o = g_options;
    // A relative name means what it means in the shell that started the program: it is
    // made absolute from the start folder before the working folder moves.
    for (std::string* name : {&o.g_strCmdLogFile, &o.g_strCmdInputFile, &o.g_strCmdOutputFile})
        if (!name->empty() && base::HasSeparator(*name) && !IsAbsolute(*name))
            *name = base::AbsolutePath(InFolder(folder, *name));
    if (!o.g_strCmdLogFile.empty()) {
        if (!base::HasSeparator(o.g_strCmdLogFile)) {
            o.g_strCmdLogFile = InFolder(folder, o.g_strCmdLogFile);
            return;
        }
        folder = FolderOf(o.g_strCmdLogFile);
    } else if (o.g_strCmdInputFile.empty()) {
        return;
    } else {
        // A bare name goes into the current folder even when the input's folder has already
        // taken over as the working folder.
        const std::string current = folder;
        for (std::string* name : {&o.g_strCmdInputFile, &o.g_strCmdOutputFile}) {
            if (name->empty()) continue;
            if (!base::HasSeparator(*name))
                *name = InFolder(current, *name);
            else
                folder = FolderOf(*name);
        }
    }
    base::ChangeFolder(folder.empty() ? std::string(1, base::kSep) : folder);
}

int CNdd2QfxApp::InitInstance() {
    // Numbers on the command line and in a loaded log are in the "C" form.
    base::ScopedClassicLocale classicNumbers;
    TranslationOptions& o = g_options;
    o.g_strProgramFolder = base::ProgramFolder(m_args.empty() ? nullptr : m_args[0].c_str());
    TraceStep(false, "start parse cmd line for Ndd");
    int result =
        ParseCommandLine(m_args, o.g_strCmdLogFile, o.g_strCmdInputFile, o.g_strCmdOutputFile);
    if (result == kCmdUnknownExtension) {
        TraceStep(true, "Unknown file extension name(%d)", result);
        ReportMessage("Unknown file extension name.");
        return 0;
    }
    if (result == kCmdPipeStart) {
        if (!TakeCaseFromParent(o.g_strCmdLogFile)) return 0;
        result = kCmdFilesTaken;
    }
    for (std::string* p : {&o.g_strCmdLogFile, &o.g_strCmdInputFile, &o.g_strCmdOutputFile})
        *p = base::NativeSeparators(*p);
    std::string folder = WorkingFolder();
    DecideFolder(folder);
    TraceStep(true, "folder file name:%s", folder.c_str());
    TraceStep(true, "log file name:%s", o.g_strCmdLogFile.c_str());
    TraceStep(true, "input file name:%s", o.g_strCmdInputFile.c_str());
    TraceStep(true, "output file name:%s", o.g_strCmdOutputFile.c_str());
    if (o.g_nBatchMode != 0) OpenErrorLog(folder);
    if (result == kCmdFilesTaken && !o.g_strCmdInputFile.empty() && o.g_strCmdOutputFile.empty())
        o.g_strCmdOutputFile = DefaultOutputName(o.g_strCmdInputFile);

    o.g_lstLogNets.clear();
    o.g_lstLogColors.clear();
    BatchHost batchHost;
    TranslationDriver driver(batchHost);
    o.g_strInputFile = o.g_strCmdInputFile;
    o.g_strOutputFile = o.g_strCmdOutputFile;
    o.g_nQuiet = o.g_nBatchMode;
    if (!o.g_strCmdLogFile.empty()) {
        LoadLogFile(o.g_strCmdLogFile, o.g_strCmdInputFile, o.g_strCmdOutputFile);
        driver.RereadInput();
    }

    if (o.g_nBatchMode != 0) {
        TraceStep(true, "batch mode");
        o.g_strInputFile = o.g_strCmdInputFile;
        o.g_strOutputFile = o.g_strCmdOutputFile;
        TerminalProgress line(stderr);
        // A batch run asks nothing, so it is never declined; a declined dialog run ends here.
        TranslateStatus status = driver.Translate(o.g_strInputFile, o.g_strOutputFile);
        if (status == TranslateStatus::Declined) std::exit(0);
        m_bSucceeded = status == TranslateStatus::Done;
    } else {
        TraceStep(true, "UI mode");
        if (const MainDialogHook& runMainDialog = GetMainDialogRunner()) {
            runMainDialog();
            return -1;
        }
        std::fprintf(stderr,
                     "ndd2qfx: this build has no dialog yet; only batch runs (-NoUI, -b) are "
                     "available\n");
        std::fflush(nullptr);
        std::_Exit(kNoDialogStatus);
    }
    std::string reason;
    if (!base::CloseWritten(o.g_pErrorLog, reason) && !o.g_bErrorLogFailed) {
        o.g_bErrorLogFailed = true;
        std::fprintf(stderr, "Cannot write file : %s (%s)\n", o.g_strErrorLogPath.c_str(),
                     reason.c_str());
    }
    if (o.g_bErrorLogFailed) m_bSucceeded = false;
    return -1;
}

// error.log is emptied when it is opened: never when it is a file the run is about to read.
void CNdd2QfxApp::OpenErrorLog(const std::string& folder) {
    TranslationOptions& o = g_options;
    o.g_strErrorLogPath = InFolder(folder, "error.log");
    std::string clash = FindErrorLogClash(o.g_strErrorLogPath);
    if (!clash.empty()) {
        ReportMessage(clash);
        return;
    }
    o.g_pErrorLog = std::fopen(o.g_strErrorLogPath.c_str(), "w+");
}

// The process's status for a run that went to its end: 0 whatever the translation did,
// unless "-strict" asked for the truth.
static int FinishedStatus(const CNdd2QfxApp& app) {
    return g_options.g_bStrictStatus && !app.Succeeded() ? CNdd2QfxApp::kStrictFailureStatus : 0;
}

int RunProcess(int argc, char** argv) {
    std::vector<std::string> args(argv, argv + argc);
    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (IsHelpRequest(a)) {
            std::fputs(UsageText().c_str(), stdout);
            return 0;
        }
        if (a.size() < 2 || (a[0] != '-' && a[0] != '\\')) continue;
        std::string rest = a.substr(1);
        if (EqualsNoCase(rest, "v")) {
            std::printf("%s %s\n", NDD2QFX_PRODUCT_NAME, NDD2QFX_PRODUCT_VERSION);
            return 0;
        }
        if (EqualsNoCase(rest, "b")) {
            int status = 0;
            std::thread runner([&] {
                CNdd2QfxApp app(args);
                int started = app.InitInstance();
                app.ExitInstance();
                status = started == 0 ? -1 : FinishedStatus(app);
            });
            runner.join();
            return status;
        }
    }
    auto start = [&args] {
        CNdd2QfxApp app(args);
        int started = app.InitInstance();
        app.ExitInstance();
        return started == 0 ? -2 : FinishedStatus(app);
    };
    const UiShellHook& shell = GetUiShell();
    return shell ? shell(argc, argv, start) : start();
}
