#include "gui/ui/ThumbnailPreview.h"

#include <QAbstractItemView>
#include <QFileInfo>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>

namespace tavrin {

namespace {

// A regular file of an image format Qt reads; a FIFO or a device is never opened.
bool isReadableImage(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isFile())
        return false;
    return QImageReader::supportedImageFormats().contains(info.suffix().toLower().toLatin1());
}

QImage thumbnailOf(const QString& path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    constexpr int largest = ThumbnailPreview::ThumbnailSize;
    if (size.isValid() && (size.width() > largest || size.height() > largest))
        reader.setScaledSize(size.scaled(largest, largest, Qt::KeepAspectRatio));
    return reader.read();
}

} // namespace

ThumbnailPreview::ThumbnailPreview(QAbstractItemView* view)
    : QObject(view)
    , m_view(view)
    , m_popup(new QLabel(view, Qt::ToolTip | Qt::FramelessWindowHint))
{
    m_popup->setObjectName(QStringLiteral("thumbnailPopup"));
    m_popup->setFrameShape(QFrame::Box);
    m_popup->setMargin(4);
    m_popup->setAlignment(Qt::AlignCenter);
    m_reader.setMaxThreadCount(1);
    m_hoverTimer.setSingleShot(true);
    m_hoverTimer.setInterval(HoverDelayMilliseconds);
    connect(&m_hoverTimer, &QTimer::timeout, this, [this] { showFor(m_hovered); });
    m_view->viewport()->setMouseTracking(true);
    m_view->viewport()->installEventFilter(this);
    m_view->installEventFilter(this);
}

ThumbnailPreview::~ThumbnailPreview()
{
    m_reader.clear();
    m_reader.waitForDone();
}

void ThumbnailPreview::showFor(const QModelIndex& index)
{
    const QString path = index.isValid() ? index.siblingAtColumn(0).data(PathRole).toString() : QString();
    if (!isReadableImage(path)) {
        hide();
        return;
    }
    if (path == m_path && m_popup->isVisible())
        return;
    hide();
    m_path = path;
    m_shownRow = index;
    const quint64 request = ++m_request;
    m_reader.clear();
    m_reader.start([this, request, path] {
        const QImage image = thumbnailOf(path);
        QMetaObject::invokeMethod(this, [this, request, image] { showImage(request, image); }, Qt::QueuedConnection);
    });
}

void ThumbnailPreview::hide()
{
    ++m_request;
    m_path.clear();
    m_popup->hide();
}

void ThumbnailPreview::showImage(quint64 request, const QImage& image)
{
    if (request != m_request || image.isNull() || !m_shownRow.isValid())
        return;
    m_popup->setPixmap(QPixmap::fromImage(image));
    m_popup->adjustSize();
    const QRect row = m_view->visualRect(m_shownRow);
    const QPoint beside = m_view->viewport()->mapToGlobal(QPoint(row.left() + 24, row.bottom() + 2));
    m_popup->move(beside);
    m_popup->show();
    emit shown(m_path);
}

bool ThumbnailPreview::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (watched == m_view->viewport()) {
            const QModelIndex index = m_view->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
            if (index.row() != m_hovered.row() || !m_hovered.isValid()) {
                hide();
                m_hovered = index;
                m_hoverTimer.start();
            }
        }
        break;
    case QEvent::Leave:
    case QEvent::FocusOut:
    case QEvent::Wheel:
        m_hoverTimer.stop();
        m_hovered = QModelIndex();
        hide();
        break;
    case QEvent::KeyPress:
        if (watched == m_view && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
            if (m_popup->isVisible())
                hide();
            else
                showFor(m_view->currentIndex());
            return true;
        }
        hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tavrin
