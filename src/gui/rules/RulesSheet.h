#pragma once

#include "gui/ui/Sheet.h"

class QLineEdit;
class QPushButton;
class QTableView;
class QTreeView;

namespace tavrin {

class Prompter;
class RuleTableModel;
class RuleTreeModel;
class RulesController;
class SessionController;

// The sheet where rule files are looked into: open one (it becomes the rule chain), see its
// steps and the options of the chosen one as a tree, reorder or remove steps, save the
// chain, and preview it over the list.
class RulesSheet : public Sheet {
    Q_OBJECT

public:
    RulesSheet(RulesController& rules, SessionController& session, Prompter* prompter, QWidget* parent);

    QTableView* table() const { return m_table; }
    QTreeView* outline() const { return m_outline; }

signals:
    // The chain is to be previewed once the sheet is gone.
    void previewRequested();

private:
    QWidget* createCommands();
    void openRule();
    void saveRule();
    void clearSelected();
    void move(int (RulesController::*mover)(int));
    void select(int row);
    int selectedRow() const;
    void selectionChanged();

    RulesController& m_rules;
    Prompter* m_prompter;
    RuleTableModel* m_model;
    RuleTreeModel* m_tree;
    QLineEdit* m_ruleFilePath = nullptr;
    QTableView* m_table = nullptr;
    QTreeView* m_outline = nullptr;
    QPushButton* m_moveUp = nullptr;
    QPushButton* m_moveDown = nullptr;
    QPushButton* m_clearButton = nullptr;
    QPushButton* m_saveButton = nullptr;
    QPushButton* m_previewButton = nullptr;
};

} // namespace tavrin
