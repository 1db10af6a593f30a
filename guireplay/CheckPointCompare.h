#pragma once
// Comparing a window's present state with the golden check point stored when it was recorded.
#include <QString>

namespace guireplay {

struct Verdict {
    bool loaded = true;  // false: the golden file could not be read
    bool passed = false;
    QString message;  // the play log's words for the outcome
};

// golden is "<dir>/<name>.ckp"; the present state is saved as "<dir>/<name>_TestResult.ckp".
// With noOrder the two texts also pass when they hold the same lines in another order; their
// sorted forms are kept beside them with the extension ".noorder".
Verdict VerifyCheckPoint(const QString& dir, const QString& name, const QString& current,
                         bool noOrder);
// True when the texts differ only in the order of their lines.
bool SameLinesAnyOrder(const QString& a, const QString& b);

}  // namespace guireplay
