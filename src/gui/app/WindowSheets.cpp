#include "gui/app/WindowSheets.h"

#include "core/text/LocalizedStrings.h"
#include "gui/app/LivePreview.h"
#include "gui/app/PreferencesSheet.h"
#include "gui/app/TavrinAppController.h"
#include "gui/engine/LivePreviewSheet.h"
#include "gui/list/PasteboardItemsSheet.h"
#include "gui/log/HelpPage.h"
#include "gui/ui/Prompter.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

namespace tavrin {

WindowSheets::WindowSheets(TavrinAppController* controller, QWidget* window)
    : QObject(window)
    , m_controller(controller)
    , m_window(window)
{
}

void WindowSheets::showLivePreview()
{
    const LivePreview& live = m_controller->livePreview();
    if (live.isLivePreviewEnabled()) {
        m_controller->setLivePreview(false);
        return;
    }
    auto* sheet = new LivePreviewSheet(live.isLivePreviewAllFiles(), live.livePreviewFilesLimit(), m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &LivePreviewSheet::helpRequested, this, [this] { showHelpPage(QStringLiteral("livepreview.html")); });
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        m_controller->setLivePreviewCoverage(sheet->isAllFiles(), sheet->filesLimit());
        m_controller->setLivePreview(true);
    });
    sheet->open();
}

void WindowSheets::openPreferences()
{
    auto* sheet = new PreferencesSheet(m_controller->preferences(), m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &PreferencesSheet::helpRequested, this, [this] { showHelpPage(QStringLiteral("preferences.html")); });
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        QString error;
        if (m_controller->applyPreferences(sheet->preferences(), &error))
            m_prompter->inform(m_window, localized("PREFERENCESTITLE"), localized("PREFERENCESSAVEDMESSAGE"));
        else
            m_prompter->warn(m_window, localized("PREFERENCESTITLE"), error);
    });
    sheet->open();
}

void WindowSheets::openPasteboardItemsSheet(const QStringList& paths)
{
    auto* sheet = new PasteboardItemsSheet(paths, m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &PasteboardItemsSheet::helpRequested, this,
        [this] { showHelpPage(QStringLiteral("pasteditems.html")); });
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        m_controller->addPastedItems(sheet->paths(), sheet->isFolders(), sheet->isIncludeSubFolders());
    });
    sheet->open();
}

void WindowSheets::showHelpPage(const QString& page)
{
    const QString file = helpPageFile(page);
    if (file.isEmpty() || !QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        m_prompter->warn(m_window, localized("HELP"), localized("HELPUNAVAILABLE"));
}

void WindowSheets::showAbout()
{
    QMessageBox::about(m_window, localized("APPTITLE"), localized("ABOUTTEXT").arg(QApplication::applicationVersion()));
}

} // namespace tavrin
