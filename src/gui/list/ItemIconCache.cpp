#include "gui/list/ItemIconCache.h"

#include "core/list/FileSystemItem.h"
#include "core/list/StatusTexts.h"
#include "core/text/NameParts.h"

#include <QFileIconProvider>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>

namespace tavrin {

namespace {

// The sizes a row icon is drawn at, so the view never scales a badged pixmap.
constexpr int kIconSizes[] = {16, 20, 24, 32, 48};

// A status badge covers the lower right quarter of the icon, and stays readable when
// the icon is small.
int badgeSizeFor(int iconSize)
{
    return std::max(10, iconSize / 2);
}

QString badgeResource(ItemIconCache::Badge badge)
{
    switch (badge) {
    case ItemIconCache::Badge::Error:
        return QStringLiteral(":/icons/Error.svg");
    case ItemIconCache::Badge::Warning:
        return QStringLiteral(":/icons/Warning.svg");
    case ItemIconCache::Badge::None:
    case ItemIconCache::Badge::Success:
        break;
    }
    return QStringLiteral(":/icons/Success.svg");
}

QString cacheKey(const FileSystemItem& item, const QString& extension, ItemIconCache::Badge badge)
{
    const QString kind = item.isFolder() ? QStringLiteral("folder") : QStringLiteral("file.") + extension;
    return kind + QLatin1Char('|') + QString::number(static_cast<int>(badge));
}

}  // namespace

ItemIconCache::Badge ItemIconCache::badgeFor(RenameStatus status)
{
    if (isErrorStatus(status))
        return Badge::Error;
    if (status == RenameStatus::RenamingOk)
        return Badge::Success;
    return Badge::None;
}

QIcon ItemIconCache::icon(const FileSystemItem& item)
{
    const QString extension = item.isFolder() ? QString() : item.fileExtension().toLower();
    // A proposal another row also proposes: only one of them can be renamed.
    const Badge badge = item.isConflict() && !item.hasStatus() ? Badge::Warning : badgeFor(item.status());
    const QString key = cacheKey(item, extension, badge);
    if (auto it = m_icons.constFind(key); it != m_icons.constEnd())
        return *it;
    const QIcon base = baseIcon(item, extension);
    const QIcon icon = badge == Badge::None ? base : badged(base, badge);
    m_icons.insert(key, icon);
    return icon;
}

QIcon ItemIconCache::baseIcon(const FileSystemItem& item, const QString& extension)
{
    if (item.isFolder())
        return folderIcon();
    return iconForExtension(extension);
}

// Chosen by the name alone: reading every file's content to guess its type would make a
// long list crawl.
QIcon ItemIconCache::iconForExtension(const QString& extension)
{
    const QIcon generic = QFileIconProvider().icon(QAbstractFileIconProvider::File);
    if (extension.isEmpty())
        return generic;
    const QMimeType type =
        m_mimeTypes.mimeTypeForFile(QStringLiteral("name.") + extension, QMimeDatabase::MatchExtension);
    if (type.isDefault())
        return generic;
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName(), generic));
}

QIcon ItemIconCache::folderIcon()
{
    return QFileIconProvider().icon(QAbstractFileIconProvider::Folder);
}

QIcon ItemIconCache::badged(const QIcon& base, Badge badge)
{
    QSvgRenderer renderer(badgeResource(badge));
    const qreal ratio = qApp ? qApp->devicePixelRatio() : 1.0;
    QIcon icon;
    for (const int size : kIconSizes) {
        QPixmap pixmap(QSize(size, size) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(0, 0, size, size), base.pixmap(QSize(size, size), ratio));
        const int badgeSize = badgeSizeFor(size);
        renderer.render(&painter, QRectF(size - badgeSize, size - badgeSize, badgeSize, badgeSize));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace tavrin
