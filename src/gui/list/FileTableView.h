#pragma once

#include <QStringList>
#include <QTableView>

class QMimeData;

namespace tavrin {

// The list's table: rows only, fixed row height (so a hundred thousand rows cost nothing
// to lay out), files and folders dropped from a file manager, and a hint painted over the
// empty table.
class FileTableView : public QTableView {
    Q_OBJECT

public:
    explicit FileTableView(QWidget* parent = nullptr);

    // Painted in the middle of the table while it has no rows; empty paints nothing.
    void setEmptyHint(const QString& hint);
    QString emptyHint() const { return m_emptyHint; }

    // The local paths of a text/uri-list; other URLs are left out.
    static QStringList localPaths(const QMimeData* mimeData);

signals:
    void pathsDropped(const QStringList& paths);

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool acceptsDrag(const QDropEvent* event) const;
    void paintEmptyHint();

    QString m_emptyHint;
};

}  // namespace tavrin
