#pragma once
// The text script of a session: the system block, one line per step grouped from the record's
// events, and the window lines between them. The same grouping tells a player which record
// events a script line stands for.
#include <QString>
#include <QVector>

#include "guireplay/RecordModel.h"

namespace guireplay {

// One line of the script, standing for record steps [first, first + count).
struct ScriptStep {
    int first = 0;
    int count = 0;
    QString core;          // the line without its control words
    QString window;        // text of the target's top window
    bool inScript = true;  // false: played from the record only
};

// "[#name]", "[#name, "text"]" or "["text"]" for each level, joined by " -> ".
QString WidgetPathText(const WidgetLocation& location);
// The "{Ctrl+A}" or plain text form of one key press.
QString KeyText(const RecordedEvent& keyPress);

QVector<ScriptStep> GroupSteps(const Session& session, bool fullLog);
QString SystemBlock(const SystemInfo& system);
QString ScriptText(const Session& session, bool fullLog);
bool SaveScript(const QString& path, const Session& session, bool fullLog);

}  // namespace guireplay
