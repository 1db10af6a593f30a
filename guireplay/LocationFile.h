#pragma once
// A location upgrade file (".loc" beside a script): a widget level as it was ("GUIOld") and as
// it is now ("GUINew"). Applying it renames every matching level of a session's steps.
//
//   [GUIOld]                      [GUINew]
//   classname=QPushButton         classname=QPushButton
//   objectname=okButton           objectname=acceptButton
//   title=OK                      title=Accept
//   comparetitle=true             matchtitle=true
//   comparepos=false
//   pos=10,20
#include <QString>

#include "guireplay/RecordModel.h"

namespace guireplay {

// Applies the file to session; returns the number of levels changed, -1 when the file cannot be
// read. A file that was applied is renamed with the mark ".used".
int ApplyLocationFile(const QString& path, Session& session);

}  // namespace guireplay
