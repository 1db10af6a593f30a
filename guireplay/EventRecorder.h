#pragma once
// The recording side: turns the application's input events into the steps of a session and
// writes the session's files when it stops.
#include <QElapsedTimer>
#include <QImage>
#include <QPointer>
#include <QString>
#include <QVector>

#include "guireplay/RecordModel.h"
#include "guireplay/ReplaySettings.h"

class QEvent;
class QKeyEvent;
class QObject;
class QWidget;

namespace guireplay {

class EventRecorder {
  public:
    explicit EventRecorder(const ReplaySettings& settings);

    // Starts a session unless the settings ask for a manual start.
    void Launch();
    void Start();
    // Writes the record, the check points and the script; false when a file failed.
    bool Stop();
    bool IsRecording() const { return m_recording; }

    // Sees every event of the application; true when the event was the recorder's own key.
    bool Filter(QObject* receiver, QEvent* event);
    // Keeps the state of window as the next check point of the session.
    void TakeCheckPoint(QWidget* window);
    // Saves the state of window to ckpPath with its window and screen images beside it.
    static bool SaveLiveCheckPoint(QWidget* window, const QString& ckpPath);

    const Session& session() const { return m_session; }
    QString BasePath() const { return m_base; }

  private:
    struct CheckPointData {
        QString text;
        QImage image;
    };

    bool OwnKey(QWidget* receiver, QKeyEvent* key);
    bool Duplicate(QWidget* receiver, QEvent* event);
    bool Wanted(QWidget* receiver, QEvent* event) const;
    void Add(QWidget* receiver, Step step, QPoint pos);
    void AddPendingShortcut(QWidget* receiver, QKeyEvent* release);
    RecordedEvent Convert(QEvent* event) const;
    QString ExtraInfoFor(QWidget* receiver, const QEvent* event) const;
    bool WriteCheckPoints() const;
    void NoteCommand();

    ReplaySettings m_settings;
    bool m_recording = false;
    Session m_session;
    QVector<CheckPointData> m_checkPoints;
    QString m_base;
    QElapsedTimer m_sinceLast;
    QPointer<QWidget> m_mainWindow;
    // The last event taken, to pass over its propagation to the parents.
    const QEvent* m_lastEvent = nullptr;
    int m_lastType = 0;
    quint64 m_lastStamp = 0;
    QPointer<QWidget> m_lastReceiver;
    // A key press offered to the shortcuts; it is kept if no press reaches a widget.
    bool m_pendingShortcut = false;
    RecordedEvent m_shortcutKey;
    QPointer<QWidget> m_shortcutReceiver;
    bool m_swallowRelease = false;
};

}  // namespace guireplay
