#pragma once

#include <QObject>
#include <QString>

class QAction;
class QMainWindow;
class QMenu;

namespace tavrin {

class Prompter;
class RenamePanel;
class RulesDrawer;
class TavrinAppController;
class WindowSheets;

// What the rules commands work with in the window.
struct RulesWindowParts {
    TavrinAppController* controller;
    WindowSheets* sheets;
    RenamePanel* renamePanel;
};

// The Rules menu and the drawer: showing and hiding the drawer, adding the options to the
// chain, the rule files sheet, and the rule files of the rules folder, listed afresh each
// time the menu opens. While the drawer is open, previews run the chain.
class RulesCommands : public QObject {
    Q_OBJECT

public:
    // Adds the drawer to the right of `window`, closed.
    RulesCommands(const RulesWindowParts& parts, QMainWindow* window);

    QMenu* menu() const { return m_menu; }
    RulesDrawer* drawer() const { return m_drawer; }
    QAction* toggleDrawerAction() const { return m_toggleDrawer; }
    void setPrompter(Prompter* prompter);

    void actionToggleRulesDrawer();
    void showDrawer();
    // A rule of the rules folder becomes the chain, whatever version wrote it, and shows in
    // the drawer with its first step selected. Ignored while a job runs.
    void ruleMenuItemClick(const QString& fileName);
    // The drawer opens, then the chain is previewed.
    void previewRule();

private:
    void createMenu();
    void loadRulesMenu();
    void drawerVisibilityChanged();

    RulesWindowParts m_parts;
    QMainWindow* m_window;
    RulesDrawer* m_drawer;
    QMenu* m_menu = nullptr;
    QAction* m_toggleDrawer = nullptr;
    QAction* m_addToRule = nullptr;
    QAction* m_rulesSheet = nullptr;
    QAction* m_libraryStart = nullptr;
};

} // namespace tavrin
