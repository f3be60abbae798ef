#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>
#include <QStringList>

namespace tavrin {

// The items handed to the application from outside, one row each, in the order given.
// Whether an item is a folder is read once, when the model is made.
class PastedItemsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, LocationColumn, ColumnCount };

    explicit PastedItemsModel(const QStringList& paths, QObject* parent = nullptr);

    QStringList paths() const;
    int folderCount() const { return m_folderCount; }
    int fileCount() const { return rowCount() - m_folderCount; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

private:
    struct Item {
        QString path;
        QString name;
        QString location;
        bool isFolder = false;
    };

    static Item itemAt(const QString& path);

    QList<Item> m_items;
    int m_folderCount = 0;
    // One icon per kind: asking the icon provider for each of thousands of rows would crawl.
    QIcon m_fileIcon;
    QIcon m_folderIcon;
};

} // namespace tavrin
