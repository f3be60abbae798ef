#include "gui/app/TavrinAppController.h"

#include "core/profiles/Preferences.h"
#include "core/profiles/SettingsRecord.h"
#include "core/formats/KeyedArchive.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/LivePreview.h"

#include <QDateTime>
#include <QDebug>
#include <QFileInfo>
#include <QLocale>
#include <QMetaProperty>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <exception>
#include <future>

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

void copyOptions(const Settings& from, Settings& to)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        property.write(&to, property.read(&from));
    }
}

void logFailure(const char* operation, const std::exception& error)
{
    qWarning().noquote() << QStringLiteral("Error in %1 : %2")
                                .arg(QString::fromLatin1(operation), QString::fromLocal8Bit(error.what()));
}

}  // namespace

TavrinAppController::TavrinAppController(QObject* parent)
    : QObject(parent)
    , m_preferences(Preferences::defaults())
    , m_userDefaults(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Palisade Soft"),
          QStringLiteral("Tavrin3"))
    , m_livePreview(new LivePreview(*this))
{
    m_settings.resetToStartValues();
    connect(&m_settings, &Settings::isFoldersChanged, this, &TavrinAppController::modeSettingChanged);
    connect(&m_settings, &Settings::isIncludeSubFoldersChanged, this, &TavrinAppController::modeChanged);
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
    return localized(isFolders() ? "TOTALFOLDERSSELECTED" : "TOTALFILESSELECTED")
        .arg(formattedCount(shownCount()));
}

QString TavrinAppController::foundCountText(int found) const
{
    return localized(isFolders() ? "TOTALFOLDERSFOUND" : "TOTALFILESFOUND").arg(formattedCount(found));
}

QString TavrinAppController::modeWordText() const
{
    return localized(isFolders() ? "FOLDERS" : "FILES");
}

void TavrinAppController::setMode(ListMode mode)
{
    if (!m_isExecuting)
        m_settings.chooseFilesOrFolders(mode == ListMode::Files ? 0 : 1);
}

void TavrinAppController::setIncludeSubFolders(bool include)
{
    if (!m_isExecuting)
        m_settings.setIsIncludeSubFolders(include);
}

// The records of one mode mean nothing in the other, whoever changed the mode.
void TavrinAppController::modeSettingChanged()
{
    clear();
    emit modeChanged();
}

void TavrinAppController::loadFiles(const QStringList& paths)
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

bool TavrinAppController::addPastedItems(const QStringList& paths, bool folders, bool includeSubFolders)
{
    if (m_isExecuting)
        return false;
    setMode(folders ? ListMode::Folders : ListMode::Files);
    setIncludeSubFolders(includeSubFolders);
    return addFiles(paths);
}

bool TavrinAppController::addFiles(const QStringList& paths)
{
    if (m_isExecuting || paths.isEmpty())
        return false;
    m_scanResult = ScanResult();
    m_lastSkippedPaths.clear();
    emit foundCountChanged(foundCountText(0));
    const ScanOptions options{isFolders(), isIncludeSubFolders(), false};
    startWorker(localized("LOADINGMESSAGE").arg(modeWordText()),
                [this, paths, options] { runScan(paths, options); }, &TavrinAppController::finishAddFiles);
    return true;
}

std::optional<ValidationFailure> TavrinAppController::preview()
{
    if (m_isExecuting || m_files.isEmpty())
        return std::nullopt;
    if (std::optional<ValidationFailure> failure = validateAndNormalise(m_settings, m_settings.selectedTab()))
        return failure;
    copyOptions(m_settings, m_workerSettings);
    m_previewOutcome = PreviewOutcome();
    startWorker(localized("GENERATINGPREVIEWPLEASEWAIT"), [this] { runPreview(-1, this); },
                &TavrinAppController::finishPreview);
    return std::nullopt;
}

bool TavrinAppController::quickPreview(int limit)
{
    if (m_isExecuting || m_files.isEmpty())
        return false;
    // Normalising changes options; those changes must not arm another live preview.
    m_isProfileLoading = true;
    const std::optional<ValidationFailure> failure = validateAndNormalise(m_settings, m_settings.selectedTab());
    m_isProfileLoading = false;
    if (failure) {
        emit progressMessage(LocalizedStrings::text(failure->messageKey));
        return false;
    }
    copyOptions(m_settings, m_workerSettings);
    m_previewOutcome = PreviewOutcome();
    m_quickPreviewLimit = limit;
    launchWorker([this, limit] { runPreview(limit, nullptr); }, &TavrinAppController::finishQuickPreview);
    return true;
}

