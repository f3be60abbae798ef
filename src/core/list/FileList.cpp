#include "core/list/FileList.h"

#include "core/list/FolderScan.h"

#include <QDir>
#include <algorithm>
#include <ranges>

namespace tavrin {

namespace {

QStringList absoluteCleanPaths(const QStringList& paths)
{
    const QDir current = QDir::current();
    QStringList clean;
    clean.reserve(paths.size());
    for (const QString& path : paths) {
        if (!path.isEmpty())
            clean.append(QDir::cleanPath(current.absoluteFilePath(path)));
    }
    return clean;
}

// Valid rows, ascending, each once.
std::vector<int> sortedRows(const QList<int>& rows, int rowCount)
{
    std::vector<int> sorted;
    for (const int row : rows) {
        if (row >= 0 && row < rowCount)
            sorted.push_back(row);
    }
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    return sorted;
}

} // namespace

ScanResult FileList::addFiles(const QStringList& paths, const ScanOptions& options,
    const std::atomic_bool& cancel, ProgressObserver* observer)
{
    const QStringList chosen = absoluteCleanPaths(paths);
    const bool leaveOutChosen = options.folders && options.includeSubFolders;
    // A chosen folder listed by an earlier scan would be refused as a duplicate and so
    // never descended into; it is dropped now and is left out again below anyway.
    if (leaveOutChosen)
        removeChosenFolders(chosen, m_files.size());
    const size_t firstNewRow = m_files.size();
    ScanResult result = FolderScan(m_files, m_knownPaths, options, cancel, observer).run(chosen);
    if (leaveOutChosen)
        result.added -= removeChosenFolders(chosen, firstNewRow);
    return result;
}

// Answers how many of the removed records this scan had added.
int FileList::removeChosenFolders(const QStringList& chosen, size_t firstNewRow)
{
    const QSet<QString> chosenSet(chosen.begin(), chosen.end());
    int removedNew = 0;
    size_t kept = 0;
    for (size_t row = 0; row < m_files.size(); ++row) {
        if (chosenSet.contains(m_files[row].fullPath())) {
            removedNew += row >= firstNewRow ? 1 : 0;
            continue;
        }
        if (kept != row)
            m_files[kept] = std::move(m_files[row]);
        ++kept;
    }
    m_files.erase(m_files.begin() + static_cast<std::ptrdiff_t>(kept), m_files.end());
    for (const QString& path : chosenSet)
        m_knownPaths.remove(path);
    return removedNew;
}

bool FileList::append(FileSystemItem item)
{
    const qsizetype knownBefore = m_knownPaths.size();
    m_knownPaths.insert(item.fullPath());
    if (m_knownPaths.size() == knownBefore)
        return false;
    m_files.push_back(std::move(item));
    return true;
}

void FileList::clear()
{
    std::vector<FileSystemItem>().swap(m_files);
    resetFilesDic();
}

void FileList::remove(const QList<int>& rows)
{
    std::vector<bool> doomed(m_files.size(), false);
    for (const int row : sortedRows(rows, size()))
        doomed[static_cast<size_t>(row)] = true;
    size_t kept = 0;
    for (size_t row = 0; row < m_files.size(); ++row) {
        if (doomed[row])
            continue;
        if (kept != row)
            m_files[kept] = std::move(m_files[row]);
        ++kept;
    }
    m_files.erase(m_files.begin() + static_cast<std::ptrdiff_t>(kept), m_files.end());
    resetFilesDic();
}

// A selected record swaps with the one above it; one that cannot (row 0, or right below a
// selected record that could not move) stays, so a selected block at the top stays whole.
QList<int> FileList::moveUp(const QList<int>& selectedRows)
{
    QList<int> selection;
    int blocked = -1;
    for (const int row : sortedRows(selectedRows, size())) {
        if (row - 1 > blocked) {
            std::swap(m_files[static_cast<size_t>(row)], m_files[static_cast<size_t>(row) - 1]);
            selection.append(row - 1);
        } else {
            blocked = row;
            selection.append(row);
        }
    }
    return selection;
}

// The mirror image of moveUp, walking from the last selected row to the first.
QList<int> FileList::moveDown(const QList<int>& selectedRows)
{
    const std::vector<int> rows = sortedRows(selectedRows, size());
    QList<int> selection;
    int blocked = size();
    for (const int row : std::views::reverse(rows)) {
        if (row + 1 < blocked) {
            std::swap(m_files[static_cast<size_t>(row)], m_files[static_cast<size_t>(row) + 1]);
            selection.prepend(row + 1);
        } else {
            blocked = row;
            selection.prepend(row);
        }
    }
    return selection;
}

void FileList::sortBy(const SortKey& key)
{
    struct Keyed {
        QByteArray sortKey;
        size_t row;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(m_files.size());
    for (size_t row = 0; row < m_files.size(); ++row)
        keyed.push_back({ filesSortKey(m_files[row].objectForKey(key.key)), row });
    std::stable_sort(keyed.begin(), keyed.end(), [ascending = key.ascending](const Keyed& a, const Keyed& b) {
        return ascending ? a.sortKey < b.sortKey : b.sortKey < a.sortKey;
    });
    std::vector<FileSystemItem> sorted;
    sorted.reserve(m_files.size());
    for (const Keyed& entry : keyed)
        sorted.push_back(std::move(m_files[entry.row]));
    m_files = std::move(sorted);
}

void FileList::sortByFolderThenName()
{
    sortBy({ QString::fromLatin1(itemkeys::FilenameWithExtension), true });
    sortBy({ QString::fromLatin1(itemkeys::FileLocation), true });
}

int FileList::followMoves(const QHash<QString, QString>& moves)
{
    int moved = 0;
    for (FileSystemItem& item : m_files) {
        const auto found = moves.constFind(item.fullPath());
        if (found == moves.constEnd())
            continue;
        item.setFullPath(*found);
        item.setObject(QString(), QString::fromLatin1(itemkeys::NewFilename));
        ++moved;
    }
    if (moved > 0)
        resetFilesDic();
    return moved;
}

void FileList::resetFilesDic()
{
    m_knownPaths = QSet<QString>();
    m_knownPaths.reserve(static_cast<qsizetype>(m_files.size()));
    for (const FileSystemItem& item : m_files)
        m_knownPaths.insert(item.fullPath());
}

} // namespace tavrin
