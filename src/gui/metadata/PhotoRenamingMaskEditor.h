#pragma once

#include "core/metadata/MetaDataField.h"

#include <QDialog>
#include <QList>

class QLineEdit;
class QPushButton;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace tavrin {

class MetaDataCatalogue;

// The mask editor: the catalogue as an outline of categories and fields, a search that
// finds a field by its label, and the picked fields in order. A field joins the picked list
// by a double click, Return or a drag from the outline; a double click or Delete on a picked
// field removes it. The caller takes metadataFields() when the sheet is accepted.
class PhotoRenamingMaskEditor : public QDialog {
    Q_OBJECT

public:
    // The drag type of fields, as an archive of MetaDataField objects.
    static constexpr char FieldsMimeType[] = "application/x-tavrin-metadatafields";
    // Neither pane of the split gets narrower than this.
    static constexpr int SmallestPaneWidth = 120;

    PhotoRenamingMaskEditor(
        const MetaDataCatalogue& catalogue, const QList<MetaDataField>& picked, QWidget* parent = nullptr);

    const QList<MetaDataField>& metadataFields() const { return m_fields; }

    // The outline's selected field joins the list: before the selected picked field, or at
    // the end when none or the first is selected. A category adds nothing.
    void doubleClickOutline();
    // The selected picked field leaves the list.
    void doubleClickTable();
    // Adds the field at `row` (at the end when row is -1), as a drop does.
    void insertField(const MetaDataField& field, int row);
    void moveUp();
    void moveDown();
    void clearSelected();
    // Selects the first field whose label, as shown, holds the text in any case; answers
    // whether one did.
    bool filterItems(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeOutlinePane(const MetaDataCatalogue& catalogue);
    const MetaDataField* selectedOutlineField() const;
    // The selected picked row, -1 when none is selected.
    int selectedRow() const;
    QWidget* makePickedPane();
    void reloadTable();
    void showListChanged(int selectRow);
    void updateButtons();
    void moveSelected(int offset);
    void searchReturn();

    QList<MetaDataField> m_catalogueFields;  // in outline order; outline items hold their index
    QList<MetaDataField> m_fields;
    QLineEdit* m_search = nullptr;
    QTreeWidget* m_outline = nullptr;
    QTableWidget* m_table = nullptr;
    QPushButton* m_moveUp = nullptr;
    QPushButton* m_moveDown = nullptr;
    QPushButton* m_clear = nullptr;
    bool m_searchFound = false;
};

} // namespace tavrin
