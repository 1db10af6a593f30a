#pragma once
// The playing side: loads a session, finds each step's widget again, sends the recorded events
// to it, compares check points and writes the play log. Steps run from a timer, so that a
// step which opens a modal dialog or a menu is followed by the next step inside that dialog's
// own event loop.
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include "guireplay/ReplayLogs.h"
#include "guireplay/ReplaySettings.h"
#include "guireplay/ScriptReader.h"

class QWidget;

namespace guireplay {

class EventPlayer : public QObject {
    Q_OBJECT
  public:
    explicit EventPlayer(const ReplaySettings& settings, QObject* parent = nullptr);
    ~EventPlayer() override;

    // Opens the play log and loads the pair; false (logged) when the session cannot be played.
    bool Load(const QString& path);
    void Start();
    // Ends the log with "Play Stopped" unless the play has ended.
    void Abort();

    bool IsDone() const { return m_done; }
    // True when every step ran and every check point passed.
    // True when the play went through to its last step, whatever its check points found.
    bool Ended() const { return m_done && m_ended; }
    bool Succeeded() const { return m_done && m_ended && m_failures == 0; }
    QString PlayLogPath() const { return m_logPath; }

  signals:
    void finished();

  private slots:
    void Tick();

  private:
    struct Target {
        QWidget* widget = nullptr;
        QString messages;
    };

    bool MayRun() const;
    qint64 StepTimeoutMs() const;
    bool BeginStep();
    bool FindTarget(Target& target);
    void CloseUnexpected(QWidget* target, QString& messages);
    void RunCheckPoint(QWidget* target);
    void RunEvents(QWidget* target, QString messages);
    void WriteWatchPoint(QWidget* target, bool window);
    // Warns when the step's events ran another command than they did when recorded.
    void CompareCommand(const ScriptStep& step);
    void Advance();
    void Schedule(int ms);
    void Finish(bool ended);
    void Upgrade();

    ReplaySettings m_settings;
    LoadedSession m_loaded;
    PlayLog m_log;
    QString m_logPath;
    int m_next = 0;
    bool m_stepStarted = false;
    QElapsedTimer m_stepClock;
    qint64 m_waitMs = 0;
    QString m_entry;
    int m_checkPoints = 0;
    int m_watchPoints = 0;
    int m_failures = 0;
    bool m_done = false;
    bool m_ended = false;
    bool m_started = false;
    // The modal or popup window in front when each running send began; a step may only run
    // inside such a send once a new window has come to the front.
    QVector<QPointer<QWidget>> m_sendFronts;
    QVector<Step> m_played;  // for an upgrade: the steps with the locations found
};

}  // namespace guireplay
