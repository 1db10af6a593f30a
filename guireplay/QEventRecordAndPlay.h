#pragma once
// The application-wide event filter of record and replay. Recording watches every event and
// keeps a session; playing runs a loaded session against the live windows.
#include <QObject>
#include <memory>

#include "guireplay/ReplaySettings.h"

namespace guireplay {

class EventPlayer;
class EventRecorder;

class QEventRecordAndPlay : public QObject {
    Q_OBJECT
  public:
    explicit QEventRecordAndPlay(const ReplaySettings& settings, QObject* parent = nullptr);
    ~QEventRecordAndPlay() override;

    // Installs the filter on the application and starts what the settings ask for.
    void Begin();
    // Stops recording (writing the session) or a play still running.
    void End();

    EventRecorder* Recorder() { return m_recorder.get(); }
    EventPlayer* Player() { return m_player.get(); }

  public slots:
    // The manual control: starts or stops a recording.
    void OnManualControl(bool start);

  signals:
    void manualControl(bool start);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static void CloseWindows();

    ReplaySettings m_settings;
    std::unique_ptr<EventRecorder> m_recorder;
    std::unique_ptr<EventPlayer> m_player;
    bool m_manualState = false;
};

}  // namespace guireplay
