#pragma once
// Reading a script back, and loading the script and record of one session as a pair.
#include <QString>
#include <QVector>

#include "guireplay/RecordModel.h"
#include "guireplay/ScriptText.h"

namespace guireplay {

// The control words a person may add to a step line: "<Ignore>", "<Delay=1.5>", ...
struct StepControls {
    bool ignore = false;
    bool remove = false;  // "Delete"
    bool breakHere = false;
    bool watch = false;
    bool watchWindow = false;
    bool async = false;
    double delaySeconds = -1;
    double timeoutSeconds = -1;
};

struct ScriptLine {
    QString core;
    StepControls controls;
};

struct ScriptFile {
    int version = 1;
    QVector<ScriptLine> lines;
};

// Splits the control words off the end of a step line.
ScriptLine ParseStepLine(const QString& line);
bool ReadScript(const QString& path, ScriptFile& script);

// A session ready to play: the record's steps, their script lines and each line's controls.
struct LoadedSession {
    QString basePath;  // without extension
    Session session;
    bool fullLog = false;
    QVector<ScriptStep> steps;
    QVector<StepControls> controls;  // one per entry of steps
    bool mismatch = false;
};

// Takes a ".brf" or ".xml" path; both files must exist. False with the reason in error.
bool LoadSessionPair(const QString& path, LoadedSession& loaded, QString& error);

extern const char* const kMismatchWarning;

}  // namespace guireplay
