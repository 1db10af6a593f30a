#include "guireplay/EventPlayer.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include "guireplay/CheckPointCompare.h"
#include "guireplay/EventSender.h"
#include "guireplay/ExtraIndex.h"
#include "guireplay/LocationFile.h"
#include "guireplay/QtLogRedirect.h"
#include "guireplay/RecordXml.h"
#include "guireplay/ScriptText.h"
#include "guireplay/SystemProbe.h"
#include "guireplay/WidgetLocator.h"
#include "guireplay/WidgetPath.h"
#include "guireplay/WidgetStateText.h"
#include "ui/CmdTarget.h"

namespace guireplay {

namespace {

constexpr int kStepGapMs = 10;
constexpr int kPollMs = 50;

QWidget* Front() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    return QApplication::activeModalWidget();
}

// Typing into an input that no longer starts from the recorded text may give another result.
QString InitialTextWarning(const Step& step, const QWidget* target) {
    const QString key = QStringLiteral("InitialText=");
    const int at = step.extraInfo.indexOf(key);
    const QVariant text = target->property("text");
    if (at < 0 || !text.isValid()) return QString();
    const QString initial = step.extraInfo.mid(at + key.size()).section(QLatin1Char('\n'), 0, 0);
    if (text.toString() == initial) return QString();
    return QStringLiteral(
               "\n\tWarning: The initial text of the input widget is changed from \"%1\" to "
               "\"%2\".")
        .arg(initial, text.toString());
}

// The step with the location of the widget it was played on, for an upgraded script.
Step AsFound(const Step& step, QWidget* target) {
    Step played = step;
    const QPoint pos = step.location.ptRefToTop.isNull()
                           ? target->rect().center()
                           : target->mapFrom(target->window(), step.location.ptRefToTop);
    played.location = LocationOf(target, pos);
    played.location.topIsMain = step.location.topIsMain;
    played.location.extraIndex = step.location.extraIndex;
    return played;
}

void CloseWindow(QWidget* window) {
    if (auto dialog = qobject_cast<QDialog*>(window)) {
        dialog->reject();
    } else {
        window->close();
    }
}

}  // namespace

EventPlayer::EventPlayer(const ReplaySettings& settings, QObject* parent)
    : QObject(parent), m_settings(settings) {}

EventPlayer::~EventPlayer() {
    Abort();
}

bool EventPlayer::Load(const QString& path) {
    const QFileInfo info(path);
    m_logPath =
        info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".playlog");
    m_log.Open(m_logPath);
    m_log.WriteRaw(QStringLiteral("#Playing Enviroment:\n") + SystemBlock(ProbeSystem(nullptr)));
    QString error;
    if (!LoadSessionPair(path, m_loaded, error)) {
        m_log.Write(QStringLiteral("Error: ") + error);
        Finish(false);
        return false;
    }
    if (m_loaded.mismatch) m_log.WriteRaw(QString::fromLatin1(kMismatchWarning));
    const int moved =
        ApplyLocationFile(m_loaded.basePath + QStringLiteral(".loc"), m_loaded.session);
    if (moved >= 0) m_loaded.steps = GroupSteps(m_loaded.session, m_loaded.fullLog);
    m_played = m_loaded.session.steps;
    return true;
}

void EventPlayer::Start() {
    if (m_done || m_started) return;
    m_started = true;
    if (!m_settings.qtLogPath.isEmpty()) RedirectQtLog(m_settings.qtLogPath);
    m_log.Write(QStringLiteral("Play Started"));
    Schedule(0);
}

void EventPlayer::Abort() {
    if (!m_done) Finish(false);
}

void EventPlayer::Schedule(int ms) {
    QTimer::singleShot(ms, this, &EventPlayer::Tick);
}

bool EventPlayer::MayRun() const {
    if (m_sendFronts.isEmpty()) return true;
    QWidget* front = Front();
    return front && front != m_sendFronts.last();
}

void EventPlayer::Advance() {
    ++m_next;
    m_stepStarted = false;
}

// Logs the step's first words and applies its control words; false when it is not to run.
bool EventPlayer::BeginStep() {
    const ScriptStep& step = m_loaded.steps[m_next];
    const StepControls& c = m_loaded.controls[m_next];
    m_stepStarted = true;
    m_stepClock.start();
    m_waitMs = c.delaySeconds > 0 ? qint64(c.delaySeconds * 1000.0) : 0;
    m_entry = QStringLiteral("Playing ") + step.core;
    if (!step.inScript)
        m_entry = QStringLiteral("Playing [%1 event(s) of type %2] %3")
                      .arg(step.count)
                      .arg(m_loaded.session.steps[step.first].event.type)
                      .arg(WidgetPathText(m_loaded.session.steps[step.first].location));
    if (c.remove) {
        for (int i = 0; i < step.count; ++i) m_played[step.first + i].event.type = -1;
        Advance();
        return false;
    }
    if (c.breakHere) {
        m_log.Write(m_entry);
        Finish(false);
        return false;
    }
    if (c.ignore) {
        m_log.Write(QStringLiteral("Ignore ") + step.core);
        Advance();
        return false;
    }
    return true;
}

