// The XML record and the text script: what is written, what is read back, and how a script
// is paired with its record.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "ReplayTestSupport.h"
#include "SampleSession.h"
#include "guireplay/EventPlayer.h"
#include "guireplay/RecordXml.h"
#include "guireplay/ScriptReader.h"
#include "guireplay/ScriptText.h"

using namespace guireplay;

namespace {

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

TEST(RecordFormat, EveryEventKindIsWrittenInItsForm) {
    const Session session = SampleSession();
    EXPECT_EQ(XmlOf(session), ReadText(DataPath("format/all_kinds.xml")));
    EXPECT_EQ(ScriptText(session, false), ReadText(DataPath("format/all_kinds.brf")));
    EXPECT_EQ(ScriptText(session, true), ReadText(DataPath("format/all_kinds_full.brf")));
}

TEST(RecordFormat, ReadingGivesBackWhatWasWrittenLineBreaksIncluded) {
    QFile file(DataPath("format/all_kinds.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Session read;
    QString error;
    ASSERT_TRUE(ReadRecordXml(file, read, error)) << error.toStdString();
    EXPECT_EQ(read.steps[3].event.text, "a\nb");
    EXPECT_EQ(read.steps[3].extraInfo, "InitialText=first\nsecond");
    EXPECT_EQ(read.steps[0].location.levels[0].windowTitle, "Sample\nTwo lines");
    EXPECT_EQ(read.steps[0].location.levels[2].windowTitle, "OK\r");
    EXPECT_EQ(XmlOf(read), ReadText(DataPath("format/all_kinds.xml")));
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

TEST(ScriptLines, ControlWordsAreSplitOffTheStep) {
    const ScriptLine a = ParseStepLine("Event: MouseClick [#ok] (1,2) <Delay=1.500> <Async>");
    EXPECT_EQ(a.core, "Event: MouseClick [#ok] (1,2)");
    EXPECT_DOUBLE_EQ(a.controls.delaySeconds, 1.5);
    EXPECT_TRUE(a.controls.async);
    const ScriptLine b = ParseStepLine("Event: KeyInputs \"<Ignore>\" [#e] <Timeout=3> <Ignore>");
    EXPECT_EQ(b.core, "Event: KeyInputs \"<Ignore>\" [#e]");
    EXPECT_DOUBLE_EQ(b.controls.timeoutSeconds, 3);
    EXPECT_TRUE(b.controls.ignore);
    const ScriptLine c = ParseStepLine("CheckPoint: x <Delete><Break><Watch><WatchWindow>");
    EXPECT_EQ(c.core, "CheckPoint: x");
    EXPECT_TRUE(c.controls.remove && c.controls.breakHere && c.controls.watch &&
                c.controls.watchWindow);
    EXPECT_FALSE(c.controls.ignore || c.controls.async);
}

TEST(SessionPair, AScriptWithoutItsRecordCannotBePlayed) {
    QTemporaryDir dir;
    const QString brf = dir.filePath("lonely.brf");
    ASSERT_TRUE(SaveScript(brf, SampleSession(), false));
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
    ASSERT_TRUE(SaveRecordXml(base + ".xml", SampleSession()));
    ASSERT_TRUE(SaveScript(base + ".brf", SampleSession(), false));
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
