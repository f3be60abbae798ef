#include "gui/log/LogTableModel.h"

#include "core/text/LocalizedStrings.h"

#include <QLocale>

namespace tavrin {

LogTableModel::LogTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void LogTableModel::setLogs(const QList<LogFileRecord>& logs)
{
    beginResetModel();
    m_logs = logs;
    endResetModel();
}

int LogTableModel::rowOfPath(const QString& path) const
{
    for (qsizetype row = 0; row < m_logs.size(); ++row) {
        if (m_logs[row].path == path)
            return static_cast<int>(row);
    }
    return -1;
}

void LogTableModel::removeLog(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
    m_logs.removeAt(row);
    endRemoveRows();
}

void LogTableModel::setFilesCount(int row, int count)
{
    if (m_logs[row].filesCount == count)
        return;
    m_logs[row].filesCount = count;
    emit dataChanged(index(row, FilesCountColumn), index(row, FilesCountColumn));
}

int LogTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_logs.size());
}

int LogTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LogTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_logs.size())
        return {};
    const LogFileRecord& log = m_logs[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return displayData(log, index.column());
    case Qt::ToolTipRole:
        return index.column() == FileNameColumn ? QVariant(log.path) : QVariant();
    case Qt::TextAlignmentRole:
        // Counts line up by their last digit.
        return index.column() == FilesCountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

QVariant LogTableModel::displayData(const LogFileRecord& log, int column) const
{
    switch (column) {
    case FileNameColumn:
        return log.logFileName;
    case DateCreatedColumn:
        return QLocale().toString(log.dateCreated.toLocalTime(), QLocale::ShortFormat);
    case FilesCountColumn:
        return QLocale().toString(log.filesCount);
    default:
        return {};
    }
}

QVariant LogTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole && section == FilesCountColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case FileNameColumn:
        return localized("LOGFILENAMECOLUMN");
    case DateCreatedColumn:
        return localized("DATECREATEDCOLUMN");
    case FilesCountColumn:
        return localized("FILESCOUNTCOLUMN");
    default:
        return {};
    }
}

} // namespace tavrin
