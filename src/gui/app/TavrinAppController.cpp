#include "gui/app/TavrinAppController.h"

#include "core/text/LocalizedStrings.h"

#include <QDateTime>
#include <QDebug>
#include <QLocale>
#include <QThread>
#include <exception>

namespace tavrin {

namespace {

double secondsSinceEpoch()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

QString formattedCount(int count)
{
    return QLocale().toString(count);
}

}  // namespace

TavrinAppController::TavrinAppController(QObject* parent)
    : QObject(parent)
{
}

TavrinAppController::~TavrinAppController()
{
    stopWorker();
}

const std::vector<FileSystemItem>& TavrinAppController::shownItems() const
{
    return m_isExecuting ? m_snapshot : m_files.items();
}

QString TavrinAppController::countText() const
{
    return localized(m_isFolders ? "TOTALFOLDERSSELECTED" : "TOTALFILESSELECTED").arg(formattedCount(shownCount()));
}

QString TavrinAppController::foundCountText(int found) const
{
    return localized(m_isFolders ? "TOTALFOLDERSFOUND" : "TOTALFILESFOUND").arg(formattedCount(found));
}

QString TavrinAppController::modeWordText() const
{
    return localized(m_isFolders ? "FOLDERS" : "FILES");
}

void TavrinAppController::setMode(ListMode mode)
{
    const bool files = mode == ListMode::Files;
    if (m_isExecuting || files == m_isFiles)
        return;
    m_isFiles = files;
    m_isFolders = !files;
    clear();
    emit modeChanged();
}

void TavrinAppController::setIncludeSubFolders(bool include)
{
    if (m_isExecuting || include == m_isIncludeSubFolders)
        return;
    m_isIncludeSubFolders = include;
    emit modeChanged();
}

bool TavrinAppController::addFiles(const QStringList& paths)
{
    if (m_isExecuting || paths.isEmpty())
        return false;
    m_cancel = false;
    m_scanResult = ScanResult();
    m_lastSkippedPaths.clear();
    // The worker appends to the list itself; the table keeps showing this copy meanwhile.
    m_snapshot = m_files.items();
    setExecuting(true);
    m_startTime = m_endTime = secondsSinceEpoch();
    emit progressMessage(localized("LOADINGMESSAGE").arg(modeWordText()));
    emit foundCountChanged(foundCountText(0));

    const ScanOptions options{m_isFolders, m_isIncludeSubFolders, false};
    m_worker.reset(QThread::create([this, paths, options] { runScan(paths, options); }));
    connect(m_worker.get(), &QThread::finished, this, &TavrinAppController::finishAddFiles);
    m_worker->start();
    return true;
}

// On the worker thread.
void TavrinAppController::runScan(const QStringList& paths, const ScanOptions& options)
{
    try {
        m_scanResult = m_files.addFiles(paths, options, m_cancel, this);
    } catch (const std::exception& error) {
        qWarning().noquote() << QStringLiteral("Error in addFiles : %1").arg(QString::fromLocal8Bit(error.what()));
    }
}

// On the worker thread; the core already limits these to a few dozen a second.
void TavrinAppController::progress(const Progress& progress)
{
    QMetaObject::invokeMethod(
        this, [this, path = progress.path, found = progress.done] { reportScanProgress(path, found); },
        Qt::QueuedConnection);
}

void TavrinAppController::reportScanProgress(const QString& path, int found)
{
    if (!m_isExecuting)
        return;
    emit progressMessage(getDisplayFilePath(path));
    emit foundCountChanged(foundCountText(found));
}

void TavrinAppController::finishAddFiles()
{
    m_worker->wait();
    m_worker.reset();
    m_lastSkippedPaths = m_scanResult.skipped;
    emit listAboutToChange();
    m_isExecuting = false;
    m_snapshot = std::vector<FileSystemItem>();
    emit listChanged();
    emit executingChanged(false);
    emit progressMessage(QString());
    showLastActionTimeTaken("LOADINGTIME");
    if (!m_lastSkippedPaths.isEmpty())
        emit nonUtf8NamesSkipped(m_lastSkippedPaths);
    emit addFinished();
}

void TavrinAppController::cancelProcess()
{
    m_cancel = true;
}

void TavrinAppController::setExecuting(bool executing)
{
    m_isExecuting = executing;
    emit executingChanged(executing);
}

void TavrinAppController::stopWorker()
{
    if (!m_worker)
        return;
    m_cancel = true;
    m_worker->wait();
    m_worker.reset();
}

void TavrinAppController::removeRows(const QList<int>& rows)
{
    if (m_isExecuting || rows.isEmpty())
        return;
    emit listAboutToChange();
    m_files.remove(rows);
    emit listChanged();
}

void TavrinAppController::clear()
{
    if (m_isExecuting)
        return;
    emit listAboutToChange();
    m_files.clear();
    m_lastSkippedPaths.clear();
    emit listChanged();
    m_lastActionTimeTaken.clear();
    emit lastActionTimeTakenChanged(m_lastActionTimeTaken);
}

QList<int> TavrinAppController::moveUp(const QList<int>& rows)
{
    if (m_isExecuting)
        return rows;
    emit orderAboutToChange();
    const QList<int> moved = m_files.moveUp(rows);
    emit orderChanged();
    return moved;
}

QList<int> TavrinAppController::moveDown(const QList<int>& rows)
{
    if (m_isExecuting)
        return rows;
    emit orderAboutToChange();
    const QList<int> moved = m_files.moveDown(rows);
    emit orderChanged();
    return moved;
}

void TavrinAppController::sort(const SortKey& key)
{
    if (m_isExecuting)
        return;
    emit listAboutToChange();
    m_files.sortBy(key);
    emit listChanged();
}

void TavrinAppController::showLastActionTimeTaken(const char* key)
{
    m_endTime = secondsSinceEpoch();
    const QString seconds = QLocale().toString(m_endTime - m_startTime, 'f', 2);
    m_lastActionTimeTaken = localized("TIMETAKEN").arg(seconds, localized(key));
    emit lastActionTimeTakenChanged(m_lastActionTimeTaken);
}

}  // namespace tavrin
