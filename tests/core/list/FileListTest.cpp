#include "core/list/FileList.h"
#include "core/list/StatusTexts.h"
#include "support/TempTree.h"
#include "support/TestStrings.h"

#include <QDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tavrin;

namespace {

using test::str;
using test::strs;

// The list's paths relative to the tree, in list order, so expectations read like a tree.
QStringList relativeRows(const FileList& list, const test::TempTree& tree)
{
    const QDir root(tree.root());
    QStringList rows;
    for (const FileSystemItem& item : list.items())
        rows.append(root.relativeFilePath(item.fullPath()));
    return rows;
}

ScanResult scan(FileList& list, const QStringList& paths, ScanOptions options)
{
    const std::atomic_bool cancel = false;
    return list.addFiles(paths, options, cancel);
}

constexpr ScanOptions kFiles { false, false, false };
constexpr ScanOptions kFilesDeep { false, true, false };
constexpr ScanOptions kFolders { true, false, false };
constexpr ScanOptions kFoldersDeep { true, true, false };

class FileListScan : public ::testing::Test {
protected:
    // photos/File9.jpg, photos/file10.jpg, photos/b.txt, photos/.thumbs.db,
    // photos/.cache/inner.txt, photos/trip/x.jpg, photos/trip/day2/y.jpg, photos/Album/z.jpg
    void SetUp() override
    {
        for (const char* file : { "photos/File9.jpg", "photos/file10.jpg", "photos/b.txt",
                 "photos/.thumbs.db", "photos/.cache/inner.txt", "photos/trip/x.jpg",
                 "photos/trip/day2/y.jpg", "photos/Album/z.jpg" })
            tree.file(str(file));
    }

    QString at(const char* relative) const { return tree.path(str(relative)); }

