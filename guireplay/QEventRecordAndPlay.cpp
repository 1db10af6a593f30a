#include "guireplay/QEventRecordAndPlay.h"

#include <QCoreApplication>

#include "guireplay/EventPlayer.h"
#include "guireplay/EventRecorder.h"

namespace guireplay {

QEventRecordAndPlay::QEventRecordAndPlay(const ReplaySettings& settings, QObject* parent)
    : QObject(parent), m_settings(settings) {
    if (m_settings.Plays()) {
        m_player = std::make_unique<EventPlayer>(m_settings);
    } else if (m_settings.Records()) {
        m_recorder = std::make_unique<EventRecorder>(m_settings);
        if (m_settings.manual) {
            m_manualState = true;
            connect(this, &QEventRecordAndPlay::manualControl, this,
                    &QEventRecordAndPlay::OnManualControl);
        }
    }
}

QEventRecordAndPlay::~QEventRecordAndPlay() {
    End();
}

void QEventRecordAndPlay::Begin() {
    if (m_recorder) {
        QCoreApplication::instance()->installEventFilter(this);
        m_recorder->Launch();
    }
    if (m_player && m_player->Load(m_settings.playPath)) m_player->Start();
}

void QEventRecordAndPlay::End() {
    if (m_recorder) m_recorder->Stop();
    if (m_player) m_player->Abort();
    if (QCoreApplication::instance()) QCoreApplication::instance()->removeEventFilter(this);
}

void QEventRecordAndPlay::OnManualControl(bool start) {
    if (!m_recorder) return;
    if (start && !m_recorder->IsRecording()) m_recorder->Start();
    if (!start) m_recorder->Stop();
}

bool QEventRecordAndPlay::eventFilter(QObject* watched, QEvent* event) {
    if (m_recorder && m_recorder->Filter(watched, event)) return true;
    return QObject::eventFilter(watched, event);
}

}  // namespace guireplay
