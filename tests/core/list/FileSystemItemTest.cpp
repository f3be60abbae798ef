#include "core/list/FileSystemItem.h"
#include "core/list/StatusTexts.h"
#include "core/text/NameParts.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace tavrin;

namespace {

struct SplitRow {
    const char* component;
    const char* name;
    const char* extension;
};

TEST(NameParts, SplitsAtTheLastDotThatIsNeitherFirstNorLast)
{
    const SplitRow rows[] = {
        {"a.txt", "a", "txt"},     {".bashrc", ".bashrc", ""}, {"a.b.c", "a.b", "c"},
        {"a.", "a.", ""},          {"a.tar.gz", "a.tar", "gz"}, {"noext", "noext", ""},
        {"", "", ""},              {"..", "..", ""},           {".a.b", ".a", "b"},
    };
    for (const SplitRow& row : rows) {
        const NameParts parts = splitNameAndExtension(QString::fromUtf8(row.component));
        EXPECT_EQ(parts.name, QString::fromUtf8(row.name)) << row.component;
        EXPECT_EQ(parts.extension, QString::fromUtf8(row.extension)) << row.component;
    }
}

TEST(NameParts, PathPiecesAndColonSlashForms)
{
    EXPECT_EQ(lastPathComponent(QStringLiteral("/a/b.txt")), QStringLiteral("b.txt"));
    EXPECT_EQ(parentPath(QStringLiteral("/a/b.txt")), QStringLiteral("/a"));
    EXPECT_EQ(parentPath(QStringLiteral("/b")), QStringLiteral("/"));
    EXPECT_EQ(joinPath(QStringLiteral("/"), QStringLiteral("b")), QStringLiteral("/b"));
    EXPECT_EQ(joinPath(QStringLiteral("/a"), QStringLiteral("b")), QStringLiteral("/a/b"));
    EXPECT_EQ(displayName(QStringLiteral("a:b")), QStringLiteral("a/b"));
    EXPECT_EQ(storedName(QStringLiteral("a/b")), QStringLiteral("a:b"));
}

TEST(FileSystemItem, DerivedKeysComeFromThePathAndShowColonsAsSlashes)
{
    test::TempTree tree;
    const QString path = tree.file(QStringLiteral("x/re:port.final.txt"));
    const auto item = FileSystemItem::initWithPath(path);
    ASSERT_TRUE(item.has_value());
    EXPECT_EQ(item->objectForKey(QStringLiteral("filename")), QStringLiteral("re:port.final"));
    EXPECT_EQ(item->displayField(QStringLiteral("filename")), QStringLiteral("re/port.final"));
    EXPECT_EQ(item->displayField(QStringLiteral("filenameWithExtension")), QStringLiteral("re/port.final.txt"));
    EXPECT_EQ(item->objectForKey(QStringLiteral("fileExtension")), QStringLiteral("txt"));
    EXPECT_EQ(item->objectForKey(QStringLiteral("fileLocation")), tree.path(QStringLiteral("x")));
    EXPECT_EQ(item->displayField(QStringLiteral("fileWithPath")), path);
    EXPECT_EQ(item->objectForKey(QStringLiteral("fileType")), QStringLiteral("FILE"));
    EXPECT_EQ(item->objectForKey(QStringLiteral("newFilename")), QString());
    EXPECT_EQ(item->objectForKey(QStringLiteral("nonsense")), QString());
}

TEST(FileSystemItem, OnlyNewFilenameCanBeSet)
{
    test::TempTree tree;
    auto item = FileSystemItem::initWithPath(tree.file(QStringLiteral("a.txt")));
    ASSERT_TRUE(item.has_value());
    item->setObject(QStringLiteral("b:c.txt"), QStringLiteral("filename"));
    item->setObject(QStringLiteral("b:c.txt"), QStringLiteral("fileWithPath"));
    EXPECT_EQ(item->filenameWithExtension(), QStringLiteral("a.txt"));
    item->setObject(QStringLiteral("b:c.txt"), QStringLiteral("newFilename"));
    EXPECT_EQ(item->newFilename(), QStringLiteral("b:c.txt"));
    EXPECT_EQ(item->displayField(QStringLiteral("newFilename")), QStringLiteral("b/c.txt"));
}

TEST(FileSystemItem, KindsOfObjects)
{
    test::TempTree tree;
    const QString folder = tree.folder(QStringLiteral("dir.d"));
    const QString linkToFolder = tree.symlink(folder, QStringLiteral("link"));
    const QString dangling = tree.symlink(tree.path(QStringLiteral("gone")), QStringLiteral("dangling"));

    const auto folderItem = FileSystemItem::initWithPath(folder);
    ASSERT_TRUE(folderItem.has_value());
    EXPECT_EQ(folderItem->itemType(), ItemType::Folder);
    EXPECT_EQ(folderItem->fileType(), QStringLiteral("FOLDER"));
    EXPECT_TRUE(folderItem->isPathExists());

    const auto linkItem = FileSystemItem::initWithPath(linkToFolder);
    ASSERT_TRUE(linkItem.has_value());
    EXPECT_TRUE(linkItem->isAlias());
    EXPECT_FALSE(linkItem->isFolder());
    EXPECT_FALSE(linkItem->isFile());
    EXPECT_EQ(linkItem->itemType(), ItemType::Alias);
    EXPECT_EQ(linkItem->fileType(), QString());

    const auto danglingItem = FileSystemItem::initWithPath(dangling);
    ASSERT_TRUE(danglingItem.has_value());
    EXPECT_EQ(danglingItem->itemType(), ItemType::Alias);

    const auto missing = FileSystemItem::initWithPath(tree.path(QStringLiteral("missing.txt")));
    ASSERT_TRUE(missing.has_value());
    EXPECT_EQ(missing->itemType(), ItemType::File);
    EXPECT_FALSE(missing->isPathExists());
}

TEST(FileSystemItem, HiddenAndEmptyPathsMakeNoRecord)
{
    test::TempTree tree;
    EXPECT_FALSE(FileSystemItem::initWithPath(QString()).has_value());
    EXPECT_FALSE(FileSystemItem::initWithPath(tree.file(QStringLiteral(".hidden"))).has_value());
    EXPECT_FALSE(FileSystemItem::initWithPath(tree.folder(QStringLiteral(".git"))).has_value());
}

TEST(StatusTexts, ErrorStatusesAndTheSuccessOne)
{
    EXPECT_TRUE(isErrorStatus(RenameStatus::NoChanges));
    EXPECT_TRUE(isErrorStatus(RenameStatus::FolderNotFound));
    EXPECT_FALSE(isErrorStatus(RenameStatus::RenamingOk));
    EXPECT_FALSE(isErrorStatus(RenameStatus::None));
    EXPECT_EQ(statusText(RenameStatus::FileAlreadyExists), QStringLiteral("File Already Exists"));
    EXPECT_EQ(statusText(RenameStatus::None), QString());
}

// Regression: a real new name that reads like a status ("file not found" in title case) was
// taken for one, and the item was skipped.
TEST(StatusTexts, AProposalThatReadsLikeAStatusIsStillAProposal)
{
    test::TempTree tree;
    FileSystemItem item = *FileSystemItem::initWithPath(tree.file(QStringLiteral("file not found")));
    item.setObject(QStringLiteral("File Not Found"), QStringLiteral("newFilename"));
    EXPECT_FALSE(item.hasStatus());
    item.setStatus(RenameStatus::FileNotFound);
    EXPECT_EQ(item.newFilename(), QStringLiteral("File Not Found"));
    EXPECT_TRUE(item.hasStatus());
    item.setObject(QStringLiteral("b"), QStringLiteral("newFilename"));
    EXPECT_FALSE(item.hasStatus()) << "a new proposal clears the status";
}

}  // namespace