qint64 EventPlayer::StepTimeoutMs() const {
    const StepControls& c = m_loaded.controls[m_next];
    return c.timeoutSeconds > 0 ? qint64(c.timeoutSeconds * 1000.0) : m_settings.stepTimeoutMs;
}

bool EventPlayer::FindTarget(Target& target) {
    const ScriptStep& step = m_loaded.steps[m_next];
    const Step& first = m_loaded.session.steps[step.first];
    const bool late = m_stepClock.elapsed() >= m_waitMs + StepTimeoutMs();
    LocateResult found = Locate(first.location);
    QWidget* w = found.widget;
    if (!w) {
        if (!late) return false;
        const QString name = first.location.levels.isEmpty()
                                 ? QStringLiteral("an unnamed")
                                 : LevelName(first.location.levels.last());
        m_log.Write(m_entry +
                    QStringLiteral("\n\tError: Cannot locate %1 target widget.").arg(name) +
                    LocateFailureText(found));
        ++m_failures;
        Finish(false);
        return false;
    }
    if (!first.checkPoint && (!w->isVisible() || !w->isEnabled())) {
        if (!late) return false;
        target.messages += QStringLiteral("\n\tWarning: %1 target widget is not %2.")
                               .arg(ShortName(w), w->isVisible() ? QStringLiteral("enabled")
                                                                 : QStringLiteral("visible"));
    }
    target.widget = w;
    target.messages += found.messages;
    return true;
}

void EventPlayer::CloseUnexpected(QWidget* target, QString& messages) {
    QWidget* top = target->window();
    if (QWidget* popup = QApplication::activePopupWidget()) {
        if (popup != top) {
            messages +=
                QStringLiteral("\n\tInfo: Popup widget is closed: %1.").arg(ShortName(popup));
            popup->close();
        }
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != top && !modal->isAncestorOf(top) && !(top->windowFlags() & Qt::Popup)) {
        messages += QStringLiteral("\n\tWarning: Unexpected modal widget is closed: %1.")
                        .arg(ShortName(modal));
        CloseWindow(modal);
    }
}

void EventPlayer::Tick() {
    if (m_done) return;
    if (!MayRun()) return Schedule(kPollMs);
    if (m_next >= m_loaded.steps.size()) return Finish(true);
    if (!m_stepStarted && !BeginStep()) return Schedule(0);
    if (m_stepClock.elapsed() < m_waitMs) return Schedule(int(m_waitMs - m_stepClock.elapsed()));
    Target target;
    if (!FindTarget(target)) {
        if (!m_done) Schedule(kPollMs);
        return;
    }
    CloseUnexpected(target.widget, target.messages);
    if (m_loaded.session.steps[m_loaded.steps[m_next].first].checkPoint) {
        RunCheckPoint(target.widget);
        return;
    }
    RunEvents(target.widget, target.messages);
}

void EventPlayer::RunCheckPoint(QWidget* target) {
    const QString name = QString::asprintf("CheckPoint%d", m_checkPoints + 1);
    const QString dir =
        QFileInfo(m_loaded.basePath).dir().filePath(QStringLiteral("CheckPointFiles"));
    QWidget* window = target->window();
    const Verdict v = VerifyCheckPoint(dir, name, WidgetStateText(window), m_settings.checkNoOrder);
    // A window may still be settling; a failing check is tried again until the step's time.
    if (v.loaded && !v.passed && m_stepClock.elapsed() < m_waitMs + StepTimeoutMs()) {
        Schedule(kPollMs);
        return;
    }
    QString message = v.message;
    bool passed = v.passed;
    if (v.loaded && m_settings.snapCheck != 0) {
        const QImage golden(QDir(dir).filePath(name + QStringLiteral(".png")));
        const QImage now = window->grab().toImage().convertToFormat(golden.format());
        const QString result = QDir(dir).filePath(name + QStringLiteral("_TestResult.png"));
        now.save(result, "PNG");
        if (golden.isNull() || golden != now) {
            passed = false;
            message += QStringLiteral(
                           "\n\tVerifying: Failed for %1, compare the following two files for "
                           "details:\n\t[Golden]%2\n\t[TestResult]%3")
                           .arg(name + QStringLiteral(".png"),
                                QDir(dir).filePath(name + QStringLiteral(".png")), result);
        }
    }
    m_log.Write(m_entry + QStringLiteral("\n\t") + message);
    if (!passed) ++m_failures;
    ++m_checkPoints;
    Advance();
    Schedule(kStepGapMs);
}

