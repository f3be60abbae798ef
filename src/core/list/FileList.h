#pragma once

#include "core/list/FileSystemItem.h"
#include "core/list/FilesComparison.h"
#include "core/list/Progress.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <atomic>
#include <vector>

namespace tavrin {

// How a scan treats what it finds.
struct ScanOptions {
    bool folders = false;            // folder mode: list folders, not files
    bool includeSubFolders = false;  // descend into folders
    bool renameFromFileTab = false;  // new records start as "No Changes" (the rename-from-file tab)
};

struct ScanResult {
    int added = 0;           // records appended by this scan
    QStringList skipped;     // paths left out because their name is not valid UTF-8
    bool cancelled = false;  // the cancel flag ended the scan early
};

struct SortKey {
    QString key;  // a derived key of FileSystemItem ("filenameWithExtension", ...)
    bool ascending = true;
};

// The list of items the next rename touches, in table order, and the set of their paths
// that keeps duplicates out. Not thread-safe: one thread at a time works on it (the
// window keeps its controls disabled while a worker scans or renames).
class FileList {
public:
    // Scans the paths depth-first, parent before children, and appends new records.
    // Relative paths are taken from the current folder; missing paths are skipped.
    // Hidden items are never listed nor descended into; a path already known is skipped;
    // cancel is polled before every path and every folder entry. In folder mode with
    // sub-folders the chosen top folders themselves are left out (also when an earlier
    // scan listed them), so only the folders below them are renamed.
    ScanResult addFiles(const QStringList& paths, const ScanOptions& options,
                        const std::atomic_bool& cancel, ProgressObserver* observer = nullptr);

    int size() const { return static_cast<int>(m_files.size()); }
    bool isEmpty() const { return m_files.empty(); }
    const FileSystemItem& at(int row) const { return m_files[static_cast<size_t>(row)]; }
    FileSystemItem& at(int row) { return m_files[static_cast<size_t>(row)]; }
    std::vector<FileSystemItem>& items() { return m_files; }
    const std::vector<FileSystemItem>& items() const { return m_files; }

    // Appends a record made elsewhere (an import) when its path is new; true if appended.
    bool append(FileSystemItem item);
    bool containsPath(const QString& path) const { return m_knownPaths.contains(path); }

    void clear();
    // Removes the given rows in one step and rebuilds the known-path set.
    void remove(const QList<int>& rows);
    // Move the selected rows one place; rows already at the edge stay, and so does a
    // selected block that reaches the edge. Each returns the rows the selected records
    // now occupy (the new selection); unknown and repeated rows are ignored.
    QList<int> moveUp(const QList<int>& selectedRows);
    QList<int> moveDown(const QList<int>& selectedRows);

    // Stable sort by one derived key with compareFiles.
    void sortBy(const SortKey& key);
    // The pipeline's per-folder order: by name, then (stable) by folder.
    void sortByFolderThenName();
    // Records found at a key of `moves` take the path it maps to, without a proposal or a
    // status: the list follows items that were renamed back. Answers how many moved.
    int followMoves(const QHash<QString, QString>& moves);

    // Rebuilds the known-path set from the records.
    void resetFilesDic();

private:
    int removeChosenFolders(const QStringList& chosen, size_t firstNewRow);

    std::vector<FileSystemItem> m_files;
    QSet<QString> m_knownPaths;
};

}  // namespace tavrin
