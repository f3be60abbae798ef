#include "gui/list/FileTableView.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace tavrin {

FileTableView::FileTableView(QWidget* parent)
    : QTableView(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setDragEnabled(false);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDropIndicatorShown(false);

    QHeaderView* rows = verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(fontMetrics().height() + 10);

    QHeaderView* columns = horizontalHeader();
    columns->setHighlightSections(false);
    columns->setSectionsClickable(true);
    columns->setSortIndicatorShown(true);
    columns->setSortIndicator(-1, Qt::AscendingOrder);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void FileTableView::setEmptyHint(const QString& hint)
{
    m_emptyHint = hint;
    viewport()->update();
}

QStringList FileTableView::localPaths(const QMimeData* mimeData)
{
    QStringList paths;
    if (!mimeData || !mimeData->hasUrls())
        return paths;
    for (const QUrl& url : mimeData->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

// A drag out of the table itself would only add what is already listed.
bool FileTableView::acceptsDrag(const QDropEvent* event) const
{
    const auto* source = qobject_cast<const QWidget*>(event->source());
    if (source && (source == this || isAncestorOf(source)))
        return false;
    return !localPaths(event->mimeData()).isEmpty();
}

void FileTableView::dragEnterEvent(QDragEnterEvent* event)
{
    if (acceptsDrag(event))
        event->acceptProposedAction();
    else
        event->ignore();
}

void FileTableView::dragMoveEvent(QDragMoveEvent* event)
{
    if (acceptsDrag(event))
        event->acceptProposedAction();
    else
        event->ignore();
}

void FileTableView::dropEvent(QDropEvent* event)
{
    if (!acceptsDrag(event)) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    emit pathsDropped(localPaths(event->mimeData()));
}

void FileTableView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (!m_emptyHint.isEmpty() && model() && model()->rowCount() == 0)
        paintEmptyHint();
}

void FileTableView::paintEmptyHint()
{
    QPainter painter(viewport());
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect area = viewport()->rect().adjusted(24, 24, -24, -24);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, m_emptyHint);
}

}  // namespace tavrin
