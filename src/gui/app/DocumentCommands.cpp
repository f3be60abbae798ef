#include "gui/app/DocumentCommands.h"

#include "core/platform/FileOperations.h"
#include "core/rules/RuleLibraryImport.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "gui/control/SessionController.h"
#include "gui/ui/Prompter.h"

#include <QFileInfo>
#include <QWidget>

namespace tavrin {

DocumentCommands::DocumentCommands(SessionController* session, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_window(window)
{
}

void DocumentCommands::openProfile()
{
    const QString path = m_prompter->choose(m_window, Prompter::Choice::OpenProfile,
        { localized("CHOOSEPROFILETITLE"), m_session->preferences().defaultProfileFolderPath });
    if (!path.isEmpty())
        showProfileOutcome(m_session->setCurrentSettings(path));
}

void DocumentCommands::saveProfile()
{
    if (m_session->currProfileFile().isEmpty())
        saveProfileAs();
    else
        saveProfileTo(m_session->currProfileFile());
}

// The save dialog has already asked before replacing a file of the chosen name.
void DocumentCommands::saveProfileAs()
{
    const QString path = m_prompter->choose(m_window, Prompter::Choice::SaveProfile,
        { localized("SAVEASPROFILETITLE"), m_session->preferences().defaultProfileFolderPath });
    if (!path.isEmpty())
        saveProfileTo(path);
}

void DocumentCommands::saveProfileTo(const QString& path)
{
    QString error;
    if (!m_session->saveProfile(path, &error))
        m_prompter->warn(m_window, { localized("PROFILETITLE"), localized("PROFILESAVEDFAILED").arg(error) });
}

void DocumentCommands::loadDefaultProfile()
{
    m_session->loadDefaultProfile();
}

void DocumentCommands::showProfileOutcome(const ProfileOutcome& outcome)
{
    if (outcome.result != ProfileLoadResult::Loaded)
        m_prompter->warn(m_window, { localized("LOADPROFILETITLE"), outcome.message });
}

void DocumentCommands::openProfileDocument(const QString& path)
{
    const QString question = localized("PROFILELOADMESSAGE").arg(lastPathComponent(path));
    if (!m_prompter->askYesNo(m_window, { localized("PROFILESETTINGSFILETITLE"), question }))
        return;
    showProfileOutcome(m_session->setCurrentSettings(path));
    m_window->raise();
    m_window->activateWindow();
}

void DocumentCommands::openRuleDocument(const QString& path)
{
    const QString title = localized("RULESETTINGSFILETITLE");
    const QString name = lastPathComponent(path);
    switch (checkRuleFile(path)) {
    case RuleFileCheck::Incompatible:
        m_prompter->warn(m_window, { title, localized("RULEINCOMPATIBLE").arg(name) });
        return;
    case RuleFileCheck::Unreadable:
        m_prompter->warn(m_window, { title, localized("RULEUNREADABLE").arg(name) });
        return;
    case RuleFileCheck::Compatible:
        break;
    }
    const QString rulesFolder = m_session->preferences().defaultRulesFolderPath;
    const QString libraryPath = ruleLibraryPath(rulesFolder, path);
    // A rule opened from the library itself is already there.
    if (QFileInfo(libraryPath) == QFileInfo(path)) {
        m_prompter->inform(m_window, { title, localized("RULEADDEDTOLIBRARY").arg(name) });
        emit ruleInLibrary(name);
        return;
    }
    if (pathExists(libraryPath)
        && !m_prompter->askYesNo(m_window, { title, localized("RULEALREADYEXISTS").arg(name) }))
        return;
    QString error;
    if (!addRuleToLibrary(path, rulesFolder, &error)) {
        m_prompter->warn(m_window, { title, error });
        return;
    }
    m_prompter->inform(m_window, { title, localized("RULEADDEDTOLIBRARY").arg(name) });
    emit ruleInLibrary(name);
}

} // namespace tavrin
