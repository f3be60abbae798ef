#pragma once

#include "gui/control/ListMode.h"
#include "gui/ui/Sheet.h"

#include <QStringList>
#include <memory>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTableView;

namespace tavrin {

class BackgroundJob;
class PastedItemsModel;

// Opened when items handed to the application from outside include folders: the user sees
// the items, drops those not wanted, and chooses whether the files or the folders are
// renamed, and whether sub-folders are gone through. The choices start as the window's, and
// the sheet counts, off the GUI thread, how many items the current choice would add.
class PasteboardItemsSheet : public Sheet {
    Q_OBJECT

public:
    PasteboardItemsSheet(const QStringList& paths, const ListChoice& start, QWidget* parent = nullptr);
    ~PasteboardItemsSheet() override;

    // The items left, in the order they were given.
    QStringList paths() const;
    bool isFolders() const;
    bool isIncludeSubFolders() const;

    PastedItemsModel* model() const { return m_model; }
    QTableView* table() const { return m_table; }

private:
    QTableView* createTable();
    QWidget* createOptions();
    QDialogButtonBox* createButtons();
    void removeSelectedItems();
    void updateCountLine();
    void updateButtons();
    void countItemsToAdd();
    void finishCount();

    PastedItemsModel* m_model;
    QTableView* m_table = nullptr;
    QLabel* m_countLabel = nullptr;
    QPushButton* m_removeButton = nullptr;
    QRadioButton* m_filesButton = nullptr;
    QRadioButton* m_foldersButton = nullptr;
    QCheckBox* m_includeSubFoldersBox = nullptr;
    QPushButton* m_addButton = nullptr;
    QLabel* m_addCountLabel = nullptr;
    int m_counted = 0;           // written by the count job, read once it has finished
    bool m_recount = false;      // the choice changed while a count was running
    // Last, so that it stops before the members its job writes go.
    std::unique_ptr<BackgroundJob> m_counter;
};

} // namespace tavrin
