#include "guireplay/QEventRecordAndPlay.h"

#include <QApplication>
#include <QDialog>
#include <QWidget>

#include "guireplay/EventPlayer.h"
#include "guireplay/EventRecorder.h"
#include "ui/SessionDriven.h"

#include <QTimer>

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
    // The session answers the program's boxes itself, on any platform.
    ui::SetSessionDriven(m_recorder || m_player);
    if (m_recorder) {
        QCoreApplication::instance()->installEventFilter(this);
        m_recorder->Launch();
    }
    if (!m_player) return;
    connect(m_player.get(), &EventPlayer::finished, this, [this] {
        // A play that went to its end leaves the program to go on as the session did.
        if (!m_player->Ended()) CloseWindows();
    });
    if (m_player->Load(m_settings.playPath)) m_player->Start();
}

// A play that was broken off leaves no window waiting for a person: modal loops are ended
// from the innermost out, then the other windows are closed, so that the program ends.
void QEventRecordAndPlay::CloseWindows() {
    QTimer::singleShot(0, [] {
        if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        while (QWidget* modal = QApplication::activeModalWidget()) {
            auto dialog = qobject_cast<QDialog*>(modal);
            if (!dialog || !dialog->isVisible()) break;
            dialog->reject();
        }
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible()) w->close();
    });
}

void QEventRecordAndPlay::End() {
    if (m_recorder) m_recorder->Stop();
    if (m_player) m_player->Abort();
    ui::SetSessionDriven(false);
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
