#include "gui/log/LogWorker.h"

#include <QThread>

namespace tavrin {

LogWorker::LogWorker(QObject* parent)
    : QObject(parent)
{
}

LogWorker::~LogWorker()
{
    if (!m_thread)
        return;
    m_cancel = true;
    m_thread->wait();
}

bool LogWorker::start(Job job)
{
    if (m_thread)
        return false;
    m_cancel = false;
    m_thread.reset(QThread::create([this, job = std::move(job)] { job(m_cancel, this); }));
    connect(m_thread.get(), &QThread::finished, this, &LogWorker::finishJob);
    m_thread->start();
    return true;
}

// On the worker thread; the core sends a few dozen of these a second at most.
void LogWorker::progress(const Progress& progress)
{
    QMetaObject::invokeMethod(
        this, [this, done = progress.done, total = progress.total] { emit progressChanged(done, total); },
        Qt::QueuedConnection);
}

void LogWorker::finishJob()
{
    m_thread->wait();
    m_thread.reset();
    emit finished();
}

} // namespace tavrin
