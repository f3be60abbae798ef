#pragma once

#include "core/profiles/Settings.h"
#include "gui/control/ActivityStatus.h"
#include "gui/control/ListController.h"
#include "gui/control/RenameController.h"
#include "gui/control/RulesController.h"
#include "gui/control/SessionController.h"

#include <QObject>
#include <optional>

namespace tavrin {

// Owns the options and the controllers the window works through: the list, the renaming
// with its live preview, the session, and the status line they report to. The controllers
// hold no widget; the window and its sheets use them.
class TavrinAppController : public QObject {
    Q_OBJECT

public:
    explicit TavrinAppController(QObject* parent = nullptr);

    // Every option value, the list mode and the selected tab among them.
    Settings& settings() { return m_settings; }
    ActivityStatus& status() { return m_status; }
    ListController& list() { return m_list; }
    const ListController& list() const { return m_list; }
    RenameController& rename() { return m_rename; }
    SessionController& session() { return m_session; }
    RulesController& rules() { return m_rules; }

    // The start and the end of a session: the last profile, rule chain, options and
    // live-preview state come back from the user defaults, and go there at the end. A
    // remembered profile that cannot be opened any more is forgotten and its failure
    // answered, for the window to tell.
    std::optional<ProfileOutcome> applicationDidFinishLaunching();
    void applicationShouldTerminate();

private:
    Settings m_settings;
    ActivityStatus m_status;
    ListController m_list;
    SessionController m_session;
    RenameController m_rename;
    RulesController m_rules;
};

} // namespace tavrin
