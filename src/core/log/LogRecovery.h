#pragma once

#include <QString>
#include <QStringList>

namespace tavrin {

struct LogRecoveryReport {
    QStringList finished; // the logs finished, by their new paths
    QStringList leftAlone; // "#" logs that could not be finished, by their paths
};

// Finishes the logs of batches that were killed before they ended: every "#" log of the folder
// that no running batch holds gets its entries kept, its root closed and its real count in its
// name, so it is listed and undone like any other. The name never replaces another file: when
// it is taken the time in it moves on a second at a time. A "#" log that cannot be read, closed
// or renamed is left as it is (and written to the diagnostic log). Both programs call this
// once at start.
LogRecoveryReport recoverInterruptedLogs(const QString& logFolder);

}  // namespace tavrin
