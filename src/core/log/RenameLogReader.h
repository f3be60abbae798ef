#pragma once

#include "core/log/RenameLogEntry.h"

#include <QList>
#include <QString>
#include <optional>

namespace tavrin {

struct RenameLogContents {
    QString appVersion;  // the root's "appversion"
    QString type;  // the root's "type": "FILES" or "FOLDERS"
    QList<RenameLogEntry> entries;
    // False for a log whose batch never finished (its root was never closed).
    bool rootClosed = false;
};

// The entries of a rename log, in document order. A log cut off anywhere after its root
// began (a batch that was killed) gives the entries complete up to the cut. Answers nothing
// for a file that cannot be read, is not well-formed before its end, or is not a log.
// External entities are never resolved.
std::optional<RenameLogContents> readLogEntries(const QString& path);

}  // namespace tavrin
