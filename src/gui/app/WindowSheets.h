#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QWidget;

namespace tavrin {

class Prompter;
class TavrinAppController;

// The sheets the main window opens for the session: live preview, preferences, the items
// handed over from outside, and the help pages they all point to.
class WindowSheets : public QObject {
    Q_OBJECT

public:
    WindowSheets(TavrinAppController* controller, QWidget* window);

    void setPrompter(Prompter* prompter) { m_prompter = prompter; }

    // Live preview off: the sheet of its settings, and on when the user agrees. On: off.
    void showLivePreview();
    // The preferences, saved at once when the user confirms.
    void openPreferences();
    // How items from outside that include folders are listed.
    void openPasteboardItemsSheet(const QStringList& paths);
    // The profiles of the profile folder, to save, open and delete.
    void openProfilesSheet();
    // The rule files sheet; its preview asks for the chain to be previewed.
    void openRulesSheet();
    // Opens a help page of the current language in the desktop's browser.
    void showHelpPage(const QString& page);
    void showAbout();
    // The export sheet over the list as the table shows it; a hint instead when it is empty.
    void openExportSheet();

signals:
    void rulePreviewRequested();

private:
    TavrinAppController* m_controller;
    QWidget* m_window;
    Prompter* m_prompter = nullptr;
};

} // namespace tavrin