    test::TempTree tree;
    FileList list;
};

struct ScanRow {
    const char* name;
    std::vector<const char*> chosen;
    ScanOptions options;
    QStringList expected;
};

TEST_F(FileListScan, EachModeListsWhatItShouldInOrder)
{
    const ScanRow rows[] = {
        { "files with sub-folders, depth first in file-manager order", { "photos" }, kFilesDeep,
            strs({ "photos/Album/z.jpg", "photos/b.txt", "photos/File9.jpg", "photos/file10.jpg",
                "photos/trip/day2/y.jpg", "photos/trip/x.jpg" }) },
        { "files without sub-folders skip every folder", { "photos", "photos/b.txt", "photos/trip" }, kFiles,
            strs({ "photos/b.txt" }) },
        { "chosen paths keep their order", { "photos/trip", "photos/b.txt", "photos/Album" }, kFilesDeep,
            strs({ "photos/trip/day2/y.jpg", "photos/trip/x.jpg", "photos/b.txt", "photos/Album/z.jpg" }) },
        { "folders before their sub-folders, without the chosen ones", { "photos" }, kFoldersDeep,
            strs({ "photos/Album", "photos/trip", "photos/trip/day1", "photos/trip/day2" }) },
        { "folders without sub-folders: the chosen ones, no files",
            { "photos/trip", "photos/b.txt", "photos/Album" }, kFolders, strs({ "photos/trip", "photos/Album" }) },
    };
    tree.folder(str("photos/trip/day1"));
    for (const ScanRow& row : rows) {
        FileList scanned;
        QStringList paths;
        for (const char* chosen : row.chosen)
            paths.append(at(chosen));
        const ScanResult result = scan(scanned, paths, row.options);
        EXPECT_EQ(relativeRows(scanned, tree), row.expected) << row.name;
        EXPECT_EQ(result.added, row.expected.size()) << row.name;
        EXPECT_FALSE(result.cancelled);
        EXPECT_TRUE(result.skipped.isEmpty());
        for (const FileSystemItem& item : scanned.items()) {
            EXPECT_EQ(item.fileType(), str(row.options.folders ? "FOLDER" : "FILE")) << row.name;
            EXPECT_EQ(item.newFilename(), QString()) << row.name;
        }
    }
}

TEST_F(FileListScan, HiddenItemsAreNeitherListedNorDescendedInto)
{
    const ScanResult direct = scan(list, { at("photos/.thumbs.db"), at("photos/.cache") }, kFilesDeep);
    EXPECT_EQ(direct.added, 0);
    EXPECT_TRUE(list.isEmpty());

    scan(list, { at("photos") }, kFilesDeep);
    for (const FileSystemItem& item : list.items())
        EXPECT_FALSE(item.fullPath().contains(QLatin1String("/."))) << item.fullPath().toStdString();

    FileList folders;
    scan(folders, { at("photos") }, kFoldersDeep);
    EXPECT_FALSE(folders.containsPath(at("photos/.cache")));
}

TEST_F(FileListScan, DuplicatesAreListedOnce)
{
    const ScanResult first
        = scan(list, { at("photos/b.txt"), at("photos/b.txt"), at("photos/trip/x.jpg") }, kFilesDeep);
    EXPECT_EQ(first.added, 2);

    // The same file again, through its folder, and in spellings that name the same path.
    const ScanResult second = scan(list,
        { at("photos/trip"), at("photos/./b.txt"), tree.root() + str("//photos/trip/x.jpg"),
            at("photos/trip/../b.txt") },
        kFilesDeep);
    EXPECT_EQ(second.added, 1);
    EXPECT_EQ(
        relativeRows(list, tree), strs({ "photos/b.txt", "photos/trip/x.jpg", "photos/trip/day2/y.jpg" }));
}

TEST_F(FileListScan, TopFolderListedEarlierLeavesTheListWhenChosenWithSubFolders)
{
    scan(list, { at("photos/trip") }, kFolders);
    const ScanResult result = scan(list, { at("photos/trip") }, kFoldersDeep);
    EXPECT_EQ(relativeRows(list, tree), strs({ "photos/trip/day2" }));
    EXPECT_EQ(result.added, 1);
    EXPECT_FALSE(list.containsPath(at("photos/trip")));

    // Being out of the known-path set, it can be listed again on its own.
    EXPECT_EQ(scan(list, { at("photos/trip") }, kFolders).added, 1);
}

TEST_F(FileListScan, LinksAreListedAsFilesAndNeverFollowed)
{
    tree.symlink(at("photos/trip"), str("photos/zz-link-to-trip"));
    tree.symlink(at("photos"), str("photos/trip/loop"));
    tree.symlink(at("nowhere"), str("photos/Album/dangling"));

    scan(list, { at("photos") }, kFilesDeep);
    const QStringList rows = relativeRows(list, tree);
    EXPECT_EQ(rows,
        strs({ "photos/Album/dangling", "photos/Album/z.jpg", "photos/b.txt", "photos/File9.jpg",
            "photos/file10.jpg", "photos/trip/day2/y.jpg", "photos/trip/loop", "photos/trip/x.jpg",
            "photos/zz-link-to-trip" }));
    const FileSystemItem& link = list.at(static_cast<int>(rows.indexOf(str("photos/zz-link-to-trip"))));
    EXPECT_EQ(link.itemType(), ItemType::Alias);
    EXPECT_EQ(link.fileType(), QString());

    FileList direct;
    scan(direct, { at("photos/zz-link-to-trip") }, kFilesDeep);
    EXPECT_EQ(relativeRows(direct, tree), strs({ "photos/zz-link-to-trip" }));
}

TEST_F(FileListScan, FolderModeSkipsLinksToFolders)
{
    tree.symlink(at("photos/trip"), str("photos/link-to-trip"));
    tree.symlink(at("photos/trip"), str("elsewhere/link"));
    scan(list, { at("photos"), at("elsewhere/link") }, kFoldersDeep);
    EXPECT_EQ(relativeRows(list, tree), strs({ "photos/Album", "photos/trip", "photos/trip/day2" }));

    FileList flat;
    EXPECT_EQ(scan(flat, { at("elsewhere/link") }, kFolders).added, 0);
}

TEST_F(FileListScan, NamesThatAreNotUtf8AreReportedAndNeverListed)
{
    tree.rawFile(str("raw"), QByteArray("bad\xff.txt"));
    tree.rawFile(str("raw"), QByteArray(".hidden\xfe"));
    tree.file(str("raw/good.txt"));
    ASSERT_EQ(::mkdir((QFile::encodeName(at("raw")) + "/dir\xe9").constData(), 0755), 0);

    const ScanResult result = scan(list, { at("raw") }, kFilesDeep);
    EXPECT_EQ(relativeRows(list, tree), strs({ "raw/good.txt" }));
    ASSERT_EQ(result.skipped.size(), 2);
    QStringList skipped = result.skipped;
    skipped.sort();
    EXPECT_EQ(skipped.at(0), at("raw/bad") + QChar(QChar::ReplacementCharacter) + str(".txt"));
    EXPECT_EQ(skipped.at(1), at("raw/dir") + QChar(QChar::ReplacementCharacter));

    // Folder mode only looks at folders, so only the folder's name is reported there.
    FileList folders;
    const ScanResult folderResult = scan(folders, { at("raw") }, kFoldersDeep);
    EXPECT_EQ(folderResult.skipped, QStringList { at("raw/dir") + QChar(QChar::ReplacementCharacter) });
    EXPECT_TRUE(folders.isEmpty());
}

TEST_F(FileListScan, MissingPathsAreSkippedAndRelativeOnesMadeAbsolute)
{
    const QString previous = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(at("photos")));
    const ScanResult result
        = scan(list, { str("b.txt"), str("trip/"), str("missing.txt"), QString() }, kFilesDeep);
    QDir::setCurrent(previous);

