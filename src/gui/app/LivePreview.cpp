#include "gui/app/LivePreview.h"

#include "core/text/StringUtilities.h"
#include "gui/app/TavrinAppController.h"

#include <algorithm>

namespace tavrin {

LivePreview::LivePreview(TavrinAppController& controller)
    : QObject(&controller)
    , m_controller(controller)
{
    m_quickPreviewTimer.setSingleShot(true);
    m_quickPreviewTimer.setInterval(DelayMilliseconds);
    connect(&m_quickPreviewTimer, &QTimer::timeout, this, &LivePreview::quickPreviewTimerMethod);
    connect(&controller.settings(), &Settings::settingsChanged, this, &LivePreview::scheduleQuickPreview);
    connect(&controller, &TavrinAppController::currentSettingsApplied, this, &LivePreview::scheduleQuickPreview);
    // New items, and a new order that sequences follow, change the names too.
    connect(&controller, &TavrinAppController::addFinished, this, &LivePreview::scheduleQuickPreview);
    connect(&controller, &TavrinAppController::orderChanged, this, &LivePreview::scheduleQuickPreview);
}

int LivePreview::recordLimit() const
{
    return m_isLivePreviewAllFiles ? -1 : std::max(1, toInteger(m_livePreviewFilesLimit));
}

void LivePreview::setLivePreviewEnabled(bool enabled)
{
    if (enabled == m_isLivePreviewEnabled)
        return;
    m_isLivePreviewEnabled = enabled;
    if (enabled)
        scheduleQuickPreview();
    else
        m_quickPreviewTimer.stop();
    emit stateChanged();
}

void LivePreview::setCoverage(bool allFiles, const QString& filesLimit)
{
    m_isLivePreviewAllFiles = allFiles;
    m_livePreviewFilesLimit = filesLimit;
    emit stateChanged();
}

// A profile being applied changes many options at once; the preview waits for the end,
// where the controller asks for one.
void LivePreview::scheduleQuickPreview()
{
    if (!m_isLivePreviewEnabled || m_controller.isProfileLoading() || m_controller.shownCount() == 0)
        return;
    m_quickPreviewTimer.start();
}

// A change that arrives while another run is under way is not lost: the preview waits for
// the run to end.
void LivePreview::quickPreviewTimerMethod()
{
    if (m_controller.isExecuting()) {
        m_quickPreviewTimer.start();
        return;
    }
    m_controller.quickPreview(recordLimit());
}

} // namespace tavrin