void EventPlayer::RunEvents(QWidget* target, QString messages) {
    const ScriptStep step = m_loaded.steps[m_next];
    const StepControls controls = m_loaded.controls[m_next];
    QPointer<QWidget> receiver = target;
    // Each event's spot (menu item, tab, cell) is found again before it is sent.
    QVector<QPoint> spots;
    bool ok = true;
    for (int i = 0; i < step.count; ++i) {
        const Step& s = m_loaded.session.steps[step.first + i];
        SpotResult spot = FindSpot(target, s.location.extraIndex, s.event.pos.toPoint());
        if (!messages.contains(spot.messages)) messages += spot.messages;
        ok = ok && spot.ok;
        spots.push_back(spot.pos);
        messages += InitialTextWarning(s, target);
        if (s.event.type == QEvent::InputMethod)
            messages += QStringLiteral("\n\tError: InputMethod is not yet fully supported.");
        m_played[step.first + i] = AsFound(s, target);
    }
    if (messages.contains(QLatin1String("\n\tError:"))) ++m_failures;
    m_log.Write(m_entry + messages);
    Advance();
    if (!ok) return Finish(false);
    // The next step is due before the events go out: one of them may open a modal loop.
    Schedule(kStepGapMs);
    m_sendFronts.push_back(Front());
    ResetLastCommandName();
    const int stepAfter = m_next;
    for (int i = 0; i < step.count && receiver; ++i) {
        const Step& s = m_loaded.session.steps[step.first + i];
        if (!SendRecordedEvent(receiver, s.event, spots[i], controls.async || s.async))
            m_log.Write(QStringLiteral("Warning: An invalid event is encountered."));
    }
    m_sendFronts.pop_back();
    // Steps played inside a modal loop of this one have run commands of their own.
    if (m_next == stepAfter) CompareCommand(step);
    if (receiver && (controls.watch || controls.watchWindow))
        WriteWatchPoint(receiver, controls.watchWindow);
    // The last step may end the program; the play has ended with it.
    if (m_next >= m_loaded.steps.size()) Finish(true);
}

void EventPlayer::CompareCommand(const ScriptStep& step) {
    const QString key = QStringLiteral("Command=");
    QString expected;
    for (int i = 0; i < step.count; ++i) {
        const QString& info = m_loaded.session.steps[step.first + i].extraInfo;
        const int at = info.indexOf(key);
        if (at >= 0) expected = info.mid(at + key.size()).section(QLatin1Char('\n'), 0, 0);
    }
    const QString ran = QString::fromStdString(LastCommandName());
    if (expected == ran) return;
    m_log.Write(QStringLiteral("Warning: The step ran the command \"%1\" instead of \"%2\".")
                    .arg(ran, expected));
}

void EventPlayer::WriteWatchPoint(QWidget* target, bool window) {
    const QDir dir(QFileInfo(m_loaded.basePath).dir().filePath(QStringLiteral("WatchPointFiles")));
    QDir().mkpath(dir.path());
    const QString path = dir.filePath(QString::asprintf("%s%d.ckp", "WatchPoint", ++m_watchPoints));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(WidgetStateText(window ? target->window() : target).toUtf8());
    m_log.Write(QStringLiteral("Info: Watch point %1 has been generated.").arg(path));
}

void EventPlayer::Finish(bool ended) {
    if (m_done) return;
    m_done = true;
    m_ended = ended;
    m_log.Write(ended ? QStringLiteral("Play Ended") : QStringLiteral("Play Stopped"));
    if (ended && m_settings.upgrade) Upgrade();
    m_log.Close();
    if (!m_settings.qtLogPath.isEmpty()) RestoreQtLog();
    emit finished();
}

void EventPlayer::Upgrade() {
    Session upgraded = m_loaded.session;
    upgraded.steps.clear();
    for (const Step& s : m_played)
        if (s.event.type != -1) upgraded.steps.push_back(s);
    const QString brf = m_loaded.basePath + QStringLiteral(".brf");
    const QString backup = QStringLiteral("%1_%2.bak").arg(m_loaded.basePath, SessionStamp());
    const bool ok = QFile::rename(brf, backup) &&
                    SaveRecordXml(m_loaded.basePath + QStringLiteral(".xml"), upgraded) &&
                    SaveScript(brf, upgraded, m_loaded.fullLog);
    if (!ok) m_log.Write(QStringLiteral("Warning: Upgrading failed."));
}

}  // namespace guireplay
