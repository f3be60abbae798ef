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

// A file, a folder with its contents, and a link as the link it is (never what it points at).
TEST(MoveItemNoReplace, MovesEveryKindOfItemToAFreeName)
{
    test::TempTree tree;
    tree.file(QStringLiteral("a.txt"), "alpha");
    tree.file(QStringLiteral("old/inside.txt"), "kept");
    tree.symlink(tree.path(QStringLiteral("a.txt")), QStringLiteral("link"));
    for (const char* name : {"old", "link", "a.txt"}) {
        const QString source = tree.path(QString::fromUtf8(name));
        const ItemIdentity before = itemIdentity(source);
        const FileResult result = moveItemNoReplace(source, source + QStringLiteral(" moved"));
        EXPECT_TRUE(result.ok() && result.message.isEmpty()) << name;
        EXPECT_FALSE(pathExists(source)) << name;
        EXPECT_TRUE(isSameItem(itemIdentity(source + QStringLiteral(" moved")), before)) << name;
    }
    EXPECT_EQ(tree.read(QStringLiteral("old moved/inside.txt")), QByteArray("kept"));
    EXPECT_EQ(linkTarget(tree.path(QStringLiteral("link moved"))), tree.path(QStringLiteral("a.txt")));
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

// ENOENT about the target's folder is not a missing source; a folder cannot go into itself.
TEST(MoveItemNoReplace, ReportsAMissingSourceApartFromOtherFailures)
{
    test::TempTree tree;
    tree.file(QStringLiteral("here.txt"), "here");
    tree.file(QStringLiteral("parent/child.txt"), "c");
    struct Row {
        const char* source;
        const char* target;
        FileOutcome outcome;
        int error;
    };
    const Row rows[] = {
        {"ghost", "anything", FileOutcome::SourceMissing, ENOENT},
        {"here.txt", "no-such-folder/here.txt", FileOutcome::Failed, ENOENT},
        {"parent", "parent/moved", FileOutcome::Failed, EINVAL},
    };
    for (const Row& row : rows) {
        const FileResult result
            = moveItemNoReplace(tree.path(QString::fromUtf8(row.source)), tree.path(QString::fromUtf8(row.target)));
        EXPECT_EQ(result.outcome, row.outcome) << row.source;
        EXPECT_EQ(result.error, row.error) << row.source;
        EXPECT_FALSE(tree.exists(QString::fromUtf8(row.target))) << row.source;
    }
    EXPECT_EQ(tree.read(QStringLiteral("here.txt")), QByteArray("here"));
    EXPECT_EQ(tree.read(QStringLiteral("parent/child.txt")), QByteArray("c"));
}

}  // namespace
