#include "app/LogLoader.h"

#include <cstdio>
#include <cstdlib>

#include "app/SettingsPage.h"
#include "base/Platform.h"
#include "base/ScopedClassicLocale.h"
#include "model/LayoutModel.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"

namespace {

enum class Block { None, Nets, Layers, Settings };

// The log is read in pieces of the log buffer, as a fixed line buffer would read it.
class LogLines {
  public:
    explicit LogLines(base::LineStream& stream) : stream_(stream) {}
    bool Any(std::string& line) { return stream_.ReadLine(line, base::kLogLineBuffer); }
    // Passes over lines that are only a line end.
    bool NonEmpty(std::string& line) {
        while (Any(line))
            if (line != "\n") return true;
        return false;
    }

  private:
    base::LineStream& stream_;
};

Block HeadingOf(const std::string& line) {
    if (StartsWithNoCase(line, "Nets Translated :")) return Block::Nets;
    if (StartsWithNoCase(line, "Layer Arrangement :")) return Block::Layers;
    if (StartsWithNoCase(line, "Settings :")) return Block::Settings;
    return Block::None;
}

// A path of the head: trimmed, separators made native, a bare name put into the log's
// folder. It replaces the name in force when it differs, ignoring case.
void TakePath(const std::string& rest, const std::string& logFolder, std::string& file) {
    std::string name = Trim(rest, " \t\r\n");
    while (!name.empty() && std::string(" \t\r\n/\\").find(name.back()) != std::string::npos)
        name.pop_back();
    if (name.empty()) return;
    name = base::NativeSeparators(name);
    if (!base::HasSeparator(name)) name = logFolder + base::kSep + name;
    if (!EqualsNoCase(name, file)) file = name;
}

void SetAllNetsFromLog() {
    g_options.g_bAllNets = 1;
    g_options.g_bAllNetsFromLog = 1;
    g_options.g_bSelectedOnly = 0;
}

// The first word of text, or "" when it holds none.
std::string FirstWord(const std::string& text) {
    size_t b = text.find_first_not_of(" \t\r\n\v\f");
    if (b == std::string::npos) return std::string();
    size_t e = text.find_first_of(" \t\r\n\v\f", b);
    return text.substr(b, e == std::string::npos ? std::string::npos : e - b);
}

// A net line: the net's name and its colour name, each cut to a 128-byte field.
void TakeNetLine(const std::string& line) {
    std::string net = FirstWord(line);
    if (net.empty()) return;
    size_t after = line.find(net) + net.size();
    std::string color = FirstWord(line.substr(after));
    g_options.g_lstLogNets.push_back(net.substr(0, 127));
    g_options.g_lstLogColors.push_back(color.substr(0, 127));
}

Block ReadNetBlock(LogLines& lines) {
    std::string line;
    while (lines.NonEmpty(line)) {
        Block heading = HeadingOf(line);
        if (heading == Block::Settings || heading == Block::Layers) return heading;
        if (StartsWithNoCase(line, "\tAll nets are selected"))
            SetAllNetsFromLog();
        else
            TakeNetLine(line);
    }
    return Block::None;
}

// The chosen nets of the log, bound to the input's net table, with the log's colours over
// the defaults.
void SelectLogNets(const std::string& inputFile) {
    if (auto stream = OpenNdd(inputFile)) ParseNet(*stream);
    AssignNetColors();
    TakeLogNetSelection();
}

double NumberAt(const std::string& line, size_t position) {
    return position < line.size() ? std::atof(line.c_str() + position) : 0.0;
}

bool TakeSwitchLine(const std::string& line) {
    TranslationOptions& o = g_options;
    if (StartsWithNoCase(line, "\tNo signal traces on Power Plane"))
        o.g_bAllowSignalOnPlane = 0;
    else if (StartsWithNoCase(line, "\tAllow signal traces on Power Plane"))
        o.g_bAllowSignalOnPlane = 1;
    else if (StartsWithNoCase(line, "\tAllow patches on Signal layers"))
        o.g_bAllowPatches = 1;
    else if (StartsWithNoCase(line, "\tAdd pseudo plane(s) if lack of plane"))
        o.g_bAddPseudoPlane = 1;
    else if (StartsWithNoCase(line, "\tExclude etches with no net names") ||
             StartsWithNoCase(line, "\tExclude elements with no net names"))
        o.g_nIncludeNoNetEtches = 0;
    else if (StartsWithNoCase(line, "\tInclude etches with no net names") ||
             StartsWithNoCase(line, "\tInclude elements with no net names"))
        o.g_nIncludeNoNetEtches = 1;
    else if (StartsWithNoCase(line, "\tExclude void shapes enclosing vias")) {
        o.g_bExcludeVoidEnclosingVia = 1;
        o.g_dbViaVoidArea = 10.0;
        if (line.size() > 37)
            std::sscanf(line.c_str(),
                        "\tExclude void shapes enclosing vias with area less than %lf",
                        &o.g_dbViaVoidArea);
    } else if (StartsWithNoCase(line, "\tDistinguish shapes of different nets by color"))
        o.g_bColorShapesByNet = 1;
    else
        return false;
    return true;
}

bool TakeValueLine(const std::string& line) {
    TranslationOptions& o = g_options;
    const std::string gap =
        "\tGenerate Gap around Traces with Gap Size in terms of percentage of Trace Width : ";
    const std::string valueField = "\tName of the Data Field for Component Values :";
    const std::string spatial = "\tSpatial range : (";
    const std::string affix = "\tName affix : ";
    if (StartsWithNoCase(line, "\tExclude void shapes with area less than"))
        o.g_dbVoidAreaLimit = NumberAt(line, 41);
    else if (StartsWithNoCase(line, "\tUnion traces shorter than"))
        o.g_dbTraceUnionLength = NumberAt(line, 27);
    else if (StartsWithNoCase(line, "\tExclude traces shorter than"))
        o.g_dbTraceUnionLength = NumberAt(line, 29);
    else if (StartsWithNoCase(line, "\tMaximum arc length replaced by line segment"))
        o.g_dbMaxArcLength = NumberAt(line, 45);
    else if (StartsWithNoCase(line, "\tTranslate component linkages"))
        o.g_bTranslateLinkages = o.g_bWriteLinkages = 1;
    else if (StartsWithNoCase(line, "\tTranslate pads"))
        o.g_nTranslatePads = 1;
    else if (StartsWithNoCase(line, gap)) {
        std::string word = FirstWord(line.substr(gap.size()));
        if (!word.empty()) o.g_strTraceGapPercent = word;
    } else if (StartsWithNoCase(line, valueField)) {
        std::string word = FirstWord(line.substr(valueField.size()));
        if (!word.empty()) o.g_strValueFieldName = word;
    } else if (StartsWithNoCase(line, spatial)) {
        std::sscanf(line.c_str() + spatial.size(), "%lf, %lf) -- (%lf, %lf", &o.g_dbSpatialMinX,
                    &o.g_dbSpatialMinY, &o.g_dbSpatialMaxX, &o.g_dbSpatialMaxY);
        o.g_bSpatialLimit = 1;
    } else if (StartsWithNoCase(line, affix)) {
        std::string rest = line.substr(affix.size());
        if (!rest.empty() && rest.back() == '\n') rest.pop_back();
        o.g_strNameAffix = rest.substr(0, 4);
    } else if (StartsWithNoCase(line, "\tAppend net name to objects"))
        o.g_bAppendNetName = 1;
    else
        return false;
    return true;
}

// Setting lines up to the end of the file or the first empty line; others are ignored.
void ReadSettingsBlock(LogLines& lines) {
    std::string line;
    while (lines.Any(line) && line != "\n") {
        if (!TakeSwitchLine(line)) TakeValueLine(line);
    }
}

std::string LogFolder(const std::string& logPath) {
    size_t sep = base::LastSeparator(logPath);
    return sep != std::string::npos && sep > 0 ? logPath.substr(0, sep) : std::string();
}

// Paths of the head, up to the first block heading. false when the file is no log.
bool ScanHead(LogLines& lines, const std::string& logPath, std::string& inputFile,
              std::string& outputFile, Block& block) {
    const std::string folder = LogFolder(logPath);
    std::string line;
    bool first = true;
    while (lines.NonEmpty(line)) {
        if (first && !StartsWithNoCase(line, "Ndd2Qfx")) break;
        first = false;
        block = HeadingOf(line);
        if (block != Block::None) return true;
        if (StartsWithNoCase(line, "From file :"))
            TakePath(line.substr(11), folder, inputFile);
        else if (StartsWithNoCase(line, "To file :"))
            TakePath(line.substr(9), folder, outputFile);
    }
    if (!first) return true;
    ReportMessage("The file :\n" + logPath + "\nis not Ndd2Qfx translation log file", kBoxWarning);
    return false;
}

void DefaultOutputFromInput(const std::string& inputFile, std::string& outputFile) {
    if (!outputFile.empty()) return;
    size_t dot = inputFile.rfind('.');
    outputFile = dot != std::string::npos && dot > 0 ? inputFile.substr(0, dot) : inputFile;
    if (!inputFile.empty()) outputFile += ".qfx";
}

}  // namespace

