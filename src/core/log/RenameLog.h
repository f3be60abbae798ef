#pragma once

#include "core/log/JournalFile.h"
#include "core/log/RenameLogEntry.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <functional>
#include <optional>

namespace tavrin {

// "Log dd-MM-yyyy HH-mm-ss-#.xml" for the local time of `now`; the "#" stands for the number
// of renamed items until the batch ends.
QString getNewLogFileName(const QDateTime& now);

// Removes a log file; a failure is written to the diagnostic log and answers false.
bool deleteLogFile(const QString& path);

// Moves the file at `sourcePath` into `folder` under the finished name of the "#" log named
// `interimName` for `count` entries, never replacing another log: when that name is taken,
// the time in it moves on a second at a time. `isSameLog`, asked of a taken name at the exact
// time, may say that the file there already is this log; the source is then removed instead.
// Answers the new path, or an empty string with errno set.
QString moveToFinishedLogName(const QString& sourcePath, const QString& folder, const QString& interimName,
    int count, const std::function<bool(const QString&)>& isSameLog = {});

// The log of one batch of renames. Each entry is on disk before its rename is attempted:
//
//     log.addLogEntry(source, target);
//     moved ? log.confirmEntry() : log.dropLastEntry();
//
// so a batch that is killed half-way leaves its "#" file naming every rename made so far
// (with its root not yet closed); the file and its folder are synced before the first rename.
// finish() closes the document and gives it the name that carries the count. Entries are also
// kept in memory, so a batch that goes on without a usable file still counts and collects them.
class RenameLog {
public:
    RenameLog() = default;
    RenameLog(const RenameLog&) = delete;
    RenameLog& operator=(const RenameLog&) = delete;

    // Starts the log `folder`/getNewLogFileName(now) for a batch of `type` ("FILES" or
    // "FOLDERS"), writes its head and syncs it, so the file is on disk before the first rename.
    // False when it cannot be written; the log then still collects entries in memory.
    bool create(const QString& folder, const QString& type, const QDateTime& now);

    // Records the rename about to be made, with the device and inode of the item. True when
    // the entry reached the file; false when there is no usable file (creation failed, or this
    // write did).
    bool addLogEntry(const QString& sourcePath, const QString& targetPath, quint64 device = 0, quint64 inode = 0);
    // The rename of the last entry happened: it stays.
    void confirmEntry();
    // The rename of the last entry failed: it is taken out of the file and the count.
    void dropLastEntry();

    // Closes the document, syncs it and moves it to the finished path: every "#" of the path
    // replaced by the count of confirmed entries (a "#" of the folder too), another second in
    // the name when that name is taken (a log never replaces another). When the "#" file stopped growing part-way, the whole document is written
    // afresh from the entries in memory, and the "#" file removed only once that one is on
    // disk. Answers the final path, or an empty string with finishError() saying why; the "#"
    // file then stays, so nothing that was renamed goes unlogged.
    QString finish();
    // Empty unless the last finish() failed.
    const QString& finishError() const { return m_finishError; }

    // The path while the batch runs, "#" included.
    const QString& currLogFile() const { return m_path; }
    const QString& type() const { return m_type; }
    bool hasUsableFile() const { return m_journal.isOpen(); }
    // The confirmed entries, in the order of their renames.
    const QList<RenameLogEntry>& entries() const { return m_entries; }
    int renamedCount() const { return static_cast<int>(m_entries.size()); }

private:
    QString closeJournalFile();
    QString writeWholeDocument();
    QString failFinish(const QString& reason);
    QString finishedFolder() const;
    void abandonFile(const char* operation);

    QString m_path;
    QString m_type;
    JournalFile m_journal;
    QList<RenameLogEntry> m_entries;
    std::optional<RenameLogEntry> m_pending;
    bool m_pendingWritten = false;
    // Only a "#" file of this batch is ever removed; one left by a crashed batch is kept.
    bool m_createdFile = false;
    qint64 m_confirmedSize = 0;
    QString m_finishError;
};

}  // namespace tavrin
