#include "gui/list/FileTableModel.h"

#include "GuiFixture.h"
#include "core/text/LocalizedStrings.h"

#include <QIcon>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class FileTableModelTest : public ControllerFixture {
protected:
    QString text(int column) const { return model.index(0, column).data().toString(); }

    FileTableModel model { &controller.list() };
};

struct RowText {
    ListMode mode;
    QString path;
    QString name;
    QString location;
    QString extension;
    QString type;
};

// A stored colon shows as a slash in names only: folders on the way keep theirs.
TEST_F(FileTableModelTest, EachColumnShowsItsFieldOfTheRecord)
{
    const RowText rows[] = {
        { ListMode::Files, u"docs/report.final.txt"_s, u"report.final.txt"_s, u"docs"_s, u"txt"_s,
            u"File"_s },
        { ListMode::Files, u"a:b/x:y.txt"_s, u"x/y.txt"_s, u"a:b"_s, u"txt"_s, u"File"_s },
        { ListMode::Folders, u"photos/2024"_s, u"2024"_s, u"photos"_s, QString(), u"Folder"_s },
    };
    for (const RowText& row : rows) {
        list().setMode(row.mode);
        list().clear();
        const QString path = row.mode == ListMode::Files ? tree.file(row.path) : tree.folder(row.path);
        ASSERT_TRUE(addAndWait({ path }));
        ASSERT_EQ(model.rowCount(), 1);
        EXPECT_EQ(text(FileTableModel::IconColumn), QString());
        EXPECT_EQ(text(FileTableModel::NameColumn), row.name);
        EXPECT_EQ(text(FileTableModel::NewNameColumn), QString());
        EXPECT_EQ(text(FileTableModel::LocationColumn), tree.path(row.location));
        EXPECT_EQ(text(FileTableModel::ExtensionColumn), row.extension);
        EXPECT_EQ(text(FileTableModel::TypeColumn), row.type);
        EXPECT_EQ(model.index(0, FileTableModel::NameColumn).data(Qt::ToolTipRole).toString(),
            tree.path(row.path).replace(u':', u'/'));
    }
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
        const QString expected = key ? path + u'\n' + localized(key) : path;
        EXPECT_EQ(FileTableModel::toolTip(item), expected) << statusText(status).toStdString();
    }
}

struct HeaderRow {
    int column;
    const char* key;
    QString title;
    bool sortable;
};

TEST_F(FileTableModelTest, ColumnsAreTheRecordKeysWithLocalizedHeaders)
{
    const HeaderRow rows[] = {
        { FileTableModel::IconColumn, "icon", QString(), false },
        { FileTableModel::NameColumn, "filenameWithExtension", u"Name"_s, true },
        { FileTableModel::NewNameColumn, "newFilename", u"New Name"_s, true },
        { FileTableModel::LocationColumn, "fileLocation", u"Location"_s, true },
        { FileTableModel::ExtensionColumn, "fileExtension", u"Extension"_s, true },
        { FileTableModel::TypeColumn, "fileType", u"Type"_s, true },
    };
    for (const HeaderRow& row : rows) {
        EXPECT_EQ(FileTableModel::columnKey(row.column), QString::fromLatin1(row.key));
        EXPECT_EQ(model.headerData(row.column, Qt::Horizontal).toString(), row.title);
        EXPECT_EQ(FileTableModel::isSortableColumn(row.column), row.sortable) << row.key;
    }
    EXPECT_TRUE(FileTableModel::columnKey(FileTableModel::ColumnCount).isEmpty());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical).isValid());
}

TEST_F(FileTableModelTest, TheIconColumnAloneHasIconsAndAMoveKeepsTheRows)
{
    listFiles({ u"a.txt"_s, u"b.txt"_s });
    const QVariant icon = model.index(0, FileTableModel::IconColumn).data(Qt::DecorationRole);
    EXPECT_FALSE(icon.value<QIcon>().isNull());
    EXPECT_FALSE(model.index(0, FileTableModel::NameColumn).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.index(5, FileTableModel::NameColumn).data().isValid());

    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    list().moveDown({ 0 });
    EXPECT_EQ(layout.count(), 1);
    EXPECT_EQ(reset.count(), 0) << "the same rows in another order";
    EXPECT_EQ(text(FileTableModel::NameColumn), u"b.txt"_s);
}

} // namespace
