#include "gui/list/FileTableModel.h"

#include "GuiFixture.h"
#include "gui/list/ItemIconCache.h"

#include <QPainter>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class FileTableModelTest : public ControllerFixture {
protected:
    QString text(int column, int role = Qt::DisplayRole) const
    {
        return model.index(0, column).data(role).toString();
    }

    FileTableModel model { &controller.list() };
};

struct RowText {
    ListMode mode;
    QString path;
    QStringList columns; // name, location, extension, type
};

// A stored colon shows as a slash in names only: folders on the way keep theirs.
TEST_F(FileTableModelTest, EachColumnShowsItsFieldOfTheRecordUnderItsHeader)
{
    const RowText rows[] = {
        { ListMode::Files, u"docs/report.final.txt"_s,
            { u"report.final.txt"_s, u"docs"_s, u"txt"_s, u"File"_s } },
        { ListMode::Files, u"a:b/x:y.txt"_s, { u"x/y.txt"_s, u"a:b"_s, u"txt"_s, u"File"_s } },
        { ListMode::Folders, u"photos/2024"_s, { u"2024"_s, u"photos"_s, QString(), u"Folder"_s } },
    };
    for (const RowText& row : rows) {
        list().setMode(row.mode);
        list().clear();
        ASSERT_TRUE(
            addAndWait({ row.mode == ListMode::Files ? tree.file(row.path) : tree.folder(row.path) }));
        ASSERT_EQ(model.rowCount(), 1);
        QStringList shown;
        for (int column = 0; column < FileTableModel::ColumnCount; ++column)
            shown.append(text(column));
        EXPECT_EQ(shown,
            QStringList({ QString(), row.columns[0], QString(), tree.path(row.columns[1]), row.columns[2],
                row.columns[3] }));
        EXPECT_EQ(text(FileTableModel::NameColumn, Qt::ToolTipRole), tree.path(row.path).replace(u':', u'/'));
    }
    // Each column sorts by the record key of its field; the icon column does not sort.
    QStringList headers;
    QStringList keys;
    for (int column = 0; column < FileTableModel::ColumnCount; ++column) {
        headers.append(model.headerData(column, Qt::Horizontal).toString());
        keys.append(FileTableModel::columnKey(column));
        EXPECT_EQ(FileTableModel::isSortableColumn(column), column != FileTableModel::IconColumn) << column;
    }
    EXPECT_EQ(headers,
        QStringList({ QString(), u"Name"_s, u"New Name"_s, u"Location"_s, u"Extension"_s, u"Type"_s }));
    EXPECT_EQ(keys,
        QStringList({ u"icon"_s, u"filenameWithExtension"_s, u"newFilename"_s, u"fileLocation"_s,
            u"fileExtension"_s, u"fileType"_s }));
    EXPECT_TRUE(FileTableModel::columnKey(FileTableModel::ColumnCount).isEmpty());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical).isValid());
}

// A row's tooltip says why it cannot be renamed.
TEST(FileTableModelToolTip, NamesThePathAndWhyTheRowCannotBeRenamed)
{
    TempTree tree;
    const QString path = tree.file(u"a.txt"_s);
    const std::pair<RenameStatus, const char*> rows[] = {
        { RenameStatus::None, nullptr },
        { RenameStatus::RenamingOk, nullptr },
        { RenameStatus::NoChanges, "NOCHANGESTOOLTIP" },
        { RenameStatus::FileAlreadyExists, "ALREADYEXISTSTOOLTIP" },
        { RenameStatus::FileNotFound, "NOTFOUNDTOOLTIP" },
    };
    for (const auto& [status, key] : rows) {
        FileSystemItem item = *FileSystemItem::initWithPath(path);
        if (status != RenameStatus::None)
            item.setStatus(status);
        EXPECT_EQ(FileTableModel::toolTip(item), key ? path + u'\n' + localized(key) : path) << key;
    }
}

TEST_F(FileTableModelTest, TheIconColumnAloneHasIconsAndAMoveKeepsTheRows)
{
    listFiles({ u"a.txt"_s, u"b.txt"_s });
    EXPECT_FALSE(model.index(0, FileTableModel::IconColumn).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_FALSE(model.index(0, FileTableModel::NameColumn).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.index(5, FileTableModel::NameColumn).data().isValid());

    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    list().moveDown({ 0 });
    EXPECT_EQ(layout.count(), 1);
    EXPECT_EQ(reset.count(), 0) << "the same rows in another order";
    EXPECT_EQ(text(FileTableModel::NameColumn), u"b.txt"_s);
}

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
