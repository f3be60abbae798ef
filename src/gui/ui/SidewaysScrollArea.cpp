#include "gui/ui/SidewaysScrollArea.h"

#include <QScrollBar>

namespace tavrin {

namespace {

// Room for the start of a page, and for its scroll bar to say there is more.
constexpr int kMinimumWidth = 200;

}  // namespace

SidewaysScrollArea::SidewaysScrollArea(QWidget* page, QWidget* parent)
    : QScrollArea(parent)
{
    setObjectName(page->objectName() + QStringLiteral("Scroller"));
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setWidget(page);
}

QSize SidewaysScrollArea::sizeHint() const
{
    const QSize page = widget()->sizeHint();
    return {page.width(), heightWithScrollBar(page.height())};
}

QSize SidewaysScrollArea::minimumSizeHint() const
{
    return {kMinimumWidth, heightWithScrollBar(widget()->minimumSizeHint().height())};
}

bool SidewaysScrollArea::scrolls() const
{
    return widget()->minimumSizeHint().width() > viewport()->width();
}

// The scroll bar takes its height from the page only while it shows.
int SidewaysScrollArea::heightWithScrollBar(int pageHeight) const
{
    return pageHeight + (scrolls() ? horizontalScrollBar()->sizeHint().height() : 0);
}

void SidewaysScrollArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (scrolls() != m_scrolled) {
        m_scrolled = scrolls();
        updateGeometry();
    }
}

}  // namespace tavrin
