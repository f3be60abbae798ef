#include "gui/control/ActivityStatus.h"

#include "core/engine/Pipeline.h"

#include <QDateTime>

namespace tavrin {

namespace {

double secondsSinceEpoch()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

} // namespace

void ActivityStatus::startTiming()
{
    m_startTime = secondsSinceEpoch();
}

void ActivityStatus::finishTiming(const char* key)
{
    m_lastActionTimeTaken = timeTakenText(secondsSinceEpoch() - m_startTime, key);
    emit lastActionTimeTakenChanged(m_lastActionTimeTaken);
}

void ActivityStatus::clearTimeTaken()
{
    m_lastActionTimeTaken.clear();
    emit lastActionTimeTakenChanged(m_lastActionTimeTaken);
}

void ActivityStatus::showMessage(const QString& text)
{
    emit progressMessage(text);
}

} // namespace tavrin
