#pragma once
// The XML record of a session: written whole at the end of a recording, read whole before a
// play.
#include <QString>

#include "guireplay/RecordModel.h"

class QIODevice;

namespace guireplay {

// Line feeds and carriage returns of a text value are kept as "&#x0A" and "&#x0D".
QString EncodeLineBreaks(const QString& text);
QString DecodeLineBreaks(const QString& text);

// False when the device cannot be written.
bool WriteRecordXml(QIODevice& device, const Session& session);
// False, with the reason in error, when the record cannot be read.
bool ReadRecordXml(QIODevice& device, Session& session, QString& error);

bool SaveRecordXml(const QString& path, const Session& session);
bool LoadRecordXml(const QString& path, Session& session, QString& error);

}  // namespace guireplay
