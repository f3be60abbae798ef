#pragma once

#include "core/list/FileList.h"
#include "core/list/Progress.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <vector>

class QThread;

namespace tavrin {

enum class ListMode { Files, Folders };

// Owns the file list and the list mode, runs long work on a worker thread and reports it
// back by queued calls: the one place where threads meet widgets. While a worker runs,
// only the worker touches the list; the window reads shownItems(), a copy taken when the
// worker started, and keeps every control that changes the list disabled.
class TavrinAppController : public QObject, private ProgressObserver {
    Q_OBJECT

public:
    explicit TavrinAppController(QObject* parent = nullptr);
    ~TavrinAppController() override;

    // The records the table shows, in table order.
    const std::vector<FileSystemItem>& shownItems() const;
    int shownCount() const { return static_cast<int>(shownItems().size()); }

    bool isFiles() const { return m_isFiles; }
    bool isFolders() const { return m_isFolders; }
    bool isIncludeSubFolders() const { return m_isIncludeSubFolders; }
    bool isExecuting() const { return m_isExecuting; }

    // Seconds since 1970 at the start and the end of the last operation.
    double startTime() const { return m_startTime; }
    double endTime() const { return m_endTime; }
    // The elapsed-time line of the last operation; empty after a clear.
    const QString& lastActionTimeTaken() const { return m_lastActionTimeTaken; }
    // Paths the last scan left out because their names are not valid UTF-8.
    const QStringList& lastSkippedPaths() const { return m_lastSkippedPaths; }

    // "Files listed: n" or "Folders listed: n", by mode.
    QString countText() const;

    // A change between files and folders empties the list. Ignored while executing.
    void setMode(ListMode mode);
    void setIncludeSubFolders(bool include);

    // Scans the paths on a worker thread in the current mode; false (and nothing
    // happens) while another operation runs or when there is no path.
    bool addFiles(const QStringList& paths);
    void cancelProcess();

    // The list operations do nothing while executing.
    void removeRows(const QList<int>& rows);
    void clear();
    // Each returns the rows the moved records now occupy, the selection to show.
    QList<int> moveUp(const QList<int>& rows);
    QList<int> moveDown(const QList<int>& rows);
    void sort(const SortKey& key);

    // Ends the timing of an operation and shows "<key's text>: <seconds>".
    void showLastActionTimeTaken(const char* key);

signals:
    void executingChanged(bool executing);
    void modeChanged();
    // A line for the progress area: what the operation does, then the path it is at.
    void progressMessage(const QString& text);
    // The running count of an add: "Files found: n".
    void foundCountChanged(const QString& text);
    // Around a change that replaces the rows (add, remove, clear, sort).
    void listAboutToChange();
    void listChanged();
    // Around a move: the same rows in another order.
    void orderAboutToChange();
    void orderChanged();
    void lastActionTimeTakenChanged(const QString& text);
    // Emitted once at the end of a scan that left names out.
    void nonUtf8NamesSkipped(const QStringList& paths);
    void addFinished();

private:
    void progress(const Progress& progress) override;
    void reportScanProgress(const QString& path, int found);
    void runScan(const QStringList& paths, const ScanOptions& options);
    void finishAddFiles();
    void setExecuting(bool executing);
    void stopWorker();
    QString foundCountText(int found) const;
    QString modeWordText() const;

    FileList m_files;
    std::vector<FileSystemItem> m_snapshot;
    std::unique_ptr<QThread> m_worker;
    std::atomic_bool m_cancel = false;
    ScanResult m_scanResult;
    QStringList m_lastSkippedPaths;
    QString m_lastActionTimeTaken;
    double m_startTime = 0;
    double m_endTime = 0;
    bool m_isFiles = true;
    bool m_isFolders = false;
    bool m_isIncludeSubFolders = false;
    bool m_isExecuting = false;
};

}  // namespace tavrin
