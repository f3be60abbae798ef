#include "gui/list/ItemIconCache.h"

#include "GuiFixture.h"

#include <QPainter>

using namespace tavrin;
using namespace tavrin::test;

namespace {

constexpr int kSize = 32;

// Every icon drawn on the same canvas, so that icons whose best pixmap is smaller than
// the canvas compare by what a row shows.
QImage imageOf(const QIcon& icon)
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(0, 0, kSize, kSize), icon.pixmap(QSize(kSize, kSize), 1.0));
    return image;
}

FileSystemItem recordWith(const QString& path, RenameStatus status, const QString& proposal = {})
{
    FileSystemItem item = *FileSystemItem::initWithPath(path);
    item.setObject(proposal, u"newFilename"_s);
    if (status != RenameStatus::None)
        item.setStatus(status);
    return item;
}

TEST(ItemIconCache, TheStatusChoosesTheBadgeInTheLowerRightCorner)
{
    TempTree tree;
    const QString path = tree.file(u"a.txt"_s);
    const QString folder = tree.folder(u"f"_s);
    ItemIconCache icons;
    const auto image = [&](const QString& item, RenameStatus status, const QString& proposal = {}) {
        return imageOf(icons.icon(recordWith(item, status, proposal)));
    };
    const QImage plain = image(path, RenameStatus::None);
    const QImage error = image(path, RenameStatus::FileAlreadyExists);
    EXPECT_EQ(plain, image(path, RenameStatus::None, u"No Changes"_s))
        << "a proposed name is not a status, even one that reads like it";
    EXPECT_NE(plain, error);
    EXPECT_EQ(error, image(path, RenameStatus::NoChanges)) << "every refusal wears the same badge";
    EXPECT_NE(image(path, RenameStatus::RenamingOk), error);
    EXPECT_NE(image(path, RenameStatus::RenamingOk), plain);
    EXPECT_EQ(error.pixel(2, 2), plain.pixel(2, 2)) << "the upper left is still the file's icon";
    EXPECT_NE(error.pixel(kSize - 8, kSize - 8), plain.pixel(kSize - 8, kSize - 8));
    EXPECT_NE(plain, image(folder, RenameStatus::None)) << "folders and files look different";
    EXPECT_NE(image(folder, RenameStatus::None), image(folder, RenameStatus::FolderNotFound));
}

TEST(ItemIconCache, FilesWithTheSameExtensionAndBadgeShareOneIcon)
{
    TempTree tree;
    ItemIconCache icons;
    const QIcon first = icons.icon(recordWith(tree.file(u"a.TXT"_s), RenameStatus::NoChanges));
    const QIcon second = icons.icon(recordWith(tree.file(u"b.txt"_s), RenameStatus::NoChanges));
    EXPECT_EQ(first.cacheKey(), second.cacheKey());
    const QIcon other = icons.icon(recordWith(tree.file(u"c.txt"_s), RenameStatus::None));
    EXPECT_NE(first.cacheKey(), other.cacheKey()) << "the badge is part of what is cached";
}

} // namespace
