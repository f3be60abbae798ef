#include "gui/list/ItemIconCache.h"

#include "core/list/FileSystemItem.h"
#include "core/list/StatusTexts.h"
#include "support/TempTree.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <utility>
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


FileSystemItem recordWith(const QString& path, RenameStatus status, const char* proposal = "")
{
    FileSystemItem item = *FileSystemItem::initWithPath(path);
    item.setObject(QString::fromUtf8(proposal), QStringLiteral("newFilename"));
    if (status != RenameStatus::None)
        item.setStatus(status);
    return item;
}

TEST(ItemIconCache, EveryStatusChoosesItsBadge)
{
    using Badge = ItemIconCache::Badge;
    const std::pair<RenameStatus, Badge> rows[] = {
        { RenameStatus::None, Badge::None },
        { RenameStatus::NoChanges, Badge::Error },
        { RenameStatus::FileAlreadyExists, Badge::Error },
        { RenameStatus::FolderAlreadyExists, Badge::Error },
        { RenameStatus::FileNotFound, Badge::Error },
        { RenameStatus::FolderNotFound, Badge::Error },
        { RenameStatus::RenamingOk, Badge::Success },
    };
    for (const auto& [status, badge] : rows)
        EXPECT_EQ(ItemIconCache::badgeFor(status), badge) << statusText(status).toStdString();
}

TEST(ItemIconCache, AnErrorStatusOverlaysTheErrorBadge)
{
    TempTree tree;
    const QString path = tree.file(QStringLiteral("a.txt"));
    ItemIconCache icons;

    const QImage plain = imageOf(icons.icon(recordWith(path, RenameStatus::None)));
    const QImage proposed = imageOf(icons.icon(recordWith(path, RenameStatus::None, "No Changes")));
    const QImage error = imageOf(icons.icon(recordWith(path, RenameStatus::FileAlreadyExists)));
    const QImage noChanges = imageOf(icons.icon(recordWith(path, RenameStatus::NoChanges)));
    const QImage success = imageOf(icons.icon(recordWith(path, RenameStatus::RenamingOk)));

    EXPECT_EQ(plain, proposed) << "a proposed name is not a status, even one that reads like it";
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
        imageOf(icons.icon(recordWith(file, RenameStatus::None))), imageOf(icons.icon(recordWith(folder, RenameStatus::None))));
    EXPECT_NE(imageOf(icons.icon(recordWith(folder, RenameStatus::None))),
        imageOf(icons.icon(recordWith(folder, RenameStatus::FolderNotFound))));
}

TEST(ItemIconCache, FilesWithTheSameExtensionShareOneIcon)
{
    TempTree tree;
    ItemIconCache icons;
    const QIcon first = icons.icon(recordWith(tree.file(QStringLiteral("a.TXT")), RenameStatus::NoChanges));
    const QIcon second = icons.icon(recordWith(tree.file(QStringLiteral("b.txt")), RenameStatus::NoChanges));
    EXPECT_EQ(first.cacheKey(), second.cacheKey());
    const QIcon other = icons.icon(recordWith(tree.file(QStringLiteral("c.txt")), RenameStatus::None));
    EXPECT_NE(first.cacheKey(), other.cacheKey()) << "the badge is part of what is cached";
}

} // namespace
