#pragma once

#include "core/log/LogListing.h"

#include <QAbstractTableModel>
#include <QList>

namespace tavrin {

// The logs of the undo sheet, one row each, in the order the listing gave them.
class LogTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { FileNameColumn, DateCreatedColumn, FilesCountColumn, ColumnCount };

    explicit LogTableModel(QObject* parent = nullptr);

    void setLogs(const QList<LogFileRecord>& logs);
    const LogFileRecord& log(int row) const { return m_logs.at(row); }
    // The row of the log at `path`, or -1 when it is not listed.
    int rowOfPath(const QString& path) const;
    void removeLog(int row);
    void setFilesCount(int row, int count);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant displayData(const LogFileRecord& log, int column) const;

    QList<LogFileRecord> m_logs;
};

} // namespace tavrin
