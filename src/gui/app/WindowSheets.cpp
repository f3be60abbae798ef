#include "gui/app/WindowSheets.h"

#include "core/text/LocalizedStrings.h"
#include "gui/app/PreferencesSheet.h"
#include "gui/app/TavrinAppController.h"
#include "gui/control/LivePreview.h"
#include "gui/engine/LivePreviewSheet.h"
#include "gui/io/ExportSheetController.h"
#include "gui/list/PasteboardItemsSheet.h"
#include "gui/rules/RulesSheet.h"
#include "gui/log/HelpPage.h"
#include "gui/profiles/ProfileSheetController.h"
#include "gui/ui/Prompter.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

namespace tavrin {

WindowSheets::WindowSheets(TavrinAppController* controller, QWidget* window)
    : QObject(window)
    , m_controller(controller)
    , m_window(window)
{
}

void WindowSheets::showLivePreview()
{
    RenameController& rename = m_controller->rename();
    const LivePreview& live = rename.livePreview();
    if (live.isLivePreviewEnabled()) {
        rename.setLivePreview(false);
        return;
    }
    auto* sheet = new LivePreviewSheet(live.isLivePreviewAllFiles(), live.livePreviewFilesLimit(), m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &LivePreviewSheet::helpRequested, this,
        [this] { showHelpPage(QStringLiteral("livepreview.html")); });
    connect(sheet, &QDialog::accepted, this, [&rename, sheet] {
        rename.setLivePreviewCoverage(sheet->isAllFiles(), sheet->filesLimit());
        rename.setLivePreview(true);
    });
    sheet->open();
}

void WindowSheets::openPreferences()
{
    SessionController& session = m_controller->session();
    auto* sheet = new PreferencesSheet(session.preferences(), session.sortsOnArrival(), m_prompter, m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &PreferencesSheet::helpRequested, this,
        [this] { showHelpPage(QStringLiteral("preferences.html")); });
    connect(sheet, &QDialog::accepted, this, [this, &session, sheet] {
        session.rememberSortOnArrival(sheet->sortsOnArrival());
        m_controller->list().setSortOnArrival(sheet->sortsOnArrival());
        QString error;
        if (session.applyPreferences(sheet->preferences(), &error))
            m_prompter->inform(
                m_window, { localized("PREFERENCESTITLE"), localized("PREFERENCESSAVEDMESSAGE") });
        else
            m_prompter->warn(m_window, { localized("PREFERENCESTITLE"), error });
    });
    sheet->open();
}

void WindowSheets::openPasteboardItemsSheet(const QStringList& paths)
{
    const ListController& list = m_controller->list();
    const ListChoice start { list.isFolders() ? ListMode::Folders : ListMode::Files, list.isIncludeSubFolders() };
    auto* sheet = new PasteboardItemsSheet(paths, start, m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &PasteboardItemsSheet::helpRequested, this,
        [this] { showHelpPage(QStringLiteral("pasteditems.html")); });
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        const ListChoice choice { sheet->isFolders() ? ListMode::Folders : ListMode::Files,
            sheet->isIncludeSubFolders() };
        m_controller->list().addPastedItems(sheet->paths(), choice);
    });
    sheet->open();
}

void WindowSheets::openProfilesSheet()
{
    auto* sheet = new ProfileSheetController(m_controller->session(), m_prompter, m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &ProfileSheetController::helpRequested, this,
        [this] { showHelpPage(QStringLiteral("profiles.html")); });
    sheet->open();
}

void WindowSheets::openRulesSheet()
{
    auto* sheet = new RulesSheet(m_controller->rules(), m_controller->session(), m_prompter, m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &RulesSheet::helpRequested, this, [this] { showHelpPage(QStringLiteral("rules.html")); });
    // Once the sheet is gone, so that the preview shows in the window.
    connect(sheet, &RulesSheet::previewRequested, this, &WindowSheets::rulePreviewRequested, Qt::QueuedConnection);
    sheet->open();
}

void WindowSheets::showHelpPage(const QString& page)
{
    const QString file = helpPageFile(page);
    if (file.isEmpty() || !m_prompter->openWithDesktop(file))
        m_prompter->warn(m_window, { localized("HELP"), helpUnavailableText(file) });
}

void WindowSheets::showAbout()
{
    QMessageBox::about(
        m_window, localized("APPTITLE"), localized("ABOUTTEXT").arg(QApplication::applicationVersion()));
}

void WindowSheets::openExportSheet()
{
    ListController& list = m_controller->list();
    if (list.shownCount() == 0) {
        m_prompter->inform(m_window, {localized("EXPORTFILESTITLE"), localized("NOITEMSTOEXPORT")});
        return;
    }
    auto* sheet = new ExportSheetController([&list]() -> const std::vector<FileSystemItem>& { return list.shownItems(); },
                                            m_prompter, QDir::homePath(), m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &ExportSheetController::helpRequested, this, [this] { showHelpPage(QStringLiteral("export.html")); });
    sheet->open();
}

} // namespace tavrin
