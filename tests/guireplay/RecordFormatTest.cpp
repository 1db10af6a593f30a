// The XML record and the text script: what is read and written back, and how a script is
// paired with its record. The record of format/ holds one step of every event kind, with line
// breaks in its texts.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "ReplayTestSupport.h"
#include "guireplay/EventPlayer.h"
#include "guireplay/RecordXml.h"
#include "guireplay/ScriptReader.h"
#include "guireplay/ScriptText.h"

using namespace guireplay;

namespace {

Session Sample() {
    Session read;
    QString error;
    EXPECT_TRUE(LoadRecordXml(DataPath("format/all_kinds.xml"), read, error))
        << error.toStdString();
    return read;
}

QString XmlOf(const Session& session) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(WriteRecordXml(buffer, session));
    return QString::fromUtf8(buffer.data());
}

// Plays nothing: loading alone writes the head of the play log.
QStringList LoadLog(const QString& path) {
    EventPlayer player{ReplaySettings()};
    player.Load(path);
    player.Abort();
    return PlayLogEntries(player.PlayLogPath());
}

}  // namespace

TEST(RecordFormat, EveryEventKindIsReadAndWrittenBackLineBreaksIncluded) {
    const Session read = Sample();
    ASSERT_EQ(read.steps.size(), 9);
    EXPECT_EQ(read.steps[3].event.text, "a\nb");
    EXPECT_EQ(read.steps[3].extraInfo, "InitialText=first\nsecond");
    EXPECT_EQ(read.steps[0].location.levels[0].windowTitle, "Sample\nTwo lines");
    EXPECT_EQ(read.steps[0].location.levels[2].windowTitle, "OK\r");
    EXPECT_EQ(XmlOf(read), ReadText(DataPath("format/all_kinds.xml")));
    EXPECT_EQ(ScriptText(read, false), ReadText(DataPath("format/all_kinds.brf")));
    EXPECT_EQ(ScriptText(read, true), ReadText(DataPath("format/all_kinds_full.brf")));
}

TEST(RecordFormat, NotARecordIsRefused) {
    QBuffer buffer;
    buffer.setData("<?xml version=\"1.0\"?><Other/>");
    buffer.open(QIODevice::ReadOnly);
    Session read;
    QString error;
    EXPECT_FALSE(ReadRecordXml(buffer, read, error));
    EXPECT_EQ(error, "not a GUI record");
}

// The step without its control words, the delay, the time out, and the flags that are set.
QString Controls(const ScriptLine& l) {
    const StepControls& c = l.controls;
    QString flags;
    for (auto [on, name] : {std::pair{c.ignore, "ignore"},
                            {c.remove, "delete"},
                            {c.breakHere, "break"},
                            {c.watch, "watch"},
                            {c.watchWindow, "window"},
                            {c.async, "async"}})
        if (on) flags += QString(" ") + name;
    return QString("%1|%2|%3|").arg(l.core).arg(c.delaySeconds).arg(c.timeoutSeconds) + flags;
}

TEST(ScriptLines, ControlWordsAreSplitOffTheStep) {
    const std::pair<const char*, const char*> cases[] = {
        {"Event: MouseClick [#ok] (1,2) <Delay=1.500> <Async>",
         "Event: MouseClick [#ok] (1,2)|1.5|-1| async"},
        {"Event: KeyInputs \"<Ignore>\" [#e] <Timeout=3> <Ignore>",
         "Event: KeyInputs \"<Ignore>\" [#e]|-1|3| ignore"},
        {"CheckPoint: x <Delete><Break><Watch><WatchWindow>",
         "CheckPoint: x|-1|-1| delete break watch window"},
    };
    for (const auto& [line, expected] : cases)
        EXPECT_EQ(Controls(ParseStepLine(line)), expected) << line;
}

TEST(SessionPair, AScriptWithoutItsRecordCannotBePlayed) {
    QTemporaryDir dir;
    const QString brf = dir.filePath("lonely.brf");
    ASSERT_TRUE(SaveScript(brf, Sample(), false));
    LoadedSession loaded;
    QString error;
    EXPECT_FALSE(LoadSessionPair(brf, loaded, error));
    const QStringList log = LoadLog(brf);
    ASSERT_EQ(log.size(), 2);
    EXPECT_EQ(log[0], QStringLiteral("Error: The script %1 has no record %2.")
                          .arg(brf, dir.filePath("lonely.xml")));
    EXPECT_EQ(log[1], "Play Stopped");
}

TEST(SessionPair, AChangedScriptIsPlayedWithAWarning) {
    QTemporaryDir dir;
    const QString base = dir.filePath("pair");
    ASSERT_TRUE(SaveRecordXml(base + ".xml", Sample()));
    ASSERT_TRUE(SaveScript(base + ".brf", Sample(), false));
    LoadedSession loaded;
    QString error;
    ASSERT_TRUE(LoadSessionPair(base + ".brf", loaded, error));
    EXPECT_FALSE(loaded.mismatch);
    EXPECT_FALSE(ReadText(base + ".playlog").contains("Warning"));

    QString script = ReadText(base + ".brf");
    script.replace("[#okButton] (5,6)", "[#cancelButton] (5,6) <Ignore>");
    WriteText(base + ".brf", script);
    ASSERT_TRUE(LoadSessionPair(base + ".xml", loaded, error));
    EXPECT_TRUE(loaded.mismatch);
    LoadLog(base + ".brf");
    EXPECT_TRUE(ReadText(base + ".playlog").contains("\n" + QString(kMismatchWarning)));
}
