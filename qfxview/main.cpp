// qfxview: checks a QFX deck and, with -o, draws it. Findings and a summary go to standard
// output; the exit status is 0 with no error, 1 with any, 2 for a wrong command line.
#include <sys/resource.h>
#include <QDir>
#include <QGuiApplication>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "deck/DeckChecker.h"
#include "deck/DeckLines.h"
#include "deck/DeckScan.h"
#include "draw/Pictures.h"
#include "draw/ToolkitLeaks.h"

namespace {

// The toolkit's own chatter (no runtime folder, no display) is no concern of a user here.
void QuietToolkit(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "qfxview: %s\n", message.toLocal8Bit().constData());
}

struct Arguments {
    std::string deck;
    std::string outDir;
    qfxview::PictureOptions pictures;
    bool stats = false;
};

const char kUsage[] =
    "usage: qfxview DECK.qfx [-o DIR] [--width PIXELS] [--svg] [--nodes] [--stats]\n"
    "  checks the deck; with -o also writes a PNG per conductor layer and stack.png to DIR\n"
    "  --width   width of the layer pictures (default 1600)\n"
    "  --svg     an SVG of each layer beside its PNG\n"
    "  --nodes   marks the nodes\n"
    "  --stats   time and peak memory on standard error\n";

bool ParseArguments(int argc, char** argv, Arguments& args) {
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        if (a == "-o" && i + 1 < argc) {
            args.outDir = argv[++i];
        } else if (a == "--width" && i + 1 < argc) {
            args.pictures.width = std::atoi(argv[++i]);
            if (args.pictures.width < 64 || args.pictures.width > 16384) return false;
        } else if (a == "--svg") {
            args.pictures.svg = true;
        } else if (a == "--nodes") {
            args.pictures.nodeMarks = true;
        } else if (a == "--stats") {
            args.stats = true;
        } else if (a.empty() || a[0] == '-' || !args.deck.empty()) {
            return false;
        } else {
            args.deck = a;
        }
    }
    return !args.deck.empty();
}

// First pass: the checks, and what drawing needs gathered on the way.
bool CheckAndScan(const Arguments& args, qfxview::DeckScan& scan) {
    qfxview::Findings findings;
    qfxview::DeckLines lines(args.deck);
    if (!lines.IsOpen()) {
        std::fprintf(stdout, "%s: error: cannot open the deck: %s\n", args.deck.c_str(),
                     std::strerror(errno));
        return false;
    }
    qfxview::StatementReader reader(lines);
    qfxview::DeckChecker checker(findings);
    const bool drawing = !args.outDir.empty();
    scan.opened = true;
    qfxview::Statement statement;
    while (reader.Next(statement)) {
        checker.Take(statement);
        if (drawing) scan.Take(statement);
    }
    checker.Finish(lines.Number() > 0 ? lines.Number() : 1, reader.CutOff());
    for (const std::string& line : findings.Lines(args.deck)) std::printf("%s\n", line.c_str());
    std::printf("%s\n", qfxview::SummaryLine(args.deck, checker.Counts(), findings).c_str());
    return findings.Errors() == 0;
}

bool Draw(const Arguments& args, const qfxview::DeckScan& scan, int argc, char** argv) {
    // Nothing is ever shown: the painter needs no display.
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(QuietToolkit);
    QGuiApplication app(argc, argv);
    if (!QDir().mkpath(QString::fromStdString(args.outDir))) {
        std::printf("%s: error: cannot make the folder\n", args.outDir.c_str());
        return false;
    }
    std::string error;
    std::vector<std::string> files =
        qfxview::WritePictures(args.deck, scan, args.pictures, args.outDir, error);
    if (files.empty()) {
        std::printf("%s: error: %s\n", args.deck.c_str(), error.c_str());
        return false;
    }
    for (const std::string& file : files) std::printf("wrote %s\n", file.c_str());
    return true;
}

void PrintStats(std::chrono::steady_clock::time_point start) {
    double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    std::fprintf(stderr, "qfxview: %.2f s, peak memory %.1f MB\n", seconds,
                 static_cast<double>(usage.ru_maxrss) / 1024.0);
}

}  // namespace

int main(int argc, char** argv) {
    const auto start = std::chrono::steady_clock::now();
    Arguments args;
    if (!ParseArguments(argc, argv, args)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    qfxview::DeckScan scan;
    bool clean = CheckAndScan(args, scan);
    bool drawn = args.outDir.empty() || !scan.opened || Draw(args, scan, argc, argv);
    if (args.stats) PrintStats(start);
    return clean && drawn ? 0 : 1;
}
