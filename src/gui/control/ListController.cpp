#include "gui/control/ListController.h"

#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ActivityStatus.h"

#include <QDebug>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

namespace tavrin {

namespace {

QString formattedCount(int count)
{
    return QLocale().toString(count);
}

} // namespace

ListController::ListController(Settings& settings, ActivityStatus& status, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_status(status)
{
    connect(&m_settings, &Settings::isFoldersChanged, this, &ListController::modeSettingChanged);
    connect(&m_settings, &Settings::isIncludeSubFoldersChanged, this, &ListController::modeChanged);
    connect(&m_job, &BackgroundJob::progressChanged, this, &ListController::reportProgress);
    connect(&m_job, &BackgroundJob::finished, this, &ListController::finishJob);
}

const std::vector<FileSystemItem>& ListController::shownItems() const
{
    return m_isExecuting ? m_snapshot : m_files.items();
}

bool ListController::isFiles() const
{
    return m_settings.isFiles();
}

bool ListController::isFolders() const
{
    return m_settings.isFolders();
}

bool ListController::isIncludeSubFolders() const
{
    return m_settings.isIncludeSubFolders();
}

QString ListController::countText() const
{
    return localized(isFolders() ? "TOTALFOLDERSSELECTED" : "TOTALFILESSELECTED")
        .arg(formattedCount(shownCount()));
}

QString ListController::foundCountText(int found) const
{
    return localized(isFolders() ? "TOTALFOLDERSFOUND" : "TOTALFILESFOUND").arg(formattedCount(found));
}

QString ListController::modeWordText() const
{
    return localized(isFolders() ? "FOLDERS" : "FILES");
}

void ListController::setMode(ListMode mode)
{
    if (!m_isExecuting)
        m_settings.chooseFilesOrFolders(mode == ListMode::Files ? 0 : 1);
}

void ListController::setIncludeSubFolders(bool include)
{
    if (!m_isExecuting)
        m_settings.setIsIncludeSubFolders(include);
}

// The records of one mode mean nothing in the other, whoever changed the mode.
void ListController::modeSettingChanged()
{
    clear();
    emit modeChanged();
}

void ListController::loadFiles(const QStringList& paths)
{
    if (m_isExecuting || paths.isEmpty())
        return;
    const bool hasFolder = std::any_of(paths.cbegin(), paths.cend(), [](const QString& path) {
        const QFileInfo info(path);
        return info.isDir() && !info.isSymLink();
    });
    if (hasFolder) {
        emit pasteboardItemsRequested(paths);
        return;
    }
    setMode(ListMode::Files);
    addFiles(paths);
}

bool ListController::addPastedItems(const QStringList& paths, const ListChoice& choice)
{
    if (m_isExecuting)
        return false;
    setMode(choice.mode);
    setIncludeSubFolders(choice.includeSubFolders);
    return addFiles(paths);
}

bool ListController::addFiles(const QStringList& paths)
{
    if (m_isExecuting || paths.isEmpty())
        return false;
    m_lastSkippedPaths.clear();
    emit foundCountChanged(foundCountText(0));
    const ScanOptions options { isFolders(), isIncludeSubFolders(), false };
    auto skipped = std::make_shared<QStringList>();
    const auto scan = [paths, options, skipped, order = arrivalOrder()](
                          FileList& files, const std::atomic_bool& cancel, ProgressObserver* progress) {
        *skipped = files.addFiles(paths, options, cancel, progress).skipped;
        if (order)
            files.sortBy(*order);
    };
    return run({ localized("LOADINGMESSAGE").arg(modeWordText()), "addFiles", false }, scan,
        [this, skipped] { finishAddFiles(*skipped); });
}

void ListController::finishAddFiles(const QStringList& skipped)
{
    m_lastSkippedPaths = skipped;
    m_status.finishTiming("LOADINGTIME");
    if (!m_lastSkippedPaths.isEmpty())
        emit nonUtf8NamesSkipped(m_lastSkippedPaths);
    emit addFinished();
}

// From here until the job ends the list belongs to it and the table shows a copy.
bool ListController::run(const ListJob& job, Work work, Finish finish)
{
    if (m_isExecuting)
        return false;
    m_snapshot = m_files.items();
    m_isExecuting = true;
    m_isQuietJob = job.quiet;
    m_finish = std::move(finish);
    const bool quiet = job.quiet;
    m_job.start([this, quiet, operation = job.operation, work = std::move(work)](
                    const std::atomic_bool& cancel, ProgressObserver* progress) {
        try {
            work(m_files, cancel, quiet ? nullptr : progress);
        } catch (const std::exception& error) {
            qWarning().noquote() << QStringLiteral("Error in %1 : %2")
                                        .arg(QString::fromLatin1(operation),
                                            QString::fromLocal8Bit(error.what()));
        }
    });
    if (!quiet) {
        m_status.startTiming();
        emit executingChanged(true);
        m_status.showMessage(job.message);
    }
    return true;
}

// Back on the GUI thread: the table shows the list itself again. After a quiet job the
// records are the same rows as the copy, so only their names change and the selection and
// the scroll position stay.
void ListController::finishJob()
{
    if (m_isQuietJob) {
        m_isExecuting = false;
        m_snapshot = std::vector<FileSystemItem>();
        emit namesChanged();
    } else {
        emit listAboutToChange();
        m_isExecuting = false;
        m_snapshot = std::vector<FileSystemItem>();
        emit listChanged();
        emit executingChanged(false);
        m_status.showMessage(QString());
    }
    std::exchange(m_finish, {})();
}

void ListController::reportProgress(const Progress& progress)
{
    if (!m_isExecuting)
        return;
    if (!progress.path.isEmpty())
        m_status.showMessage(getDisplayFilePath(progress.path));
    // A scan cannot know how much it will find; a preview and an apply know the list.
    if (progress.total < 0)
        emit foundCountChanged(foundCountText(progress.done));
    else
        emit progressChanged(progress);
}

void ListController::removeRows(const QList<int>& rows)
{
    if (m_isExecuting || rows.isEmpty())
        return;
    emit listAboutToChange();
    m_files.remove(rows);
    emit listChanged();
}

void ListController::followUndo(const QList<RenameLogEntry>& restored)
{
    if (m_isExecuting || restored.isEmpty())
        return;
    QHash<QString, QString> moves;
    moves.reserve(restored.size());
    for (const RenameLogEntry& entry : restored)
        moves.insert(entry.targetPath(), entry.sourcePath());
    emit listAboutToChange();
    m_files.followMoves(moves);
    emit listChanged();
}

void ListController::clear()
{
    if (m_isExecuting)
        return;
    emit listAboutToChange();
    m_files.clear();
    m_userArranged = false;
    m_lastSkippedPaths.clear();
    emit listChanged();
    emit cleared();
    m_status.showMessage(QString());
    m_status.clearTimeTaken();
}

QList<int> ListController::moveUp(const QList<int>& rows)
{
    if (m_isExecuting)
        return rows;
    emit orderAboutToChange();
    arrangedByUser(std::nullopt);
    QList<int> moved = m_files.moveUp(rows);
    emit orderChanged();
    return moved;
}

QList<int> ListController::moveDown(const QList<int>& rows)
{
    if (m_isExecuting)
        return rows;
    emit orderAboutToChange();
    arrangedByUser(std::nullopt);
    QList<int> moved = m_files.moveDown(rows);
    emit orderChanged();
    return moved;
}

void ListController::sort(const SortKey& key)
{
    if (m_isExecuting)
        return;
    emit listAboutToChange();
    arrangedByUser(key);
    m_files.sortBy(key);
    emit listChanged();
}

std::optional<SortKey> ListController::arrivalOrder() const
{
    if (m_userArranged)
        return m_userOrder;
    if (m_sortOnArrival)
        return SortKey { QString::fromLatin1(itemkeys::FilenameWithExtension), true };
    return std::nullopt;
}

void ListController::arrangedByUser(const std::optional<SortKey>& order)
{
    m_userArranged = true;
    m_userOrder = order;
}

} // namespace tavrin
