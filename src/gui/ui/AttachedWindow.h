#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace tavrin {

// A short message in a translucent bubble whose arrow points at the control it is about,
// for hints such as "select something first" that need no dialog. It goes away at the
// next click or key press, when the window moves, or after a few seconds.
class AttachedWindow : public QWidget {
    Q_OBJECT

public:
    enum class Side { Right, Left };

    explicit AttachedWindow(QWidget* parent = nullptr);

    // Shows the text beside the anchor, to its right unless the screen ends there;
    // replaces any message shown before.
    void showMessage(QWidget* anchor, const QString& text);

    QString text() const { return m_text; }
    QWidget* anchor() const { return m_anchor; }
    Side side() const { return m_side; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize textSize() const;
    QSize bodySize() const;
    QRect textRect() const;
    QRectF bodyRect() const;
    QPainterPath outline() const;
    void placeBeside(const QWidget* anchor);
    void watchForDismissal();
    void stopWatching();

    QString m_text;
    QPointer<QWidget> m_anchor;
    QPointer<QWidget> m_anchorWindow;
    Side m_side = Side::Right;
    QTimer m_dismissTimer;
};

} // namespace tavrin
