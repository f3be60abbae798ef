#pragma once

#include <QObject>

class QAction;
class QMenuBar;
class QToolBar;
class QWidget;

namespace tavrin {

// The commands of the window that the Rename menu lists beside its own.
struct RenameMenuActions {
    QAction* preview;
    QAction* apply;
};

// The window's commands, with their texts, icons, shortcuts and tooltips, and the menus and
// the toolbar that offer them. What each command does is the window's to connect.
class WindowActions : public QObject {
    Q_OBJECT

public:
    // The actions belong to `window`; the menus and the toolbar make their shortcuts work.
    explicit WindowActions(QWidget* window);

    QAction* addFiles() const { return m_addFiles; }
    QAction* addFolders() const { return m_addFolders; }
    QAction* remove() const { return m_remove; }
    QAction* clear() const { return m_clear; }
    QAction* moveUp() const { return m_moveUp; }
    QAction* moveDown() const { return m_moveDown; }
    QAction* cancel() const { return m_cancel; }
    QAction* undo() const { return m_undo; }
    QAction* exportList() const { return m_exportList; }
    QAction* quit() const { return m_quit; }
    QAction* pasteItems() const { return m_pasteItems; }
    QAction* selectAll() const { return m_selectAll; }
    QAction* openProfile() const { return m_openProfile; }
    QAction* saveProfile() const { return m_saveProfile; }
    QAction* saveProfileAs() const { return m_saveProfileAs; }
    QAction* defaultProfile() const { return m_defaultProfile; }
    QAction* showProfiles() const { return m_showProfiles; }
    QAction* preferences() const { return m_preferences; }
    QAction* livePreview() const { return m_livePreview; }
    QAction* help() const { return m_help; }
    QAction* about() const { return m_about; }

    void fillMenuBar(QMenuBar* menuBar, const RenameMenuActions& rename) const;
    void fillToolBar(QToolBar* toolBar) const;

    // While a job runs, the commands that change the list or the options wait.
    void setExecuting(bool executing);
    // The file dialog cannot offer files and folders at once, so each kind has its own
    // action, shown when the mode can take it; the one shown alone answers Ctrl+O.
    void showListMode(bool files, bool folders);
    // The live-preview action shows the state, not the last click.
    void showLivePreview(bool on);

private:
    void createListActions();
    void createSessionActions();
    void setToolTips();

    QWidget* m_window;
    QAction* m_addFiles = nullptr;
    QAction* m_addFolders = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_clear = nullptr;
    QAction* m_moveUp = nullptr;
    QAction* m_moveDown = nullptr;
    QAction* m_cancel = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_exportList = nullptr;
    QAction* m_quit = nullptr;
    QAction* m_pasteItems = nullptr;
    QAction* m_selectAll = nullptr;
    QAction* m_openProfile = nullptr;
    QAction* m_saveProfile = nullptr;
    QAction* m_saveProfileAs = nullptr;
    QAction* m_defaultProfile = nullptr;
    QAction* m_showProfiles = nullptr;
    QAction* m_preferences = nullptr;
    QAction* m_livePreview = nullptr;
    QAction* m_help = nullptr;
    QAction* m_about = nullptr;
};

} // namespace tavrin
