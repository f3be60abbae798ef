#include "gui/control/LivePreview.h"

#include "core/profiles/Settings.h"
#include "core/text/StringUtilities.h"
#include "gui/control/ListController.h"
#include "gui/control/RenameController.h"
#include "gui/control/SessionController.h"

#include <algorithm>

namespace tavrin {

LivePreview::LivePreview(RenameController& rename)
    : QObject(&rename)
    , m_rename(rename)
{
    m_quickPreviewTimer.setSingleShot(true);
    m_quickPreviewTimer.setInterval(DelayMilliseconds);
    connect(&m_quickPreviewTimer, &QTimer::timeout, this, &LivePreview::quickPreviewTimerMethod);
    connect(
        &rename.session().settings(), &Settings::settingsChanged, this, &LivePreview::scheduleQuickPreview);
    connect(&rename.session(), &SessionController::currentSettingsApplied, this,
        &LivePreview::scheduleQuickPreview);
    connect(&rename.session(), &SessionController::rulesChanged, this, &LivePreview::scheduleQuickPreview);
    // New items, and a new order that sequences follow, change the names too.
    connect(&rename.list(), &ListController::addFinished, this, &LivePreview::scheduleQuickPreview);
    connect(&rename.list(), &ListController::orderChanged, this, &LivePreview::scheduleQuickPreview);
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

// A profile being applied changes many options at once, and so does the normalising at the
// start of a preview; the preview waits for the end, where one is asked for.
void LivePreview::scheduleQuickPreview()
{
    if (!m_isLivePreviewEnabled || m_rename.session().isProfileLoading() || m_rename.isNormalising()
        || m_rename.list().shownCount() == 0)
        return;
    m_quickPreviewTimer.start();
}

// A change that arrives while another run is under way is not lost: the preview waits for
// the run to end.
void LivePreview::quickPreviewTimerMethod()
{
    if (m_rename.list().isExecuting()) {
        m_quickPreviewTimer.start();
        return;
    }
    m_rename.quickPreview(recordLimit());
}

} // namespace tavrin
