#include "core/platform/FileOperations.h"
#include "support/TempTree.h"

#include <QFileInfo>
#include <cerrno>
#include <gtest/gtest.h>

using namespace tavrin;

// The fallbacks serve file systems without RENAME_NOREPLACE. The local disk has it, so the
// decision is checked on its own and each fallback move is run directly.
namespace {

TEST(NoReplaceFallback, OnlyAMissingFlagOrCallLeadsToAFallback)
{
    struct Row {
        int error;
        bool directory;
        NoReplaceFallback expected;
    };
    const Row rows[] = {
        {EINVAL, false, NoReplaceFallback::LinkAndUnlink},
        {EINVAL, true, NoReplaceFallback::CheckedRename},
        {ENOSYS, false, NoReplaceFallback::LinkAndUnlink},
        {ENOSYS, true, NoReplaceFallback::CheckedRename},
        {EEXIST, false, NoReplaceFallback::None},
        {EEXIST, true, NoReplaceFallback::None},
        {ENOENT, false, NoReplaceFallback::None},
        {EACCES, false, NoReplaceFallback::None},
        {EXDEV, false, NoReplaceFallback::None},
        {EROFS, true, NoReplaceFallback::None},
        {0, false, NoReplaceFallback::None},
    };
    for (const Row& row : rows)
        EXPECT_EQ(chooseNoReplaceFallback(row.error, row.directory), row.expected)
            << "errno " << row.error << (row.directory ? " (folder)" : " (file)");
}

TEST(MoveFileByLink, MovesAFileAndLeavesNoSecondName)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("a.txt"), "alpha");
    const FileResult result = moveFileByLink(source, tree.path(QStringLiteral("b.txt")));
    EXPECT_TRUE(result.ok());
    EXPECT_FALSE(tree.exists(QStringLiteral("a.txt")));
    EXPECT_EQ(tree.read(QStringLiteral("b.txt")), QByteArray("alpha"));
    EXPECT_EQ(itemIdentity(tree.path(QStringLiteral("b.txt"))).linkCount, 1U);
}

TEST(MoveFileByLink, MovesASymbolicLinkItself)
{
    test::TempTree tree;
    const QString link = tree.symlink(tree.path(QStringLiteral("nowhere")), QStringLiteral("link"));
    ASSERT_TRUE(moveFileByLink(link, tree.path(QStringLiteral("moved"))).ok());
    EXPECT_FALSE(tree.exists(QStringLiteral("link")));
    EXPECT_EQ(
        QFileInfo(tree.path(QStringLiteral("moved"))).symLinkTarget(), tree.path(QStringLiteral("nowhere")));
}

TEST(MoveFileByLink, RefusesAnExistingTargetAndKeepsBoth)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("a.txt"), "alpha");
    tree.file(QStringLiteral("b.txt"), "beta");
    tree.symlink(tree.path(QStringLiteral("nowhere")), QStringLiteral("dangling"));

    for (const char* target : {"b.txt", "dangling"}) {
        const FileResult result = moveFileByLink(source, tree.path(QString::fromUtf8(target)));
        EXPECT_EQ(result.outcome, FileOutcome::TargetExists) << target;
        EXPECT_EQ(tree.read(QStringLiteral("a.txt")), QByteArray("alpha")) << target;
    }
    EXPECT_EQ(tree.read(QStringLiteral("b.txt")), QByteArray("beta"));
    EXPECT_EQ(QFileInfo(tree.path(QStringLiteral("dangling"))).symLinkTarget(),
        tree.path(QStringLiteral("nowhere")));
}

TEST(MoveFileByLink, ReportsAMissingSource)
{
    test::TempTree tree;
    EXPECT_EQ(moveFileByLink(tree.path(QStringLiteral("ghost")), tree.path(QStringLiteral("b"))).outcome,
        FileOutcome::SourceMissing);
    EXPECT_FALSE(tree.exists(QStringLiteral("b")));
}

// link() answers EPERM for a folder, as it does on file systems without hard links: the
// checked rename takes over, and still refuses a taken name.
TEST(MoveFileByLink, FallsBackToTheCheckedRenameWhereLinksAreRefused)
{
    test::TempTree tree;
    tree.file(QStringLiteral("folder/inner"), "inner");
    tree.folder(QStringLiteral("taken"));
    EXPECT_EQ(moveFileByLink(tree.path(QStringLiteral("folder")), tree.path(QStringLiteral("taken"))).outcome,
        FileOutcome::TargetExists);
    EXPECT_TRUE(tree.exists(QStringLiteral("folder/inner")));

    EXPECT_TRUE(moveFileByLink(tree.path(QStringLiteral("folder")), tree.path(QStringLiteral("free"))).ok());
    EXPECT_EQ(tree.read(QStringLiteral("free/inner")), QByteArray("inner"));
}

// rename(2) silently replaces an empty folder or a dangling link; the check must stop it.
TEST(MoveAfterExistenceCheck, RefusesTargetsThatAPlainRenameWouldReplace)
{
    test::TempTree tree;
    tree.file(QStringLiteral("folder/inner"), "inner");
    const QString file = tree.file(QStringLiteral("file.txt"), "file");
    tree.folder(QStringLiteral("empty"));
    tree.symlink(tree.path(QStringLiteral("nowhere")), QStringLiteral("dangling"));
    tree.file(QStringLiteral("other.txt"), "other");

    struct Row {
        const char* source;
        const char* target;
    };
    const Row rows[]
        = {{"folder", "empty"}, {"folder", "dangling"}, {"file.txt", "dangling"}, {"file.txt", "other.txt"}};
    for (const Row& row : rows) {
        const FileResult result = moveAfterExistenceCheck(
            tree.path(QString::fromUtf8(row.source)), tree.path(QString::fromUtf8(row.target)));
        EXPECT_EQ(result.outcome, FileOutcome::TargetExists) << row.source << " -> " << row.target;
    }
    EXPECT_TRUE(isDirectory(tree.path(QStringLiteral("empty"))));
    EXPECT_EQ(QFileInfo(tree.path(QStringLiteral("dangling"))).symLinkTarget(),
        tree.path(QStringLiteral("nowhere")));
    EXPECT_EQ(tree.read(QStringLiteral("other.txt")), QByteArray("other"));
    EXPECT_EQ(tree.read(QStringLiteral("folder/inner")), QByteArray("inner"));
    EXPECT_EQ(tree.read(QStringLiteral("file.txt")), QByteArray("file"));
}

TEST(MoveAfterExistenceCheck, MovesToAFreeNameAndReportsAMissingSource)
{
    test::TempTree tree;
    tree.file(QStringLiteral("folder/inner"), "inner");
    EXPECT_TRUE(
        moveAfterExistenceCheck(tree.path(QStringLiteral("folder")), tree.path(QStringLiteral("renamed")))
            .ok());
    EXPECT_EQ(tree.read(QStringLiteral("renamed/inner")), QByteArray("inner"));
    EXPECT_FALSE(tree.exists(QStringLiteral("folder")));

    EXPECT_EQ(
        moveAfterExistenceCheck(tree.path(QStringLiteral("folder")), tree.path(QStringLiteral("x"))).outcome,
        FileOutcome::SourceMissing);
}

}  // namespace
