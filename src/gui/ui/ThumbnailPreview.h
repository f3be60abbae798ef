#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QThreadPool>
#include <QTimer>

class QAbstractItemView;
class QImage;
class QLabel;

namespace tavrin {

// Shows a thumbnail of an image file beside its row: while the pointer rests on the row, or
// after Space on the current row. The view's model gives a row's path under PathRole. The
// image is read and scaled on a thread of this object's own, so a large photo never stalls
// the window; a thumbnail that arrives after the pointer moved on is dropped.
class ThumbnailPreview : public QObject {
    Q_OBJECT

public:
    static constexpr int PathRole = Qt::UserRole;
    static constexpr int ThumbnailSize = 160;
    static constexpr int HoverDelayMilliseconds = 400;

    explicit ThumbnailPreview(QAbstractItemView* view);
    // Waits for a read in progress, whose result then goes nowhere.
    ~ThumbnailPreview() override;

    // Reads the thumbnail of the row's file, and shows it when it is an image.
    void showFor(const QModelIndex& index);
    void hide();

    // The window that shows the thumbnail; hidden while there is none.
    QLabel* popup() const { return m_popup; }

signals:
    // A thumbnail is on screen, beside the row of `path`.
    void shown(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showImage(quint64 request, const QImage& image);

    QAbstractItemView* m_view;
    QLabel* m_popup;
    QThreadPool m_reader;
    QTimer m_hoverTimer;
    QPersistentModelIndex m_hovered;
    QPersistentModelIndex m_shownRow;
    QString m_path;
    quint64 m_request = 0;
};

} // namespace tavrin