    EXPECT_EQ(result.added, 3);
    EXPECT_EQ(
        relativeRows(list, tree), strs({ "photos/b.txt", "photos/trip/day2/y.jpg", "photos/trip/x.jpg" }));
    EXPECT_EQ(list.at(0).fullPath(), at("photos/b.txt"));
}

TEST_F(FileListScan, RenameFromFileTabStartsNewRecordsAsNoChanges)
{
    scan(list, { at("photos/b.txt") }, kFiles);
    scan(list, { at("photos/trip/x.jpg") }, ScanOptions { false, false, true });
    EXPECT_EQ(list.at(0).newFilename(), QString());
    EXPECT_EQ(list.at(1).newFilename(), str(status::NoChanges));
}

// Records every report and, when asked to, cancels the scan at the first one.
class RecordingObserver : public ProgressObserver {
public:
    explicit RecordingObserver(std::atomic_bool* cancel = nullptr)
        : m_cancel(cancel)
    {
    }
    void progress(const Progress& progress) override
    {
        if (m_cancel)
            *m_cancel = true;
        reports.push_back(progress);
    }
    std::vector<Progress> reports;

private:
    std::atomic_bool* m_cancel;
};

TEST_F(FileListScan, ProgressEndsOnTheCountFoundAndCancelKeepsWhatWasFound)
{
    RecordingObserver observer;
    const std::atomic_bool noCancel = false;
    list.addFiles({ at("photos") }, kFilesDeep, noCancel, &observer);
    ASSERT_FALSE(observer.reports.empty());
    EXPECT_EQ(observer.reports.back().done, 6);
    EXPECT_EQ(observer.reports.back().path, at("photos/trip/x.jpg"));

    FileList cancelledEarly;
    const std::atomic_bool cancelled = true;
    const ScanResult early = cancelledEarly.addFiles({ at("photos"), at("photos/b.txt") }, kFilesDeep, cancelled);
    EXPECT_TRUE(early.cancelled);
    EXPECT_EQ(early.added, 0);
    EXPECT_TRUE(cancelledEarly.isEmpty());

    FileList cancelledLate;
    std::atomic_bool cancel = false;
    RecordingObserver canceller(&cancel);
    const ScanResult late
        = cancelledLate.addFiles({ at("photos/b.txt"), at("photos/File9.jpg") }, kFiles, cancel, &canceller);
    EXPECT_TRUE(late.cancelled);
    EXPECT_EQ(late.added, 1);
    EXPECT_EQ(relativeRows(cancelledLate, tree), strs({ "photos/b.txt" }));
    EXPECT_EQ(canceller.reports.front().path, at("photos/b.txt"));
}

// Editing the list: rows named after letters so that expected orders read at a glance.
class FileListEditing : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const char* name : { "a", "b", "c", "d", "e" })
            ASSERT_TRUE(list.append(*FileSystemItem::initWithPath(tree.file(str(name)))));
    }

    static QString names(const FileList& rows)
    {
        QString joined;
        for (const FileSystemItem& item : rows.items())
            joined += item.filenameWithExtension();
        return joined;
    }

    test::TempTree tree;
    FileList list;
};

struct MoveRow {
    const char* name;
    bool down;
    QList<int> selected;
    const char* order;
    QList<int> selection;
};

