#include "gui/app/TavrinAppController.h"

namespace tavrin {

TavrinAppController::TavrinAppController(QObject* parent)
    : QObject(parent)
    , m_list(m_settings, m_status)
    , m_session(m_settings, m_list)
    , m_rename(m_list, m_session)
    , m_rules(m_session, m_list)
{
    m_settings.resetToStartValues();
    m_list.setSortOnArrival(m_session.sortsOnArrival());
}

std::optional<ProfileOutcome> TavrinAppController::applicationDidFinishLaunching()
{
    std::optional<ProfileOutcome> failure = m_session.applicationDidFinishLaunching();
    m_rename.restoreLivePreview();
    return failure;
}

void TavrinAppController::applicationShouldTerminate()
{
    m_session.applicationShouldTerminate();
}

} // namespace tavrin
