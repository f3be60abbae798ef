#include "gui/ui/AttachedWindow.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <algorithm>

namespace tavrin {

namespace {

constexpr int kBorderWidth = 1;
constexpr int kCornerRadius = 8;
constexpr int kArrowBase = 15;
constexpr int kArrowHeight = 15;
constexpr int kMargin = 2;
// From the anchor's centre to the arrow's tip.
constexpr int kDistance = 30;
// The tip never touches a wide anchor.
constexpr int kMinimumGap = 4;
// The text keeps clear of the rounded corners at its sides.
constexpr int kTextInsetX = kMargin + kCornerRadius;
constexpr int kTextInsetY = kMargin + kCornerRadius / 2;
constexpr int kMaximumTextWidth = 320;
constexpr int kShownMilliseconds = 5000;

const QColor kBackground(0, 0, 0, 128);

bool dismissesMessage(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

bool movesAnchor(QEvent::Type type)
{
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::Hide;
}

} // namespace

AttachedWindow::AttachedWindow(QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    m_dismissTimer.setSingleShot(true);
    m_dismissTimer.setInterval(kShownMilliseconds);
    connect(&m_dismissTimer, &QTimer::timeout, this, &QWidget::hide);
}

void AttachedWindow::showMessage(QWidget* anchor, const QString& text)
{
    hide();
    m_text = text;
    m_anchor = anchor;
    const QSize body = bodySize();
    resize(body.width() + kArrowHeight, std::max(body.height(), kArrowBase + 2 * kCornerRadius));
    placeBeside(anchor);
    show();
    raise();
    update();
    watchForDismissal();
}

QSize AttachedWindow::textSize() const
{
    return fontMetrics()
        .boundingRect(QRect(0, 0, kMaximumTextWidth, 10000), Qt::AlignLeft | Qt::TextWordWrap, m_text)
        .size();
}

QSize AttachedWindow::bodySize() const
{
    return textSize() + QSize(2 * kTextInsetX, 2 * kTextInsetY);
}

// Laid out exactly as measured, so that the text wraps where bodySize() expected it to.
QRect AttachedWindow::textRect() const
{
    const QSize size = textSize();
    const int left = (m_side == Side::Right ? kArrowHeight : 0) + kTextInsetX;
    return QRect(QPoint(left, (height() - size.height()) / 2), size);
}

QRectF AttachedWindow::bodyRect() const
{
    const qreal half = kBorderWidth / 2.0;
    const qreal left = m_side == Side::Right ? kArrowHeight : 0;
    return QRectF(left, 0, width() - kArrowHeight, height()).adjusted(half, half, -half, -half);
}

QPainterPath AttachedWindow::outline() const
{
    const QRectF body = bodyRect();
    QPainterPath bubble;
    bubble.addRoundedRect(body, kCornerRadius, kCornerRadius);

    // The arrow's base reaches a pixel into the body so that the union leaves no seam.
    const qreal middle = height() / 2.0;
    const qreal half = kBorderWidth / 2.0;
    const bool right = m_side == Side::Right;
    const qreal baseX = right ? body.left() + 1 : body.right() - 1;
    const qreal tipX = right ? half : width() - half;
    QPainterPath arrow;
    arrow.moveTo(baseX, middle - kArrowBase / 2.0);
    arrow.lineTo(tipX, middle);
    arrow.lineTo(baseX, middle + kArrowBase / 2.0);
    arrow.closeSubpath();
    return bubble.united(arrow);
}

void AttachedWindow::placeBeside(const QWidget* anchor)
{
    const QRect target(anchor->mapToGlobal(QPoint(0, 0)), anchor->size());
    const QRect screen = anchor->screen() ? anchor->screen()->availableGeometry() : QRect();
    const int rightTip = std::max(target.center().x() + kDistance, target.right() + kMinimumGap);
    const int leftTip = std::min(target.center().x() - kDistance, target.left() - kMinimumGap);
    const bool fitsRight = screen.isNull() || rightTip + width() <= screen.right() + 1;
    m_side = fitsRight ? Side::Right : Side::Left;

    int y = target.center().y() - height() / 2;
    if (!screen.isNull())
        y = std::clamp(y, screen.top(), std::max(screen.top(), screen.bottom() + 1 - height()));
    move(m_side == Side::Right ? rightTip : leftTip - width(), y);
}

void AttachedWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, kBorderWidth));
    painter.setBrush(kBackground);
    painter.drawPath(outline());

    painter.setPen(Qt::white);
    painter.drawText(textRect(), Qt::AlignLeft | Qt::TextWordWrap, m_text);
}

void AttachedWindow::watchForDismissal()
{
    qApp->installEventFilter(this);
    m_anchorWindow = m_anchor ? m_anchor->window() : nullptr;
    if (m_anchorWindow)
        m_anchorWindow->installEventFilter(this);
    m_dismissTimer.start();
}

void AttachedWindow::stopWatching()
{
    qApp->removeEventFilter(this);
    if (m_anchorWindow)
        m_anchorWindow->removeEventFilter(this);
    m_anchorWindow = nullptr;
    m_dismissTimer.stop();
}

void AttachedWindow::hideEvent(QHideEvent* event)
{
    stopWatching();
    QWidget::hideEvent(event);
}

bool AttachedWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool anchorWindowChanged = watched == m_anchorWindow && movesAnchor(event->type());
    if (isVisible() && (dismissesMessage(event->type()) || anchorWindowChanged))
        hide();
    return QWidget::eventFilter(watched, event);
}

} // namespace tavrin
