#include "core/platform/FileOperations.h"
#include "support/TempTree.h"

#include <QFile>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace tavrin;

namespace {

ItemIdentity identity(unsigned long long inode, unsigned long long links = 1, bool directory = false)
{
    return {true, directory, 7, inode, links};
}

TEST(CaseOnlyRenameDecision, RenamesOnlyOneItemSeenUnderTwoSpellings)
{
    const ItemIdentity missing {};
    ItemIdentity otherDevice = identity(10);
    otherDevice.device = 8;
    struct Row {
        const char* label;
        ItemIdentity source;
        ItemIdentity target;
        bool samePath;
        bool targetListed;
        CaseRenameDecision expected;
    };
    const Row rows[] = {
        {"case-insensitive alias of a file", identity(10), identity(10), false, false,
            CaseRenameDecision::Rename},
        {"case-insensitive alias of a folder", identity(10, 3, true), identity(10, 3, true), false, false,
            CaseRenameDecision::Rename},
        {"hard-linked file, new spelling not in the folder", identity(10, 2), identity(10, 2), false, false,
            CaseRenameDecision::Rename},
        {"second hard link holds the new name", identity(10, 2), identity(10, 2), false, true,
            CaseRenameDecision::TargetNameTaken},
        {"the very same path", identity(10, 2), identity(10, 2), true, true, CaseRenameDecision::Rename},
        {"another item", identity(10), identity(11), false, false, CaseRenameDecision::NotSameItem},
        {"same inode on another device", identity(10), otherDevice, false, false,
            CaseRenameDecision::NotSameItem},
        {"nothing at the new name", identity(10), missing, false, false, CaseRenameDecision::NotSameItem},
        {"nothing at the old name", missing, identity(10), false, false, CaseRenameDecision::SourceMissing},
    };
    for (const Row& row : rows)
        EXPECT_EQ(decideCaseOnlyRename(row.source, row.target, row.samePath, row.targetListed), row.expected)
            << row.label;
}

// This disk tells letter cases apart, so a new spelling is another item or none at all.
TEST(RenameCaseOnly, LeavesADifferentItemAlone)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("photo.JPG"), "upper");
    tree.file(QStringLiteral("photo.jpg"), "lower");
    const FileResult result = renameCaseOnly(source, tree.path(QStringLiteral("photo.jpg")));
    EXPECT_EQ(result.outcome, FileOutcome::NotSameItem);
    EXPECT_FALSE(result.message.isEmpty());
    EXPECT_EQ(tree.read(QStringLiteral("photo.JPG")), QByteArray("upper"));
    EXPECT_EQ(tree.read(QStringLiteral("photo.jpg")), QByteArray("lower"));
}

TEST(RenameCaseOnly, DoesNotRenameToAFreeName)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("photo.JPG"), "upper");
    EXPECT_EQ(
        renameCaseOnly(source, tree.path(QStringLiteral("photo.jpg"))).outcome, FileOutcome::NotSameItem);
    EXPECT_TRUE(tree.exists(QStringLiteral("photo.JPG")));
    EXPECT_FALSE(tree.exists(QStringLiteral("photo.jpg")));
}

TEST(RenameCaseOnly, ReportsAMissingSource)
{
    test::TempTree tree;
    tree.file(QStringLiteral("photo.jpg"), "lower");
    EXPECT_EQ(renameCaseOnly(tree.path(QStringLiteral("photo.JPG")), tree.path(QStringLiteral("photo.jpg")))
                  .outcome,
        FileOutcome::SourceMissing);
    EXPECT_EQ(tree.read(QStringLiteral("photo.jpg")), QByteArray("lower"));
}

// Two hard links are one item by device and inode, yet rename(2) between them succeeds
// without doing anything: that must not come back as a rename that happened.
TEST(RenameCaseOnly, DoesNotReportARenameBetweenTwoHardLinks)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("photo.JPG"), "shared");
    const QString target = tree.path(QStringLiteral("photo.jpg"));
    ASSERT_EQ(::link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()), 0);

    const FileResult result = renameCaseOnly(source, target);
    EXPECT_EQ(result.outcome, FileOutcome::TargetExists);
    EXPECT_EQ(tree.read(QStringLiteral("photo.JPG")), QByteArray("shared"));
    EXPECT_EQ(tree.read(QStringLiteral("photo.jpg")), QByteArray("shared"));
    EXPECT_EQ(itemIdentity(source).linkCount, 2U);
}

// A name given to itself is one entry, not two hard links, even when the file has another
// link elsewhere: nothing is refused and nothing moves.
TEST(RenameCaseOnly, AcceptsTheSamePathOfAHardLinkedFile)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("a/photo.jpg"), "shared");
    const QString elsewhere = tree.folder(QStringLiteral("b")) + QStringLiteral("/copy.jpg");
    ASSERT_EQ(::link(QFile::encodeName(source).constData(), QFile::encodeName(elsewhere).constData()), 0);

    EXPECT_TRUE(renameCaseOnly(source, source).ok());
    EXPECT_EQ(tree.read(QStringLiteral("a/photo.jpg")), QByteArray("shared"));
    EXPECT_EQ(tree.read(QStringLiteral("b/copy.jpg")), QByteArray("shared"));
}

TEST(ItemIdentity, TellsItemsApartByDeviceAndInode)
{
    test::TempTree tree;
    const QString first = tree.file(QStringLiteral("first"), "1");
    const QString second = tree.file(QStringLiteral("second"), "2");
    const QString link = tree.symlink(first, QStringLiteral("link"));
    const ItemIdentity a = itemIdentity(first);
    EXPECT_TRUE(a.exists);
    EXPECT_FALSE(a.isDirectory);
    EXPECT_EQ(a.linkCount, 1U);
    EXPECT_NE(a.inode, itemIdentity(second).inode);
    // A link is an item of its own, not the file it points at.
    EXPECT_NE(a.inode, itemIdentity(link).inode);
    EXPECT_TRUE(itemIdentity(tree.root()).isDirectory);
    EXPECT_FALSE(itemIdentity(tree.path(QStringLiteral("missing"))).exists);
}

}  // namespace