bool TavrinAppController::apply(const ContinueWithoutLogQuestion& continueWithoutLog)
{
    if (m_isExecuting || !m_isHasFilesForRenaming)
        return false;
    copyOptions(m_settings, m_workerSettings);
    m_applyOutcome = ApplyOutcome();
    setHasFilesForRenaming(false);
    startWorker(
        localized("RENAMINGITEMSPLEASEWAIT").arg(modeWordText()),
        [this, folder = m_preferences.defaultLogFolderPath, continueWithoutLog] { runApply(folder, continueWithoutLog); },
        &TavrinAppController::finishApply);
    return true;
}

// While the worker runs, the table keeps showing a copy of the list taken here.
void TavrinAppController::startWorker(
    const QString& message, std::function<void()> work, void (TavrinAppController::*finish)())
{
    m_startTime = m_endTime = secondsSinceEpoch();
    launchWorker(std::move(work), finish);
    emit executingChanged(true);
    emit progressMessage(message);
}

// From here until the worker ends the list belongs to it (list changes wait) and the table
// shows a copy. Alone, as for a live preview that runs while the user goes on typing, it
// disables nothing and shows no progress; startWorker adds both.
void TavrinAppController::launchWorker(std::function<void()> work, void (TavrinAppController::*finish)())
{
    m_cancel = false;
    m_snapshot = m_files.items();
    m_isExecuting = true;
    m_worker.reset(QThread::create(std::move(work)));
    connect(m_worker.get(), &QThread::finished, this, finish);
    m_worker->start();
}

// The records are the same rows as the copy the table showed, so only their new names
// change: the selection and the scroll position stay.
void TavrinAppController::endQuietWorker()
{
    m_worker->wait();
    m_worker.reset();
    m_isExecuting = false;
    m_snapshot = std::vector<FileSystemItem>();
    emit namesChanged();
}

// Back on the GUI thread once the worker is done: the table shows the list itself again.
void TavrinAppController::endWorker()
{
    m_worker->wait();
    m_worker.reset();
    emit listAboutToChange();
    m_isExecuting = false;
    m_snapshot = std::vector<FileSystemItem>();
    emit listChanged();
    emit executingChanged(false);
    emit progressMessage(QString());
}

// On the worker thread.
void TavrinAppController::runScan(const QStringList& paths, const ScanOptions& options)
{
    try {
        m_scanResult = m_files.addFiles(paths, options, m_cancel, this);
    } catch (const std::exception& error) {
        logFailure("addFiles", error);
    }
}

// On the worker thread.
void TavrinAppController::runPreview(int limit, ProgressObserver* observer)
{
    try {
        const PropertyOptionValues values(m_workerSettings);
        Pipeline pipeline(m_files, values);
        m_previewOutcome = pipeline.preview(m_cancel, observer, limit);
    } catch (const std::exception& error) {
        logFailure("doPreview", error);
    }
}

// On the worker thread.
void TavrinAppController::runApply(
    const QString& logFolder, const ContinueWithoutLogQuestion& continueWithoutLog)
{
    try {
        const PropertyOptionValues values(m_workerSettings);
        Pipeline pipeline(m_files, values);
        m_applyOutcome = pipeline.applyRenames(
            logFolder, [this, &continueWithoutLog] { return askOnGuiThread(continueWithoutLog); }, m_cancel,
            this);
    } catch (const std::exception& error) {
        logFailure("doApply", error);
    }
}

// On the worker thread: the question is a dialog, so it is asked on the GUI thread while
// the worker waits. A cancel also ends the wait, so that closing the window while the
// question is on its way cannot leave the worker waiting for an answer that never comes;
// and a cancel always means no renames, whatever the answer.
bool TavrinAppController::askOnGuiThread(const ContinueWithoutLogQuestion& question)
{
    if (!question)
        return false;
    auto answer = std::make_shared<std::promise<bool>>();
    std::future<bool> answered = answer->get_future();
    QMetaObject::invokeMethod(
        this, [question, answer] { answer->set_value(question()); }, Qt::QueuedConnection);
    while (answered.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready) {
        if (m_cancel.load())
            return false;
    }
    return answered.get() && !m_cancel.load();
}

