#include "core/list/FolderScan.h"

#include "core/platform/FileOperations.h"

#include "core/list/FilesComparison.h"
#include "core/list/StatusTexts.h"
#include "core/text/NameParts.h"

#include <QDebug>
#include <QFile>
#include <algorithm>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace tavrin {

namespace {

struct DirCloser {
    void operator()(DIR* dir) const { ::closedir(dir); }
};
using DirPtr = std::unique_ptr<DIR, DirCloser>;

struct FolderEntry {
    QByteArray sortKey;
    QString path;
};

// A directory itself, not a link to one; d_type saves a stat call on most file systems.
bool isRealFolder(const QByteArray& rawFolder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat info { };
    const QByteArray rawPath = rawFolder + '/' + entry.d_name;
    return ::lstat(rawPath.constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

// A hidden entry's name starts with "."; so do "." and "..", which are never listed either.
bool isHiddenName(const char* name)
{
    return name[0] == '.';
}

QStringList pathsInFilesOrder(std::vector<FolderEntry>& entries)
{
    std::sort(entries.begin(), entries.end(),
        [](const FolderEntry& a, const FolderEntry& b) { return a.sortKey < b.sortKey; });
    QStringList paths;
    paths.reserve(static_cast<qsizetype>(entries.size()));
    for (FolderEntry& entry : entries)
        paths.append(std::move(entry.path));
    return paths;
}

} // namespace

FolderScan::FolderScan(std::vector<FileSystemItem>& files, QSet<QString>& knownPaths,
    const ScanOptions& options, const std::atomic_bool& cancel, ProgressObserver* observer)
    : m_files(files)
    , m_knownPaths(knownPaths)
    , m_options(options)
    , m_cancel(cancel)
    , m_progress(observer)
{
}

ScanResult FolderScan::run(const QStringList& paths)
{
    try {
        QStringList existing;
        for (const QString& path : paths) {
            if (!path.isEmpty() && pathExists(path))
                existing.append(path);
        }
        scan(existing);
    } catch (const std::exception& error) {
        qWarning().noquote()
            << QStringLiteral("addFilesToList Error : %1").arg(QString::fromLocal8Bit(error.what()));
    }
    m_progress.finish(m_lastPath, m_result.added);
    return m_result;
}

void FolderScan::scan(const QStringList& topPaths)
{
    std::vector<Frame> stack;
    stack.push_back({ topPaths, 0 });
    while (!stack.empty()) {
        Frame& frame = stack.back();
        if (frame.next == frame.paths.size()) {
            stack.pop_back();
            continue;
        }
        if (m_cancel.load(std::memory_order_relaxed)) {
            m_result.cancelled = true;
            return;
        }
        const QString path = frame.paths.at(frame.next++);
        QStringList children = visit(path);
        if (!children.isEmpty())
            stack.push_back({ std::move(children), 0 });
    }
}

QStringList FolderScan::visit(const QString& path)
{
    std::optional<FileSystemItem> record = FileSystemItem::initWithPath(path);
    if (!record)
        return {};
    m_lastPath = path;
    m_progress.report(path, m_result.added);
    // Links are aliases, never folders: they are listed like files and never followed,
    // so a link cannot lead the scan out of the chosen tree or round in a loop.
    if (!record->isFolder()) {
        if (!m_options.folders)
            addRecord(std::move(*record));
        return {};
    }
    return visitFolder(std::move(*record));
}

QStringList FolderScan::visitFolder(FileSystemItem record)
{
    const QString path = record.fullPath();
    if (!m_options.folders)
        return m_options.includeSubFolders ? listFolder(path, false) : QStringList();
    if (!addRecord(std::move(record)) || !m_options.includeSubFolders)
        return {};
    return listFolder(path, true);
}

bool FolderScan::addRecord(FileSystemItem record)
{
    const qsizetype knownBefore = m_knownPaths.size();
    m_knownPaths.insert(record.fullPath());
    if (m_knownPaths.size() == knownBefore)
        return false;
    if (m_options.renameFromFileTab)
        record.setStatus(RenameStatus::NoChanges);
    m_files.push_back(std::move(record));
    ++m_result.added;
    return true;
}

// Reads the folder as raw bytes: a name that is not valid UTF-8 could not be renamed back
// and forth through QString, so it is reported instead of listed.
QStringList FolderScan::listFolder(const QString& folder, bool foldersOnly)
{
    const QByteArray rawFolder = QFile::encodeName(folder);
    const DirPtr dir(::opendir(rawFolder.constData()));
    if (!dir)
        return {};
    std::vector<FolderEntry> entries;
    while (!m_cancel.load(std::memory_order_relaxed)) {
        const dirent* entry = ::readdir(dir.get());
        if (!entry)
            return pathsInFilesOrder(entries);
        if (isHiddenName(entry->d_name) || (foldersOnly && !isRealFolder(rawFolder, *entry)))
            continue;
        const QByteArray rawName(entry->d_name);
        const QString name = QString::fromUtf8(rawName);
        if (name.toUtf8() != rawName) {
            m_result.skipped.append(joinPath(folder, name));
            continue;
        }
        entries.push_back({ filesSortKey(name), joinPath(folder, name) });
    }
    return {};
}

} // namespace tavrin
