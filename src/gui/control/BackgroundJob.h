#pragma once

#include "core/list/Progress.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class QThread;

namespace tavrin {

// Runs one piece of long work at a time (a scan, a preview, an apply, an undo) on a thread
// of its own, so that the window keeps repainting and answering meanwhile. The work gets a
// cancel flag and a progress observer; its reports reach the GUI thread at most ~30 times a
// second, the last one always, and finished() follows on the GUI thread once the thread has
// ended, so results the work wrote can be read from there without a lock.
class BackgroundJob : public QObject, private ProgressObserver {
    Q_OBJECT

public:
    using Work = std::function<void(const std::atomic_bool& cancel, ProgressObserver* progress)>;
    using Question = std::function<bool()>;

    static constexpr int ProgressIntervalMilliseconds = 33;

    explicit BackgroundJob(QObject* parent = nullptr);
    // Asks a running job to stop and waits for it.
    ~BackgroundJob() override;

    bool isRunning() const { return m_thread != nullptr; }
    // False, and nothing starts, while another job runs.
    bool start(Work work);
    void cancel() { m_cancel = true; }

    // On the worker thread: asks `question` (a dialog) on the GUI thread and waits for the
    // answer. A cancel ends the wait, so that a window closed while the question is on its way
    // never leaves the worker waiting; and a cancel always answers false.
    bool askOnGuiThread(const Question& question);

signals:
    void progressChanged(const tavrin::Progress& progress);
    void finished();

private:
    void progress(const Progress& progress) override;
    void deliverProgress();
    void finishJob();

    std::unique_ptr<QThread> m_thread;
    std::atomic_bool m_cancel = false;
    QMutex m_pendingMutex;
    std::optional<Progress> m_pending;
    bool m_deliveryQueued = false;
    QElapsedTimer m_sinceDelivery;
    QTimer m_throttle;
};

} // namespace tavrin
