#pragma once
// The two logs of record and replay: "GUIReplay_All.log", one line per recording event in the
// recording folder, and a play's ".playlog", each line opened by its time stamp.
#include <QFile>
#include <QString>

namespace guireplay {

// Appends "<stamp>:<text>" to the folder's "GUIReplay_All.log".
bool AppendSessionLog(const QString& folder, const QString& text);

class PlayLog {
  public:
    bool Open(const QString& path);
    // One entry: "[%Y/%m/%d-%H:%M:%S]--" and text; text may hold "\n\t" continuations.
    void Write(const QString& text);
    // Text as it stands, with no time stamp.
    void WriteRaw(const QString& text);
    bool IsOpen() const { return m_file.isOpen(); }
    void Close() { m_file.close(); }

  private:
    QFile m_file;
};

}  // namespace guireplay
