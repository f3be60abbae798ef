#pragma once

#include "gui/control/ListMode.h"

#include <QList>
#include <QMainWindow>
#include <QStringList>
#include <memory>

class QAction;
class QFileDialog;
class QLabel;
class QProgressBar;
class QToolBar;

namespace tavrin {

class AttachedWindow;
struct Progress;
class DocumentCommands;
class DocumentOpener;
class ElidedLabel;
class Prompter;
class FileTableModel;
class FileTableView;
class ListModeSelector;
class TableContextMenus;
class RenamePanel;
class RulesCommands;
class TavrinAppController;
class WindowActions;
class WindowSheets;

// The one window: the list of items with its toolbar and status line above, and below
// it the area where the renaming actions live.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(TavrinAppController* controller, QWidget* parent = nullptr);
    ~MainWindow() override;

    FileTableView* tableView() const { return m_table; }
    FileTableModel* tableModel() const { return m_model; }
    // Below the table: the action tabs with Preview and Apply.
    QWidget* actionArea() const { return m_actionArea; }
    RenamePanel* renamePanel() const { return m_renamePanel; }

    DocumentOpener* documentOpener() const { return m_opener; }
    DocumentCommands* documentCommands() const { return m_documents; }
    // The questions and alerts of the window, its action area and its sheets go through this.
    void setPrompter(std::unique_ptr<Prompter> prompter);

    // Lists the paths in the current mode, off the GUI thread.
    void addPaths(const QStringList& paths);
    // Adds what the file manager put on the clipboard, as items opened with the application.
    void pasteItems();
    WindowSheets* sheets() const { return m_sheets; }
    RulesCommands* rules() const { return m_rules; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void handOutPrompter();
    void connectActions();
    void createToolBar();
    QWidget* createCentralArea();
    void createStatusArea();
    void connectController();
    void setDefaultColumnWidths();

    QFileDialog* makeChooser();
    void chooseFiles();
    void chooseFolders();
    void removeSelected();
    bool confirmEmptyingList(const char* messageKey);
    void chooseMode(ListMode mode);
    void clearList();
    void moveSelectedUp();
    void moveSelectedDown();
    void showMovedSelection(const QList<int>& rows);
    void selectRows(const QList<int>& rows);
    QList<int> selectedRows() const;

    void sortIndicatorChanged(int section, Qt::SortOrder order);
    void showArrivalOrder();
    void clearSortIndicator();

    void executingChanged(bool executing);
    void showProgress(const Progress& progress);
    void listChanged();
    void modeChanged();
    void updateMoveActions();
    void showSkippedNames(const QStringList& paths);
    void showAttachedMessage(QAction* besideAction, const char* key);
    void openUndoSheet();
    void updateWindowTitle();
    void updateLivePreviewAction();
    void toggleLivePreview();
    void selectAll();
    QLabel* createLanguageFlag();

    TavrinAppController* m_controller;
    FileTableModel* m_model;
    FileTableView* m_table = nullptr;
    QWidget* m_actionArea = nullptr;
    RenamePanel* m_renamePanel = nullptr;
    QToolBar* m_toolBar = nullptr;
    TableContextMenus* m_contextMenus = nullptr;
    ListModeSelector* m_modeSelector = nullptr;
    AttachedWindow* m_attached;
    std::unique_ptr<Prompter> m_prompter;
    DocumentCommands* m_documents;
    DocumentOpener* m_opener;
    WindowSheets* m_sheets;
    WindowActions* m_actions;
    RulesCommands* m_rules = nullptr;

    QLabel* m_countLabel = nullptr;
    ElidedLabel* m_progressLabel = nullptr;
    QProgressBar* m_busyIndicator = nullptr;
    QLabel* m_skippedLabel = nullptr;
    QLabel* m_timeLabel = nullptr;

    int m_sortSection = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QString m_lastChosenFolder;
};

} // namespace tavrin
