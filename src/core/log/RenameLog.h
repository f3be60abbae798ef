#pragma once

#include "core/log/JournalFile.h"
#include "core/log/RenameLogEntry.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

namespace tavrin {

// "Log dd-MM-yyyy HH-mm-ss-#.xml" for the local time of `now`; the "#" stands for the number
// of renamed items until the batch ends.
QString getNewLogFileName(const QDateTime& now);

// Removes a log file; a failure is written to the diagnostic log and answers false.
bool deleteLogFile(const QString& path);

// The log of one batch of renames. Each entry is on disk before its rename is attempted:
//
//     log.addLogEntry(source, target);
//     moved ? log.confirmEntry() : log.dropLastEntry();
//
// so a batch that is killed half-way leaves its "#" file naming every rename made so far
// (with its root not yet closed). finish() writes the final document under the name that
// carries the count and removes the "#" file. Entries are also kept in memory, so a batch
// that goes on without a usable file still counts and collects them.
class RenameLog {
public:
    RenameLog() = default;
    RenameLog(const RenameLog&) = delete;
    RenameLog& operator=(const RenameLog&) = delete;

    // Starts the log `folder`/getNewLogFileName(now) for a batch of `type` ("FILES" or
    // "FOLDERS") and writes its head, so the file exists before the first rename. False when
    // it cannot be written; the log then still collects entries in memory.
    bool create(const QString& folder, const QString& type, const QDateTime& now);

    // Records the rename about to be made. True when the entry reached the file; false when
    // there is no usable file (creation failed, or this write did).
    bool addLogEntry(const QString& sourcePath, const QString& targetPath);
    // The rename of the last entry happened: it stays.
    void confirmEntry();
    // The rename of the last entry failed: it is taken out of the file and the count.
    void dropLastEntry();

    // Writes the final document to the "#" path with every "#" replaced by the count of
    // confirmed entries, replacing a log of that name, and removes the "#" file. Answers the
    // final path, or an empty string when it could not be written (the "#" file then stays,
    // so nothing that was renamed goes unlogged).
    QString finish();

    // The path while the batch runs, "#" included.
    const QString& currLogFile() const { return m_path; }
    const QString& type() const { return m_type; }
    bool hasUsableFile() const { return m_journal.isOpen(); }
    // The confirmed entries, in the order of their renames.
    const QList<RenameLogEntry>& entries() const { return m_entries; }
    int renamedCount() const { return static_cast<int>(m_entries.size()); }

private:
    QString finalPath() const;
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
};

}  // namespace tavrin
