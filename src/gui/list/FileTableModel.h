#pragma once

#include "gui/list/ItemIconCache.h"

#include <QAbstractTableModel>

namespace tavrin {

class ListController;

// The table of listed items, read straight from the list: no per-row state,
// so a reset costs the same for ten rows as for a hundred thousand.
class FileTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // The path of the item, and why it cannot be renamed when it cannot.
    static QString toolTip(const FileSystemItem& item);
    enum Column { IconColumn, NameColumn, NewNameColumn, LocationColumn, ExtensionColumn, TypeColumn, ColumnCount };

    explicit FileTableModel(ListController* list, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    // Sorts the list itself by the column's key; the icon column does not sort.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    // The record key a column shows ("filenameWithExtension", ...).
    static QString columnKey(int column);
    // The column showing a record key; -1 for a key no column shows.
    static int columnOfKey(const QString& key);
    static bool isSortableColumn(int column);

private:
    QString displayText(const QModelIndex& index) const;

    ListController* m_list;
    mutable ItemIconCache m_icons;
};

}  // namespace tavrin
