#include "gui/control/BackgroundJob.h"

#include <QThread>
#include <chrono>
#include <future>
#include <utility>

namespace tavrin {

BackgroundJob::BackgroundJob(QObject* parent)
    : QObject(parent)
{
    m_throttle.setSingleShot(true);
    connect(&m_throttle, &QTimer::timeout, this, &BackgroundJob::deliverProgress);
}

BackgroundJob::~BackgroundJob()
{
    if (!m_thread)
        return;
    m_cancel = true;
    m_thread->wait();
}

bool BackgroundJob::start(Work work)
{
    if (m_thread)
        return false;
    m_cancel = false;
    m_sinceDelivery.invalidate();
    m_thread.reset(QThread::create([this, work = std::move(work)] { work(m_cancel, this); }));
    connect(m_thread.get(), &QThread::finished, this, &BackgroundJob::finishJob);
    m_thread->start();
    return true;
}

// On the worker thread: only the newest report is kept, and one delivery at a time is on
// its way to the GUI thread.
void BackgroundJob::progress(const Progress& progress)
{
    {
        const QMutexLocker lock(&m_pendingMutex);
        m_pending = progress;
        if (std::exchange(m_deliveryQueued, true))
            return;
    }
    QMetaObject::invokeMethod(this, &BackgroundJob::deliverProgress, Qt::QueuedConnection);
}

void BackgroundJob::deliverProgress()
{
    if (m_sinceDelivery.isValid()) {
        const qint64 wait = ProgressIntervalMilliseconds - m_sinceDelivery.elapsed();
        if (wait > 0) {
            m_throttle.start(static_cast<int>(wait));
            return;
        }
    }
    std::optional<Progress> latest;
    {
        const QMutexLocker lock(&m_pendingMutex);
        latest = std::exchange(m_pending, std::nullopt);
        m_deliveryQueued = false;
    }
    if (!latest)
        return;
    m_sinceDelivery.start();
    emit progressChanged(*latest);
}

// The report held back by the throttle goes out before the end, so the last one arrives.
void BackgroundJob::finishJob()
{
    m_thread->wait();
    m_thread.reset();
    m_throttle.stop();
    m_sinceDelivery.invalidate();
    deliverProgress();
    emit finished();
}

bool BackgroundJob::askOnGuiThread(const Question& question)
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

} // namespace tavrin