bool LoadLogFile(const std::string& logPath, std::string& inputFile, std::string& outputFile) {
    base::ScopedClassicLocale classicNumbers;
    auto stream = OpenTextFile(logPath);
    if (!stream) {
        ReportMessage("Cannot open the specified file : " + logPath, kBoxWarning);
        return false;
    }
    TranslationOptions& o = g_options;
    o.g_bLogLoaded = 0;
    o.g_bTranslateShapes = o.g_bTranslateLayers = o.g_bTranslateTraces = o.g_bTranslateVias = 1;
    LogLines lines(*stream);
    Block block = Block::None;
    if (!ScanHead(lines, logPath, inputFile, outputFile, block)) return false;
    DefaultOutputFromInput(inputFile, outputFile);

    o.g_bAllNets = 0;
    o.g_bSelectedOnly = 1;
    o.g_lstLogNets.clear();
    o.g_lstLogColors.clear();
    o.g_bLogLoaded = 1;
    if (block == Block::Nets) {
        block = ReadNetBlock(lines);
        if (o.g_lstLogNets.empty())
            SetAllNetsFromLog();
        else if (o.g_bSelectedOnly)
            SelectLogNets(inputFile);
    } else {
        SetAllNetsFromLog();
    }
    std::string line;
    while (block == Block::Layers && lines.NonEmpty(line))
        if (HeadingOf(line) == Block::Settings) block = Block::Settings;
    NormaliseTranslationOptions();
    if (block == Block::Settings) ReadSettingsBlock(lines);
    if (o.g_dbMaxArcLength < 0.001 || o.g_dbMaxArcLength > 1000.0) o.g_dbMaxArcLength = 0.2;
    return true;
}