TEST_F(FileListEditing, MovesFollowTheRulesAndTheSelectionFollowsTheRecords)
{
    const MoveRow rows[] = {
        { "down one", true, { 1 }, "acbde", { 2 } },
        { "down a block", true, { 1, 2 }, "adbce", { 2, 3 } },
        { "down the last row stays", true, { 4 }, "abcde", { 4 } },
        { "down a block at the bottom stays whole", true, { 3, 4 }, "abcde", { 3, 4 } },
        { "down a gap closes on a row that stays", true, { 2, 4 }, "abdce", { 3, 4 } },
        { "down ignores unknown and repeated rows", true, { 7, -1, 1, 1 }, "acbde", { 2 } },
        { "up one", false, { 3 }, "abdce", { 2 } },
        { "up the first row stays", false, { 0 }, "abcde", { 0 } },
        { "up a block at the top stays whole", false, { 0, 1, 3 }, "abdce", { 0, 1, 2 } },
        { "up rows given out of order", false, { 3, 1 }, "badce", { 0, 2 } },
        { "nothing selected", false, {}, "abcde", {} },
    };
    for (const MoveRow& row : rows) {
        FileList moved = list;
        const QList<int> selection = row.down ? moved.moveDown(row.selected) : moved.moveUp(row.selected);
        EXPECT_EQ(names(moved), str(row.order)) << row.name;
        EXPECT_EQ(selection, row.selection) << row.name;
    }
}

TEST_F(FileListEditing, RemoveTakesTheRowsAtOnceAndForgetsTheirPaths)
{
    list.remove({ 3, 0, 3, 9, -2 });
    EXPECT_EQ(names(list), str("bce"));
    EXPECT_FALSE(list.containsPath(tree.path(str("a"))));
    EXPECT_TRUE(list.containsPath(tree.path(str("b"))));
    EXPECT_TRUE(list.append(*FileSystemItem::initWithPath(tree.path(str("a")))));
    EXPECT_EQ(names(list), str("bcea"));
}

TEST_F(FileListEditing, KnownPathsFollowAppendClearAndRecordsChangedInPlace)
{
    EXPECT_FALSE(list.append(*FileSystemItem::initWithPath(tree.path(str("c")))));
    EXPECT_EQ(list.size(), 5);

    list.at(0).setFullPath(tree.path(str("renamed")));
    list.resetFilesDic();
    EXPECT_FALSE(list.containsPath(tree.path(str("a"))));
    EXPECT_TRUE(list.containsPath(tree.path(str("renamed"))));

    list.clear();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_FALSE(list.containsPath(tree.path(str("c"))));
    const std::atomic_bool cancel = false;
    EXPECT_EQ(list.addFiles({ tree.path(str("c")) }, kFiles, cancel).added, 1);
}

TEST(FileListSort, SortsByOneKeyStablyInBothDirections)
{
    test::TempTree tree;
    FileList list;
    for (const char* file : { "x/img10.JPG", "x/IMG9.jpg", "y/a.txt", "x/b.txt", "y/img9.png", "x/A.txt" })
        list.append(*FileSystemItem::initWithPath(tree.file(str(file))));

    list.sortBy({ str("filenameWithExtension"), true });
    EXPECT_EQ(relativeRows(list, tree),
        strs({ "x/A.txt", "y/a.txt", "x/b.txt", "x/IMG9.jpg", "y/img9.png", "x/img10.JPG" }));

    // The three "txt" rows keep the order they had; "jpg" and "JPG" differ only in case,
    // which code points settle.
    list.sortBy({ str("fileExtension"), false });
    EXPECT_EQ(relativeRows(list, tree),
        strs({ "x/A.txt", "y/a.txt", "x/b.txt", "y/img9.png", "x/IMG9.jpg", "x/img10.JPG" }));

    list.sortByFolderThenName();
    EXPECT_EQ(relativeRows(list, tree),
        strs({ "x/A.txt", "x/b.txt", "x/IMG9.jpg", "x/img10.JPG", "y/a.txt", "y/img9.png" }));
}

TEST(FileListSort, ManyEqualKeysKeepTheirOrder)
{
    test::TempTree tree;
    FileList list;
    for (int i = 0; i < 40; ++i)
        list.append(*FileSystemItem::initWithPath(tree.file(QStringLiteral("f%1/same.txt").arg(i))));
    list.sortBy({ str("filenameWithExtension"), false });
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(list.at(i).fullPath(), tree.path(QStringLiteral("f%1/same.txt").arg(i)));
}

} // namespace
