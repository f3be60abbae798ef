#pragma once

#include <QDockWidget>
#include <QList>
#include <QPair>
#include <optional>

class QPushButton;
class QTableView;

namespace tavrin {

class Prompter;
class RuleTableModel;
class TavrinAppController;

// The drawer beside the list where the rule chain is edited: the steps with their check
// boxes, and the commands that add, update, remove and move steps and open and save rule
// files. Choosing a step loads it into the tabs. While a job runs, every control waits.
class RulesDrawer : public QDockWidget {
    Q_OBJECT

public:
    RulesDrawer(TavrinAppController* controller, QWidget* parent = nullptr);

    void setPrompter(Prompter* prompter) { m_prompter = prompter; }
    QTableView* table() const { return m_table; }
    // Shows the chain as it is now, selecting its first step or its last; gives the table the focus.
    void resetData(bool selectTopRow);
    // A step of the options of the tab shown, at the end of the chain; the alerts say why not.
    void addToRule();

signals:
    void helpRequested();

private:
    QWidget* createButtons();
    QPushButton* addButton(const char* objectName, const char* textKey, const char* toolTipKey);
    void connectController();

    void updateRule();
    void clearSelected();
    void clearAll();
    void moveUp();
    void moveDown();
    void openRule();
    void saveRule();

    void rowChosen(int row);
    void modelWasReset();
    void selectSilently(int row);
    void updateButtonsForRowCount();
    void updateMoveButtons();
    void tabChanged(int tab);
    void setIsExecuting(bool executing);

    TavrinAppController* m_controller;
    Prompter* m_prompter = nullptr;
    RuleTableModel* m_model;
    QTableView* m_table;
    QPushButton* m_addButton = nullptr;
    QPushButton* m_updateButton = nullptr;
    QPushButton* m_clearButton = nullptr;
    QPushButton* m_clearAllButton = nullptr;
    QPushButton* m_moveUp = nullptr;
    QPushButton* m_moveDown = nullptr;
    QPushButton* m_openButton = nullptr;
    QPushButton* m_saveButton = nullptr;
    int m_row = -1;
    std::optional<int> m_pendingRow;
    // The controls' enabled states from before a job, given back when it ends.
    QList<QPair<QWidget*, bool>> m_statesBeforeJob;
};

} // namespace tavrin
