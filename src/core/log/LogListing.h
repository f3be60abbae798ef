#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

namespace tavrin {

// One row of the undo sheet: a finished log of the log folder.
struct LogFileRecord {
    QString logFileName; // "logFileName": the file name, extension included
    QDateTime dateCreated; // "dateCreated": birth time where the file system records one, else modification
    int filesCount = 0; // "filesCount": the count of renamed items, from the file name
    QString path; // the log folder joined with the file name

    bool operator==(const LogFileRecord&) const = default;
};

// The logs of `logFolder` that undo may be offered, newest first: an "xml" extension in any
// letter case, a file name of exactly six dash pieces whose last is a count (not a running or
// killed batch's "#"), and a version stamp of this major version. A folder that cannot be
// listed gives no logs.
QList<LogFileRecord> loadUserLogFiles(const QString& logFolder);

// Newest first; logs created in the same instant keep a fixed order, by file name descending.
void sortNewestFirst(QList<LogFileRecord>& records);

}  // namespace tavrin
