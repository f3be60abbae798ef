#include "gui/ui/ElidedLabel.h"

#include <QFontMetrics>
#include <algorithm>

namespace tavrin {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setFullText(const QString& text)
{
    m_fullText = text;
    setToolTip(text);
    updateElidedText();
}

// The label may shrink to nothing: the status bar gives the room to its neighbours first.
QSize ElidedLabel::minimumSizeHint() const
{
    return QSize(0, QLabel::minimumSizeHint().height());
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    updateElidedText();
}

void ElidedLabel::updateElidedText()
{
    setText(fontMetrics().elidedText(m_fullText, Qt::ElideMiddle, std::max(0, contentsRect().width())));
}

} // namespace tavrin
