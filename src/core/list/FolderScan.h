#pragma once

#include "core/list/FileList.h"

namespace tavrin {

// One run of FileList::addFiles: walks the chosen paths depth-first, parent before
// children, visiting the entries of each folder in compareFiles order, and appends a
// record for every new item the mode asks for. An explicit stack instead of recursion
// keeps deep trees off the call stack of a worker thread.
class FolderScan {
public:
    FolderScan(std::vector<FileSystemItem>& files, QSet<QString>& knownPaths, const ScanOptions& options,
        const std::atomic_bool& cancel, ProgressObserver* observer);

    // Paths must be absolute and clean. Ends early, keeping what it found, when cancel
    // is set or something throws.
    ScanResult run(const QStringList& paths);

private:
    struct Frame {
        QStringList paths;
        qsizetype next = 0;
    };

    void scan(const QStringList& topPaths);
    // Handles one path; answers the paths to visit below it (none when it is not descended).
    QStringList visit(const QString& path);
    QStringList visitFolder(FileSystemItem record);
    // Appends the record when its path is new to the known-path set.
    bool addRecord(FileSystemItem record);
    QStringList listFolder(const QString& folder, bool foldersOnly);

    std::vector<FileSystemItem>& m_files;
    QSet<QString>& m_knownPaths;
    const ScanOptions& m_options;
    const std::atomic_bool& m_cancel;
    ThrottledProgress m_progress;
    ScanResult m_result;
    QString m_lastPath;
};

} // namespace tavrin
