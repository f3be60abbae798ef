#pragma once

#include "core/log/RenameLogEntry.h"

#include <QList>
#include <QString>

namespace tavrin {

// The entries of a log in document order; none when the file cannot be read or is not a
// rename log. A log cut short by a killed batch gives the entries complete up to the cut.
QList<RenameLogEntry> readLogFile(const QString& path);

// Whether a log holds at least one entry; `entryCount` (when given) receives their number.
bool verifyLogFile(const QString& path, int* entryCount = nullptr);

// What a log chosen anywhere on disk turned out to be.
enum class LogCheck {
    Ready, // this major version, at least one entry
    Incompatible, // another major version, no version stamp, or no XML at all
    InvalidFile, // stamped right but without an entry to undo
    InUse, // a batch is still writing it, or another undo is at work on it
};

struct CheckedLog {
    LogCheck check = LogCheck::Incompatible;
    int entries = 0;

    // The message of the alert titled "UNDOFILESFOLDERSTITLE"; null when there is nothing to say.
    const char* messageKey() const;
};

// The checks made on a log chosen with the open panel, in their order: the version stamp, the
// lock of a batch or undo at work, then the entries.
CheckedLog openLogFile(const QString& path);

// Removes a log, but never one that a batch is still writing or an undo is at work on. A
// failure is written to the diagnostic log and answers false.
bool deleteLog(const QString& path);

}  // namespace tavrin
