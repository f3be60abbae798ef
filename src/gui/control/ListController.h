#pragma once

#include "core/list/FileList.h"
#include "core/log/RenameLogEntry.h"
#include "gui/control/BackgroundJob.h"
#include "gui/control/ListMode.h"

#include <QObject>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace tavrin {

class ActivityStatus;
class Settings;

// What a job on the list shows while it runs.
struct ListJob {
    // The progress line at the start; ignored for a quiet job.
    QString message;
    // Named in the diagnostic line when the work throws.
    const char* operation = "";
    // A quiet job (a live preview, while the user goes on typing) locks nothing, shows no
    // progress and only renews the new names.
    bool quiet = false;
};

// The list of items: scans, the edits of the list, and the one background job that works on
// it. While a job runs only the job touches the list; the table reads shownItems(), a copy
// taken when the job started, and every list change waits (it is ignored).
class ListController : public QObject {
    Q_OBJECT

public:
    using Work
        = std::function<void(FileList& files, const std::atomic_bool& cancel, ProgressObserver* progress)>;
    using Finish = std::function<void()>;

    ListController(Settings& settings, ActivityStatus& status, QObject* parent = nullptr);

    // The records the table shows, in table order.
    const std::vector<FileSystemItem>& shownItems() const;
    int shownCount() const { return static_cast<int>(shownItems().size()); }

    bool isFiles() const;
    bool isFolders() const;
    bool isIncludeSubFolders() const;
    bool isExecuting() const { return m_isExecuting; }
    // "Files listed: n" or "Folders listed: n", by mode.
    QString countText() const;
    // Paths the last scan left out because their names are not valid UTF-8.
    const QStringList& lastSkippedPaths() const { return m_lastSkippedPaths; }
    ActivityStatus& status() const { return m_status; }

    // A change between files and folders empties the list. Ignored while executing.
    void setMode(ListMode mode);
    void setIncludeSubFolders(bool include);

    // Scans the paths on the worker thread in the current mode; false (and nothing happens)
    // while another job runs or when there is no path.
    bool addFiles(const QStringList& paths);
    // Items handed over from outside (a file manager, a second launch, the clipboard). With
    // folders among them the user chooses how to list them (pasteboardItemsRequested);
    // otherwise they are listed as files. Ignored while executing.
    void loadFiles(const QStringList& paths);
    // The choice made for items from outside.
    bool addPastedItems(const QStringList& paths, const ListChoice& choice);

    // Runs `work` over the list on the worker thread, then `finish` on the GUI thread once
    // the table shows the list again. False, and nothing starts, while another job runs.
    bool run(const ListJob& job, Work work, Finish finish);
    // On the worker thread: see BackgroundJob::askOnGuiThread.
    bool askOnGuiThread(const BackgroundJob::Question& question) { return m_job.askOnGuiThread(question); }
    void cancelProcess() { m_job.cancel(); }

    // The list operations do nothing while executing.
    void removeRows(const QList<int>& rows);
    void clear();
    // Each returns the rows the moved records now occupy, the selection to show.
    QList<int> moveUp(const QList<int>& rows);
    QList<int> moveDown(const QList<int>& rows);
    void sort(const SortKey& key);
    // The order items that arrive are put in: by name the way people count, unless the
    // preference is off or the user made an order of their own (a header click keeps its
    // key; a move keeps the rows where the user put them, so arrivals go at the end).
    std::optional<SortKey> arrivalOrder() const;
    void setSortOnArrival(bool sort) { m_sortOnArrival = sort; }
    // After an undo: the rows of the items given back their old names show those names again.
    void followUndo(const QList<RenameLogEntry>& restored);

signals:
    void executingChanged(bool executing);
    void modeChanged();
    // The running count of an add: "Files found: n".
    void foundCountChanged(const QString& text);
    // How far a preview or an apply has come through the list.
    void progressChanged(const tavrin::Progress& progress);
    // Around a change that replaces the rows (add, remove, clear, sort, preview, apply).
    void listAboutToChange();
    void listChanged();
    // The list was emptied: nothing proposed is left.
    void cleared();
    // Around a move: the same rows in another order.
    void orderAboutToChange();
    void orderChanged();
    // A quiet job ended; only the new names changed.
    void namesChanged();
    // Emitted once at the end of a scan that left names out.
    void nonUtf8NamesSkipped(const QStringList& paths);
    void addFinished();
    void pasteboardItemsRequested(const QStringList& paths);

private:
    void reportProgress(const Progress& progress);
    void finishJob();
    void finishAddFiles(const QStringList& skipped);
    void modeSettingChanged();
    void arrangedByUser(const std::optional<SortKey>& order);
    QString foundCountText(int found) const;
    QString modeWordText() const;

    Settings& m_settings;
    ActivityStatus& m_status;
    FileList m_files;
    std::vector<FileSystemItem> m_snapshot;
    BackgroundJob m_job;
    Finish m_finish;
    QStringList m_lastSkippedPaths;
    bool m_isExecuting = false;
    bool m_isQuietJob = false;
    bool m_sortOnArrival = true;
    bool m_userArranged = false;
    std::optional<SortKey> m_userOrder;
};

} // namespace tavrin
