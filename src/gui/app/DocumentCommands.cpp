#include "gui/app/DocumentCommands.h"

#include "core/platform/FileOperations.h"
#include "core/rules/RuleLibraryImport.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "gui/app/TavrinAppController.h"
#include "gui/ui/Prompter.h"

#include <QFileDialog>
#include <QFileInfo>

namespace tavrin {

namespace {

constexpr char kProfileExtension[] = ".tnprofile";

QString profileFilter()
{
    return localized("PROFILEFILEFILTER") + QStringLiteral(" (*.tnprofile)");
}

QString chooseProfileToOpen(QWidget* parent, const QString& title, const QString& folder)
{
    return QFileDialog::getOpenFileName(parent, title, folder, profileFilter());
}

QString chooseProfileToSave(QWidget* parent, const QString& title, const QString& folder)
{
    QString path = QFileDialog::getSaveFileName(parent, title, folder, profileFilter());
    if (!path.isEmpty() && !path.endsWith(QLatin1String(kProfileExtension), Qt::CaseInsensitive))
        path += QLatin1String(kProfileExtension);
    return path;
}

} // namespace

DocumentCommands::DocumentCommands(TavrinAppController* controller, QWidget* window)
    : QObject(window)
    , m_controller(controller)
    , m_window(window)
    , m_openChooser(chooseProfileToOpen)
    , m_saveChooser(chooseProfileToSave)
{
}

void DocumentCommands::setFileChoosers(FileChooser openChooser, FileChooser saveChooser)
{
    m_openChooser = std::move(openChooser);
    m_saveChooser = std::move(saveChooser);
}

void DocumentCommands::openProfile()
{
    const QString path = m_openChooser(
        m_window, localized("CHOOSEPROFILETITLE"), m_controller->preferences().defaultProfileFolderPath);
    if (!path.isEmpty())
        showProfileOutcome(m_controller->setCurrentSettings(path));
}

void DocumentCommands::saveProfile()
{
    if (m_controller->currProfileFile().isEmpty())
        saveProfileAs();
    else
        saveProfileTo(m_controller->currProfileFile());
}

// The save dialog has already asked before replacing a file of the chosen name.
void DocumentCommands::saveProfileAs()
{
    const QString path = m_saveChooser(
        m_window, localized("SAVEASPROFILETITLE"), m_controller->preferences().defaultProfileFolderPath);
    if (!path.isEmpty())
        saveProfileTo(path);
}

void DocumentCommands::saveProfileTo(const QString& path)
{
    QString error;
    if (!m_controller->saveProfile(path, &error))
        m_prompter->warn(m_window, localized("PROFILETITLE"), localized("PROFILESAVEDFAILED").arg(error));
}

void DocumentCommands::loadDefaultProfile()
{
    m_controller->loadDefaultProfile();
}

void DocumentCommands::showProfileOutcome(const ProfileOutcome& outcome)
{
    if (outcome.result != ProfileLoadResult::Loaded)
        m_prompter->warn(m_window, localized("LOADPROFILETITLE"), outcome.message);
}

void DocumentCommands::openProfileDocument(const QString& path)
{
    const QString question = localized("PROFILELOADMESSAGE").arg(lastPathComponent(path));
    if (!m_prompter->askYesNo(m_window, localized("PROFILESETTINGSFILETITLE"), question))
        return;
    showProfileOutcome(m_controller->setCurrentSettings(path));
    m_window->raise();
    m_window->activateWindow();
}

void DocumentCommands::openRuleDocument(const QString& path)
{
    const QString title = localized("RULESETTINGSFILETITLE");
    const QString name = lastPathComponent(path);
    switch (checkRuleFile(path)) {
    case RuleFileCheck::Incompatible:
        m_prompter->warn(m_window, title, localized("RULEINCOMPATIBLE").arg(name));
        return;
    case RuleFileCheck::Unreadable:
        m_prompter->warn(m_window, title, localized("RULEUNREADABLE").arg(name));
        return;
    case RuleFileCheck::Compatible:
        break;
    }
    const QString rulesFolder = m_controller->preferences().defaultRulesFolderPath;
    const QString libraryPath = ruleLibraryPath(rulesFolder, path);
    // A rule opened from the library itself is already there.
    if (QFileInfo(libraryPath) == QFileInfo(path)) {
        m_prompter->inform(m_window, title, localized("RULEADDEDTOLIBRARY").arg(name));
        return;
    }
    if (pathExists(libraryPath)
        && !m_prompter->askYesNo(m_window, title, localized("RULEALREADYEXISTS").arg(name)))
        return;
    QString error;
    if (addRuleToLibrary(path, rulesFolder, &error))
        m_prompter->inform(m_window, title, localized("RULEADDEDTOLIBRARY").arg(name));
    else
        m_prompter->warn(m_window, title, error);
}

} // namespace tavrin
