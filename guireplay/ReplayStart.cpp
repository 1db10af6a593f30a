#include "guireplay/ReplayStart.h"

#include <QCoreApplication>

#include "guireplay/QEventRecordAndPlay.h"

namespace guireplay {

namespace {

QEventRecordAndPlay* g_pRecordAndPlay = nullptr;

// Runs when the application object goes: the recording is written while the toolkit lives.
void Finish() {
    delete g_pRecordAndPlay;
    g_pRecordAndPlay = nullptr;
}

void Begin() {
    if (g_pRecordAndPlay) return;
    g_pRecordAndPlay = new QEventRecordAndPlay(SettingsFromEnvironment());
    g_pRecordAndPlay->Begin();
    qAddPostRoutine(Finish);
}

}  // namespace

bool ArmFromEnvironment() {
    const ReplaySettings settings = SettingsFromEnvironment();
    if (!settings.Records() && !settings.Plays()) return false;
    qAddPreRoutine(Begin);
    return true;
}

}  // namespace guireplay
