#pragma once

#include "gui/ui/Sheet.h"

#include <QStringList>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTableView;

namespace tavrin {

class PastedItemsModel;

// Opened when items handed to the application from outside include folders: the user sees
// the items, drops those not wanted, and chooses whether the files or the folders are
// renamed, and whether sub-folders are gone through.
class PasteboardItemsSheet : public Sheet {
    Q_OBJECT

public:
    explicit PasteboardItemsSheet(const QStringList& paths, QWidget* parent = nullptr);

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

    PastedItemsModel* m_model;
    QTableView* m_table = nullptr;
    QLabel* m_countLabel = nullptr;
    QPushButton* m_removeButton = nullptr;
    QRadioButton* m_filesButton = nullptr;
    QRadioButton* m_foldersButton = nullptr;
    QCheckBox* m_includeSubFoldersBox = nullptr;
    QPushButton* m_addButton = nullptr;
};

} // namespace tavrin
