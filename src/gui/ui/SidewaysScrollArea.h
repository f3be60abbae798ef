#pragma once

#include <QScrollArea>

namespace tavrin {

// Holds a page that may be wider than the room it gets: the page keeps its full height and
// scrolls sideways when the window is narrower than the page, so a wide page (a long
// translation, a large scale factor) never holds the whole window wide.
class SidewaysScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit SidewaysScrollArea(QWidget* page, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool scrolls() const;
    int heightWithScrollBar(int pageHeight) const;

    bool m_scrolled = false;
};

}  // namespace tavrin
