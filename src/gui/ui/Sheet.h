#pragma once

#include <QAbstractItemView>
#include <QDialog>
#include <QDialogButtonBox>
#include <functional>

class QAbstractItemModel;
class QPushButton;
class QTableView;

namespace tavrin {

// The object name and the title of a sheet.
struct SheetName {
    const char* objectName;
    const char* titleKey;
};

// A button a sheet adds to its button box: the default one, in the place of an OK.
struct SheetButton {
    const char* objectName;
    const char* textKey;
    const char* toolTipKey = nullptr;
};

// How a sheet's table shows its rows.
struct TableSetUp {
    QAbstractItemModel* model = nullptr;
    QAbstractItemView::SelectionMode selection = QAbstractItemView::SingleSelection;
    // What the Delete key does in the table; nothing when empty.
    std::function<void()> deleteRows;
};

// A window-modal dialog over the window, with the parts every sheet shares: a button box with
// Help (F1), whose click asks for the sheet's help page, and the look of its tables.
class Sheet : public QDialog {
    Q_OBJECT

public:
    Sheet(const SheetName& name, QWidget* parent);

signals:
    void helpRequested();

protected:
    // Help, then `buttons` with the texts of the string tables ("cancelButton", "closeButton",
    // "saveButton"). Made inside the sheet at once, so that its default button is the sheet's.
    // Reject closes the sheet; what accepts it is the sheet's to connect.
    QDialogButtonBox* createButtonBox(QDialogButtonBox::StandardButtons buttons);
    // The sheet's own button that takes the place and the Return key of an OK.
    static QPushButton* addDefaultButton(QDialogButtonBox* box, const SheetButton& button);
    // A read-only table of whole rows, without grid and row numbers, rows of one fixed height.
    static void setUpTable(QTableView* table, const TableSetUp& setUp);
};

} // namespace tavrin
