#include "gui/list/PastedItemsModel.h"

#include "core/text/LocalizedStrings.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>

namespace tavrin {

PastedItemsModel::PastedItemsModel(const QStringList& paths, QObject* parent)
    : QAbstractTableModel(parent)
    , m_fileIcon(QFileIconProvider().icon(QAbstractFileIconProvider::File))
    , m_folderIcon(QFileIconProvider().icon(QAbstractFileIconProvider::Folder))
{
    m_items.reserve(paths.size());
    for (const QString& path : paths) {
        m_items.append(itemAt(path));
        m_folderCount += m_items.constLast().isFolder ? 1 : 0;
    }
}

// A symbolic link is listed as a file even when it points at a folder: it is the link that
// gets renamed, never what it points at.
PastedItemsModel::Item PastedItemsModel::itemAt(const QString& path)
{
    const QFileInfo info(QDir::cleanPath(path));
    Item item;
    item.path = path;
    item.name = info.fileName().isEmpty() ? info.filePath() : info.fileName();
    item.location = info.absolutePath();
    item.isFolder = !info.isSymLink() && info.isDir();
    return item;
}

QStringList PastedItemsModel::paths() const
{
    QStringList paths;
    paths.reserve(m_items.size());
    for (const Item& item : m_items)
        paths.append(item.path);
    return paths;
}

int PastedItemsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

int PastedItemsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PastedItemsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_items.size())
        return {};
    const Item& item = m_items[index.row()];
    const bool isName = index.column() == NameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return isName ? item.name : item.location;
    case Qt::DecorationRole:
        return isName ? QVariant(item.isFolder ? m_folderIcon : m_fileIcon) : QVariant();
    case Qt::ToolTipRole:
        return item.path;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant PastedItemsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == NameColumn ? localized("NAMECOLUMN") : localized("LOCATIONCOLUMN");
}

bool PastedItemsModel::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || row + count > m_items.size())
        return false;
    beginRemoveRows(QModelIndex(), row, row + count - 1);
    for (int i = row; i < row + count; ++i)
        m_folderCount -= m_items[i].isFolder ? 1 : 0;
    m_items.remove(row, count);
    endRemoveRows();
    return true;
}

} // namespace tavrin
