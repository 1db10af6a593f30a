// A session recorded on the test window and played back on it, and on a copy whose button was
// renamed. Plays of sessions kept as data, on changed windows, are in data/guireplay/.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

#include "ReplayTestSupport.h"
#include "TestWindow.h"
#include "guireplay/EventPlayer.h"
#include "guireplay/EventRecorder.h"
#include "guireplay/QEventRecordAndPlay.h"

using namespace guireplay;

namespace {

// Positions depend on the fonts of the machine; the tests compare everything else.
QString WithoutPositions(QString text) {
    return text.replace(QRegularExpression(QStringLiteral("\\(\\d+,\\d+\\)")), "(x,y)");
}

class RecordPlay : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_dir.isValid());
        Record();
    }

    QString Base() const { return m_dir.filePath("session"); }

    // Types a name, ticks an option and a net, applies, confirms, takes a check point and
    // closes the window. A copy of what it writes is kept as a session of the demo program.
    void Record() {
        ReplaySettings settings;
        settings.recFixPath = Base();
        QEventRecordAndPlay recorder(settings);
        TestWindow window;
        window.show();
        recorder.Begin();
        QTest::mouseClick(window.nameEdit, Qt::LeftButton);
        QTest::keyClicks(window.nameEdit, "top");
        QTest::mouseClick(window.findChild<QCheckBox*>("keepCheck"), Qt::LeftButton);
        const QRect gnd = window.nets->visualItemRect(window.nets->item(0));
        QTest::mouseClick(window.nets->viewport(), Qt::LeftButton, {}, gnd.center());
        QTest::keyClick(window.nets, Qt::Key_Space);
        QTest::mouseClick(window.findChild<QWidget*>("applyButton"), Qt::LeftButton);
        // The question runs a loop of its own; its answer comes from inside that loop.
        QTimer::singleShot(0, [] {
            auto box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box) QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        });
        QTest::mouseClick(window.findChild<QWidget*>("confirmButton"), Qt::LeftButton);
        ASSERT_EQ(window.result->text(), "top: GND (kept)");
        recorder.Recorder()->TakeCheckPoint(&window);
        QTest::keyClick(&window, Qt::Key_Escape);
        recorder.End();
    }

    QStringList Play(bool renamedApply, int stepTimeoutMs, bool upgrade = false) {
        TestWindow window(renamedApply);
        window.show();
        ReplaySettings settings;
        settings.playPath = Base() + ".brf";
        settings.stepTimeoutMs = stepTimeoutMs;
        settings.upgrade = upgrade;
        EventPlayer player(settings);
        EXPECT_TRUE(player.Load(settings.playPath));
        player.Start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return player.IsDone(); }, 20000));
        m_result = window.result->text();
        m_succeeded = player.Succeeded();
        QStringList entries = PlayLogEntries(Base() + ".playlog");
        for (QString& e : entries) e = WithoutPositions(e);
        return entries;
    }

    QTemporaryDir m_dir;
    QString m_result;
    bool m_succeeded = false;
};

}  // namespace

TEST_F(RecordPlay, TheSessionIsKeptAndPlaysBackWithItsCheckPointPassing) {
    // The system block of the machine stands in the first nine lines.
    EXPECT_EQ(WithoutPositions(ReadText(Base() + ".brf")).section('\n', 9),
              ReadText(DataPath("test_window_steps.brf")));
    // The click on Apply keeps the handler it ran.
    EXPECT_TRUE(ReadText(Base() + ".xml").contains("<ExtraInfo>Command=OnApply</ExtraInfo>"));
    EXPECT_TRUE(ReadText(m_dir.filePath("CheckPointFiles/CheckPoint1.ckp"))
                    .contains("QLabel#resultLabel: \"top: GND (kept)\"\n"));
    EXPECT_TRUE(QFile::exists(m_dir.filePath("CheckPointFiles/CheckPoint1.png")));
    QStringList sessionLog = ReadText(m_dir.filePath("GUIReplay_All.log")).split('\n');
    for (QString& line : sessionLog) line.remove(QRegularExpression("^\\d{8}_\\d{6}:"));
    EXPECT_EQ(sessionLog,
              QStringList({"Recording started. #Tool Version:guireplay_tests",
                           "Recording path:" + Base() + ".", "Recording stopped.", ""}));

    const QStringList log = Play(false, 2000);
    ASSERT_GE(log.size(), 3);
    EXPECT_EQ(log.first(), "Play Started");
    EXPECT_EQ(log.filter("Playing CheckPoint").join('|').toStdString(),
              "Playing CheckPoint: KeyInputs \"{Ctrl+Shift+F12}\" [#testWindow, \"Replay Test\"]\n"
              "\tVerifying: Passed for CheckPoint1.");
    EXPECT_EQ(log.last(), "Play Ended");
    EXPECT_EQ(m_result, "top: GND (kept)");
    EXPECT_TRUE(m_succeeded);
}

TEST_F(RecordPlay, ALocationFileFollowsARenamedButtonAndTheScriptIsUpgraded) {
    WriteText(Base() + ".loc", ReadText(DataPath("apply_renamed.loc")));
    // The check point still tells the button's old name from its new one.
    const QStringList log = Play(true, 300, true);
    EXPECT_EQ(log.filter("Error").size(), 0);
    EXPECT_EQ(log.filter("Verifying: Failed for CheckPoint1").size(), 1);
    EXPECT_EQ(log.filter("command").join('|'),
              "Warning: The step ran the command \"OnApplyNow\" instead of \"OnApply\".");
    EXPECT_EQ(log.last(), "Play Ended");
    EXPECT_EQ(m_result, "top: GND (kept)");
    EXPECT_TRUE(QFile::exists(Base() + ".loc.used"));
    EXPECT_FALSE(QFile::exists(Base() + ".loc"));
    // The script now names the button as it is; the old one is kept.
    const QStringList backups = QDir(m_dir.path()).entryList({"session_*.bak"});
    ASSERT_EQ(backups.size(), 1);
    EXPECT_TRUE(ReadText(m_dir.filePath(backups[0])).contains("[#applyButton]"));
    const QString upgraded = ReadText(Base() + ".brf");
    EXPECT_TRUE(upgraded.contains("[#applyNowButton]"));
    EXPECT_FALSE(upgraded.contains("[#applyButton]"));
    EXPECT_EQ(Play(true, 300).filter("Error").size(), 0);
    EXPECT_EQ(m_result, "top: GND (kept)");
}
