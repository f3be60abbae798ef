#include "core/list/Progress.h"

namespace tavrin {

namespace {
constexpr qint64 kMinimumIntervalMs = 33;
}

ThrottledProgress::ThrottledProgress(ProgressObserver* observer)
    : m_observer(observer)
{
}

void ThrottledProgress::report(const QString& path, int done, int total)
{
    if (!m_observer)
        return;
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < kMinimumIntervalMs)
        return;
    m_sinceLast.start();
    m_observer->progress({path, done, total});
}

void ThrottledProgress::finish(const QString& path, int done, int total)
{
    if (!m_observer)
        return;
    m_sinceLast.start();
    m_observer->progress({path, done, total});
}

}  // namespace tavrin
