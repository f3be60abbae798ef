#include "gui/list/ItemIconCache.h"

#include "core/list/FileSystemItem.h"
#include "core/list/StatusTexts.h"
#include "support/TempTree.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::TempTree;

namespace {

constexpr int kSize = 32;

// Every icon drawn on the same canvas, so that icons whose best pixmap is smaller than
// the canvas compare by what a row shows.
QImage imageOf(const QIcon& icon)
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(0, 0, kSize, kSize), icon.pixmap(QSize(kSize, kSize), 1.0));
    return image;
}

FileSystemItem recordWithStatus(const QString& path, const char* newFilename)
{
    FileSystemItem item = *FileSystemItem::initWithPath(path);
    item.setObject(QString::fromUtf8(newFilename), QStringLiteral("newFilename"));
    return item;
}

struct BadgeRow {
    const char* newFilename;
    ItemIconCache::Badge badge;
};

TEST(ItemIconCache, EveryStatusTextChoosesItsBadge)
{
    using Badge = ItemIconCache::Badge;
    const BadgeRow rows[] = {
        { "", Badge::None },
        { "proposed name.txt", Badge::None },
        { status::NoChanges, Badge::Error },
        { status::FileAlreadyExists, Badge::Error },
        { status::FolderAlreadyExists, Badge::Error },
        { status::FileNotFound, Badge::Error },
        { status::FolderNotFound, Badge::Error },
        { status::RenamingOk, Badge::Success },
        { "renaming (ok)", Badge::None },
    };
    for (const BadgeRow& row : rows)
        EXPECT_EQ(ItemIconCache::badgeFor(QString::fromUtf8(row.newFilename)), row.badge) << row.newFilename;
}

TEST(ItemIconCache, AnErrorStatusOverlaysTheErrorBadge)
{
    TempTree tree;
    const QString path = tree.file(QStringLiteral("a.txt"));
    ItemIconCache icons;

    const QImage plain = imageOf(icons.icon(recordWithStatus(path, "")));
    const QImage proposed = imageOf(icons.icon(recordWithStatus(path, "b.txt")));
    const QImage error = imageOf(icons.icon(recordWithStatus(path, status::FileAlreadyExists)));
    const QImage noChanges = imageOf(icons.icon(recordWithStatus(path, status::NoChanges)));
    const QImage success = imageOf(icons.icon(recordWithStatus(path, status::RenamingOk)));

    EXPECT_EQ(plain, proposed) << "a proposed name is not a status";
    EXPECT_NE(plain, error);
    EXPECT_EQ(error, noChanges) << "every refusal wears the same badge";
    EXPECT_NE(success, error);
    EXPECT_NE(success, plain);

    // The badge sits in the lower right corner; the upper left is still the file's icon.
    EXPECT_EQ(error.pixel(2, 2), plain.pixel(2, 2));
    EXPECT_NE(error.pixel(kSize - 8, kSize - 8), plain.pixel(kSize - 8, kSize - 8));
}

TEST(ItemIconCache, FoldersAndFilesLookDifferent)
{
    TempTree tree;
    const QString file = tree.file(QStringLiteral("a.txt"));
    const QString folder = tree.folder(QStringLiteral("f"));
    ItemIconCache icons;
    EXPECT_NE(
        imageOf(icons.icon(recordWithStatus(file, ""))), imageOf(icons.icon(recordWithStatus(folder, ""))));
    EXPECT_NE(imageOf(icons.icon(recordWithStatus(folder, ""))),
        imageOf(icons.icon(recordWithStatus(folder, status::FolderNotFound))));
}

TEST(ItemIconCache, FilesWithTheSameExtensionShareOneIcon)
{
    TempTree tree;
    ItemIconCache icons;
    const QIcon first = icons.icon(recordWithStatus(tree.file(QStringLiteral("a.TXT")), status::NoChanges));
    const QIcon second = icons.icon(recordWithStatus(tree.file(QStringLiteral("b.txt")), status::NoChanges));
    EXPECT_EQ(first.cacheKey(), second.cacheKey());
    const QIcon other = icons.icon(recordWithStatus(tree.file(QStringLiteral("c.txt")), ""));
    EXPECT_NE(first.cacheKey(), other.cacheKey()) << "the badge is part of what is cached";
}

} // namespace
