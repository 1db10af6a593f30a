#pragma once
// Sends the toolkit's own messages to a file for the length of a play.
#include <QString>

namespace guireplay {

bool RedirectQtLog(const QString& path);
void RestoreQtLog();

}  // namespace guireplay