// On the worker thread; the core already limits these to a few dozen a second.
void TavrinAppController::progress(const Progress& progress)
{
    QMetaObject::invokeMethod(this, [this, progress] { reportProgress(progress); }, Qt::QueuedConnection);
}

void TavrinAppController::reportProgress(const Progress& progress)
{
    if (!m_isExecuting)
        return;
    if (!progress.path.isEmpty())
        emit progressMessage(getDisplayFilePath(progress.path));
    // A scan cannot know how much it will find; a preview and an apply know the list.
    if (progress.total < 0)
        emit foundCountChanged(foundCountText(progress.done));
    else
        emit progressChanged(progress.done, progress.total);
}

void TavrinAppController::finishAddFiles()
{
    m_lastSkippedPaths = m_scanResult.skipped;
    endWorker();
    showLastActionTimeTaken("LOADINGTIME");
    if (!m_lastSkippedPaths.isEmpty())
        emit nonUtf8NamesSkipped(m_lastSkippedPaths);
    emit addFinished();
}

void TavrinAppController::finishPreview()
{
    endWorker();
    showLastActionTimeTaken("PREVIEWTIME");
    setHasFilesForRenaming(m_previewOutcome.hasFilesForRenaming);
    if (!m_previewOutcome.actionSucceeded)
        emit progressMessage(m_previewOutcome.lastError);
    emit previewFinished();
}

// A live preview that left records out cannot be applied: renaming only the first records
// of the list would surprise. A full preview is needed first.
void TavrinAppController::finishQuickPreview()
{
    endQuietWorker();
    const bool coveredAll = m_quickPreviewLimit < 0 || m_quickPreviewLimit >= shownCount();
    setHasFilesForRenaming(coveredAll && m_previewOutcome.hasFilesForRenaming);
    emit progressMessage(m_previewOutcome.actionSucceeded ? QString() : m_previewOutcome.lastError);
    emit livePreviewFinished();
}

void TavrinAppController::finishApply()
{
    endWorker();
    showLastActionTimeTaken("RENAMINGTIME");
    emit renamedCountChanged(renamedCountText());
    emit progressMessage(logLocationText());
    emit applyFinished();
}

QString TavrinAppController::renamedCountText() const
{
    QString text = localized(isFolders() ? "TOTALNOSFOLDERSRENAMED" : "TOTALNOSFILESRENAMED")
                       .arg(formattedCount(m_applyOutcome.renamed));
    if (m_applyOutcome.failed > 0)
        text += QLatin1Char(' ') + localized("NOTRENAMEDCOUNT").arg(formattedCount(m_applyOutcome.failed));
    return text;
}

QString TavrinAppController::logLocationText() const
{
    if (m_applyOutcome.aborted)
        return localized("RENAMINGABORTEDNOLOG");
    if (m_applyOutcome.logPath.isEmpty())
        return localized("LOGNOTWRITTEN");
    return localized("LOGSAVEDAT").arg(getDisplayFilePath(m_applyOutcome.logPath));
}

void TavrinAppController::cancelProcess()
{
    m_cancel = true;
}

void TavrinAppController::setHasFilesForRenaming(bool hasFiles)
{
    if (hasFiles == m_isHasFilesForRenaming)
        return;
    m_isHasFilesForRenaming = hasFiles;
    emit hasFilesForRenamingChanged(hasFiles);
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
    setHasFilesForRenaming(false);
    emit progressMessage(QString());
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

void TavrinAppController::startTiming()
{
    m_startTime = m_endTime = secondsSinceEpoch();
}

void TavrinAppController::showLastActionTimeTaken(const char* key)
{
    m_endTime = secondsSinceEpoch();
    m_lastActionTimeTaken = timeTakenText(m_endTime - m_startTime, key);
    emit lastActionTimeTakenChanged(m_lastActionTimeTaken);
}

}  // namespace tavrin
