#include "core/platform/FileOperations.h"
#include "support/TempTree.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

QString linkTarget(const QString& path)
{
    return QFileInfo(path).symLinkTarget();
}

TEST(PathExists, CountsLinksAsTheyAreNotWhatTheyPointAt)
{
    test::TempTree tree;
    tree.file(QStringLiteral("file.txt"));
    tree.folder(QStringLiteral("folder"));
    tree.symlink(tree.path(QStringLiteral("nowhere")), QStringLiteral("dangling"));
    tree.symlink(tree.path(QStringLiteral("folder")), QStringLiteral("to-folder"));

    struct Row {
        const char* relative;
        bool exists;
        bool directory;
    };
    const Row rows[] = {
        {"file.txt", true, false},
        {"folder", true, true},
        {"dangling", true, false},
        {"to-folder", true, false},
        {"missing", false, false},
        {"folder/missing", false, false},
    };
    for (const Row& row : rows) {
        const QString path = tree.path(QString::fromUtf8(row.relative));
        EXPECT_EQ(pathExists(path), row.exists) << row.relative;
        EXPECT_EQ(isDirectory(path), row.directory) << row.relative;
    }
    EXPECT_FALSE(pathExists(QString()));
    EXPECT_FALSE(isDirectory(QString()));
}

TEST(MoveItemNoReplace, MovesAFileToAFreeName)
{
    test::TempTree tree;
    const QString source = tree.file(QStringLiteral("a.txt"), "alpha");
    const FileResult result = moveItemNoReplace(source, tree.path(QStringLiteral("b.txt")));
    EXPECT_EQ(result.outcome, FileOutcome::Ok);
    EXPECT_TRUE(result.message.isEmpty());
    EXPECT_FALSE(tree.exists(QStringLiteral("a.txt")));
    EXPECT_EQ(tree.read(QStringLiteral("b.txt")), QByteArray("alpha"));
}

TEST(MoveItemNoReplace, MovesAFolderWithItsContents)
{
    test::TempTree tree;
    tree.file(QStringLiteral("old/inside.txt"), "kept");
    const FileResult result
        = moveItemNoReplace(tree.path(QStringLiteral("old")), tree.path(QStringLiteral("new")));
    EXPECT_TRUE(result.ok());
    EXPECT_FALSE(tree.exists(QStringLiteral("old")));
    EXPECT_EQ(tree.read(QStringLiteral("new/inside.txt")), QByteArray("kept"));
}

TEST(MoveItemNoReplace, MovesASymbolicLinkItselfNotWhatItPointsAt)
{
    test::TempTree tree;
    tree.file(QStringLiteral("real.txt"), "real");
    const QString link = tree.symlink(tree.path(QStringLiteral("real.txt")), QStringLiteral("link"));
    ASSERT_TRUE(moveItemNoReplace(link, tree.path(QStringLiteral("renamed-link"))).ok());
    EXPECT_EQ(linkTarget(tree.path(QStringLiteral("renamed-link"))), tree.path(QStringLiteral("real.txt")));
    EXPECT_EQ(tree.read(QStringLiteral("real.txt")), QByteArray("real"));
}

// Every kind of occupant of the new name must survive a move onto it, and so must the item
// that was to be moved.
struct Occupant {
    const char* label;
    void (*make)(test::TempTree& tree, const QString& relative);
};

const Occupant occupants[] = {
    {"file", [](test::TempTree& t, const QString& r) { t.file(r, "occupant"); }},
    {"empty folder", [](test::TempTree& t, const QString& r) { t.folder(r); }},
    {"folder with contents",
        [](test::TempTree& t, const QString& r) { t.file(r + QStringLiteral("/x"), "x"); }},
    {"dangling link",
        [](test::TempTree& t, const QString& r) { t.symlink(t.path(QStringLiteral("void")), r); }},
    {"link to a file",
        [](test::TempTree& t, const QString& r) { t.symlink(t.path(QStringLiteral("src-file")), r); }},
};

bool occupantIntact(const test::TempTree& tree, const char* label)
{
    const QString path = tree.path(QStringLiteral("target"));
    const QString kind = QString::fromUtf8(label);
    if (kind == QStringLiteral("file"))
        return tree.read(QStringLiteral("target")) == "occupant";
    if (kind == QStringLiteral("empty folder"))
        return isDirectory(path);
    if (kind == QStringLiteral("folder with contents"))
        return tree.read(QStringLiteral("target/x")) == "x";
    if (kind == QStringLiteral("dangling link"))
        return linkTarget(path) == tree.path(QStringLiteral("void"));
    return linkTarget(path) == tree.path(QStringLiteral("src-file"));
}

TEST(MoveItemNoReplace, NeverReplacesWhatHasTheNewName)
{
    for (const bool sourceIsFolder : {false, true}) {
        for (const Occupant& occupant : occupants) {
            test::TempTree tree;
            const QString source = sourceIsFolder ? tree.file(QStringLiteral("src-folder/inner"), "inner")
                                                  : tree.file(QStringLiteral("src-file"), "source");
            const QString sourcePath = sourceIsFolder ? tree.path(QStringLiteral("src-folder")) : source;
            occupant.make(tree, QStringLiteral("target"));

            const FileResult result = moveItemNoReplace(sourcePath, tree.path(QStringLiteral("target")));
            const std::string label
                = std::string(sourceIsFolder ? "folder onto " : "file onto ") + occupant.label;
            EXPECT_EQ(result.outcome, FileOutcome::TargetExists) << label;
            EXPECT_EQ(result.error, EEXIST) << label;
            EXPECT_FALSE(result.message.isEmpty()) << label;
            EXPECT_TRUE(occupantIntact(tree, occupant.label)) << label;
            if (sourceIsFolder)
                EXPECT_EQ(tree.read(QStringLiteral("src-folder/inner")), QByteArray("inner")) << label;
            else
                EXPECT_EQ(tree.read(QStringLiteral("src-file")), QByteArray("source")) << label;
        }
    }
}

TEST(MoveItemNoReplace, ReportsAMissingSourceApartFromOtherFailures)
{
    test::TempTree tree;
    const FileResult missing
        = moveItemNoReplace(tree.path(QStringLiteral("ghost")), tree.path(QStringLiteral("anything")));
    EXPECT_EQ(missing.outcome, FileOutcome::SourceMissing);
    EXPECT_EQ(missing.error, ENOENT);

    // ENOENT here is about the target's folder: the source is there and stays.
    const QString source = tree.file(QStringLiteral("here.txt"), "here");
    const FileResult noFolder
        = moveItemNoReplace(source, tree.path(QStringLiteral("no-such-folder/here.txt")));
    EXPECT_EQ(noFolder.outcome, FileOutcome::Failed);
    EXPECT_EQ(noFolder.error, ENOENT);
    EXPECT_EQ(tree.read(QStringLiteral("here.txt")), QByteArray("here"));
}

TEST(MoveItemNoReplace, RefusesToMoveAFolderIntoItself)
{
    test::TempTree tree;
    tree.file(QStringLiteral("parent/child.txt"), "c");
    const FileResult result
        = moveItemNoReplace(tree.path(QStringLiteral("parent")), tree.path(QStringLiteral("parent/moved")));
    EXPECT_EQ(result.outcome, FileOutcome::Failed);
    EXPECT_EQ(tree.read(QStringLiteral("parent/child.txt")), QByteArray("c"));
    EXPECT_FALSE(tree.exists(QStringLiteral("parent/moved")));
}

}  // namespace
