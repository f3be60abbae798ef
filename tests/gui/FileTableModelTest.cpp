#include "gui/list/FileTableModel.h"

#include "GuiFixture.h"
#include "core/list/FileSystemItem.h"

#include <QIcon>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class FileTableModelTest : public ControllerFixture {
protected:
    QString text(int row, int column) const { return model.index(row, column).data().toString(); }

    FileTableModel model{&controller.list()};
};

struct CellRow {
    int column;
    const char* expected;  // "@" stands for the folder of the file
};

TEST_F(FileTableModelTest, ShowsEachColumnOfAListedFile)
{
    tree.file(QStringLiteral("docs/report.final.txt"));
    ASSERT_TRUE(addAndWait({tree.path(QStringLiteral("docs/report.final.txt"))}));
    ASSERT_EQ(model.rowCount(), 1);
    ASSERT_EQ(model.columnCount(), FileTableModel::ColumnCount);

    const CellRow rows[] = {
        {FileTableModel::IconColumn, ""},           {FileTableModel::NameColumn, "report.final.txt"},
        {FileTableModel::NewNameColumn, ""},        {FileTableModel::LocationColumn, "@"},
        {FileTableModel::ExtensionColumn, "txt"},   {FileTableModel::TypeColumn, "File"},
    };
    for (const CellRow& row : rows) {
        const QString expected = QString::fromUtf8(row.expected) == QStringLiteral("@")
                                     ? tree.path(QStringLiteral("docs"))
                                     : QString::fromUtf8(row.expected);
        EXPECT_EQ(text(0, row.column), expected) << "column " << row.column;
    }
    EXPECT_EQ(model.index(0, FileTableModel::NameColumn).data(Qt::ToolTipRole).toString(),
              tree.path(QStringLiteral("docs/report.final.txt")));
}

TEST_F(FileTableModelTest, AFolderRowIsTypedAsAFolder)
{
    tree.folder(QStringLiteral("photos/2024"));
    list().setMode(ListMode::Folders);
    ASSERT_TRUE(addAndWait({tree.path(QStringLiteral("photos/2024"))}));
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(text(0, FileTableModel::NameColumn), QStringLiteral("2024"));
    EXPECT_EQ(text(0, FileTableModel::TypeColumn), QStringLiteral("Folder"));
    EXPECT_EQ(text(0, FileTableModel::LocationColumn), tree.path(QStringLiteral("photos")));
}

TEST_F(FileTableModelTest, AStoredColonIsShownAsASlashInNamesOnly)
{
    tree.file(QStringLiteral("a:b/x:y.txt"));
    ASSERT_TRUE(addAndWait({tree.path(QStringLiteral("a:b/x:y.txt"))}));
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(text(0, FileTableModel::NameColumn), QStringLiteral("x/y.txt"));
    EXPECT_EQ(text(0, FileTableModel::LocationColumn), tree.path(QStringLiteral("a:b")));
}

TEST_F(FileTableModelTest, ColumnsAreTheRecordKeysWithLocalizedHeaders)
{
    struct HeaderRow {
        int column;
        const char* key;
        const char* title;
        bool sortable;
    };
    const HeaderRow rows[] = {
        {FileTableModel::IconColumn, "icon", "", false},
        {FileTableModel::NameColumn, "filenameWithExtension", "Name", true},
        {FileTableModel::NewNameColumn, "newFilename", "New Name", true},
        {FileTableModel::LocationColumn, "fileLocation", "Location", true},
        {FileTableModel::ExtensionColumn, "fileExtension", "Extension", true},
        {FileTableModel::TypeColumn, "fileType", "Type", true},
    };
    for (const HeaderRow& row : rows) {
        EXPECT_EQ(FileTableModel::columnKey(row.column), QString::fromLatin1(row.key));
        EXPECT_EQ(model.headerData(row.column, Qt::Horizontal).toString(), QString::fromUtf8(row.title));
        EXPECT_EQ(FileTableModel::isSortableColumn(row.column), row.sortable) << row.key;
    }
    EXPECT_TRUE(FileTableModel::columnKey(FileTableModel::ColumnCount).isEmpty());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical).isValid());
}

TEST_F(FileTableModelTest, AMoveKeepsTheRowsAndChangesTheirOrder)
{
    for (const char* name : {"a.txt", "b.txt"})
        tree.file(QStringLiteral("m/") + QString::fromLatin1(name));
    list().setIncludeSubFolders(true);
    ASSERT_TRUE(addAndWait({tree.path(QStringLiteral("m"))}));
    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);

    list().moveDown({0});

    EXPECT_EQ(layout.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(text(0, FileTableModel::NameColumn), QStringLiteral("b.txt"));
}

TEST_F(FileTableModelTest, TheIconColumnAloneHasIcons)
{
    tree.file(QStringLiteral("i/a.txt"));
    ASSERT_TRUE(addAndWait({tree.path(QStringLiteral("i/a.txt"))}));
    const QVariant icon = model.index(0, FileTableModel::IconColumn).data(Qt::DecorationRole);
    ASSERT_TRUE(icon.canConvert<QIcon>());
    EXPECT_FALSE(icon.value<QIcon>().isNull());
    EXPECT_FALSE(model.index(0, FileTableModel::NameColumn).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.index(0, FileTableModel::IconColumn).data(Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.index(5, FileTableModel::NameColumn).data().isValid());
}

}  // namespace
