#pragma once

#include "core/list/Progress.h"

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>

class QThread;

namespace tavrin {

// Runs one job of the undo sheet at a time (a check or an undo) on a thread of its own, so
// that the sheet keeps repainting and answering while an undo walks many thousand items.
// The job writes its result where its caller reads it after finished(): the thread has
// ended by then.
class LogWorker : public QObject, private ProgressObserver {
    Q_OBJECT

public:
    using Job = std::function<void(const std::atomic_bool& cancel, ProgressObserver* progress)>;

    explicit LogWorker(QObject* parent = nullptr);
    // Asks a running job to stop and waits for it: a half-done undo keeps its log.
    ~LogWorker() override;

    bool isRunning() const { return m_thread != nullptr; }
    // False, and nothing starts, while another job runs.
    bool start(Job job);

signals:
    void progressChanged(int done, int total);
    void finished();

private:
    void progress(const Progress& progress) override;
    void finishJob();

    std::unique_ptr<QThread> m_thread;
    std::atomic_bool m_cancel = false;
};

} // namespace tavrin
