#pragma once
// The environment that switches recording and playing on and steers them, read once when the
// application starts.
#include <QString>

namespace guireplay {

struct ReplaySettings {
    QString recPath;      // "RECPATH": folder of the recording
    QString recFixPath;   // "RECFIXPATH": fixed base path of the session's files
    bool manual = false;  // "LUSHL_GUIREPLAY_MANUAL": recording waits for its start key
    bool fullLog = false;
    int snapCheck = 0;
    int stepTimeoutMs = 5000;
    QString qtLogPath;
    bool checkNoOrder = false;
    QString playPath;      // "LUSHL_GUIREPLAY_PLAY": script (or record) to play
    bool upgrade = false;  // "LUSHL_GUIREPLAY_UPGRADE": rewrite the script after a play

    bool Records() const {
        return playPath.isEmpty() && (!recPath.isEmpty() || !recFixPath.isEmpty());
    }
    bool Plays() const { return !playPath.isEmpty(); }
    // The session's base path without extension; stamp names an automatic session.
    QString SessionBase(const QString& stamp) const;
    // The folder that keeps "GUIReplay_All.log".
    QString RecordingFolder() const;
};

ReplaySettings SettingsFromEnvironment();

// "%m%d%Y_%H%M%S" of now: session names and the session log.
QString SessionStamp();

}  // namespace guireplay
