#include "guireplay/ScriptReader.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>

#include "guireplay/RecordXml.h"

namespace guireplay {

const char* const kMismatchWarning = "Warning: The .brf file may not match the .xml file.\n";

namespace {

void ApplyControl(const QString& word, const QString& value, StepControls& c) {
    if (word == QLatin1String("Ignore")) c.ignore = true;
    if (word == QLatin1String("Delete")) c.remove = true;
    if (word == QLatin1String("Break")) c.breakHere = true;
    if (word == QLatin1String("Watch")) c.watch = true;
    if (word == QLatin1String("WatchWindow")) c.watchWindow = true;
    if (word == QLatin1String("Async")) c.async = true;
    if (word == QLatin1String("Delay")) c.delaySeconds = value.toDouble();
    if (word == QLatin1String("Timeout")) c.timeoutSeconds = value.toDouble();
}

bool IsStepLine(const QString& line) {
    return line.startsWith(QLatin1String("Event:")) ||
           line.startsWith(QLatin1String("CheckPoint:"));
}

}  // namespace

ScriptLine ParseStepLine(const QString& line) {
    static const QRegularExpression trailing(
        QStringLiteral("\\s*<(Timeout|Delay|Ignore|Delete|Break|Watch|WatchWindow|Async)"
                       "(?:=([^>]*))?>\\s*$"));
    ScriptLine out;
    out.core = line.trimmed();
    for (;;) {
        QRegularExpressionMatch m = trailing.match(out.core);
        if (!m.hasMatch()) break;
        ApplyControl(m.captured(1), m.captured(2).trimmed(), out.controls);
        out.core.truncate(m.capturedStart());
    }
    return out;
}

bool ReadScript(const QString& path, ScriptFile& script) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return false;
    QTextStream in(&file);
    in.setCodec("UTF-8");
    script = ScriptFile();
    while (!in.atEnd()) {
        const QString line = in.readLine();
        if (line.startsWith(QLatin1String("##Version="))) {
            script.version = line.mid(10).toInt();
        } else if (IsStepLine(line)) {
            script.lines.push_back(ParseStepLine(line));
        }
    }
    return true;
}

bool LoadSessionPair(const QString& path, LoadedSession& loaded, QString& error) {
    QFileInfo info(path);
    loaded = LoadedSession();
    loaded.basePath = info.path() + QLatin1Char('/') + info.completeBaseName();
    const QString brf = loaded.basePath + QStringLiteral(".brf");
    const QString xml = loaded.basePath + QStringLiteral(".xml");
    ScriptFile script;
    if (!ReadScript(brf, script)) {
        error = QStringLiteral("Cannot read the script %1.").arg(brf);
        return false;
    }
    if (!QFileInfo::exists(xml)) {
        error = QStringLiteral("The script %1 has no record %2.").arg(brf, xml);
        return false;
    }
    if (!LoadRecordXml(xml, loaded.session, error)) {
        error = QStringLiteral("Cannot read the record %1: %2.").arg(xml, error);
        return false;
    }
    loaded.fullLog = script.version == 0;
    loaded.steps = GroupSteps(loaded.session, loaded.fullLog);
    loaded.controls.resize(loaded.steps.size());
    // Script lines are matched to the record's steps in order; a line that matches no step
    // (edited or added by hand) is passed over, and so is its step.
    int next = 0;
    int matched = 0;
    for (const ScriptLine& line : script.lines) {
        int j = next;
        while (j < loaded.steps.size() &&
               (!loaded.steps[j].inScript || loaded.steps[j].core != line.core))
            ++j;
        if (j == loaded.steps.size()) continue;
        loaded.controls[j] = line.controls;
        next = j + 1;
        ++matched;
    }
    int expected = 0;
    for (const ScriptStep& s : loaded.steps) expected += s.inScript ? 1 : 0;
    loaded.mismatch = matched != expected || matched != script.lines.size();
    return true;
}

}  // namespace guireplay
