#include "core/list/FileList.h"
#include "core/list/StatusTexts.h"
#include "support/TempTree.h"
#include "support/TestStrings.h"

#include <QDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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

// QTemporaryDir removes a tree through QString names and cannot reach a name that is not
// UTF-8, so such entries are taken away by their bytes before the tree goes.
class RawEntries {
public:
    RawEntries() = default;
    RawEntries(const RawEntries&) = delete;
    RawEntries& operator=(const RawEntries&) = delete;
    ~RawEntries()
    {
        for (const QByteArray& path : m_files)
            ::unlink(path.constData());
        for (const QByteArray& path : m_folders)
            ::rmdir(path.constData());
    }

    void file(test::TempTree& tree, const char* folder, const QByteArray& rawName)
    {
        m_files.append(tree.rawFile(QString::fromUtf8(folder), rawName));
    }

    bool folder(const QString& parent, const QByteArray& rawName)
    {
        const QByteArray path = QFile::encodeName(parent) + '/' + rawName;
        if (::mkdir(path.constData(), 0755) != 0)
            return false;
        m_folders.append(path);
        return true;
    }

private:
    QList<QByteArray> m_files;
    QList<QByteArray> m_folders;
};

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

TEST_F(FileListScan, FilesModeWithSubFoldersListsFilesDepthFirstInFilesOrder)
{
    const ScanResult result = scan(list, { at("photos") }, kFilesDeep);
    EXPECT_EQ(relativeRows(list, tree),
        strs({ "photos/Album/z.jpg", "photos/b.txt", "photos/File9.jpg", "photos/file10.jpg",
            "photos/trip/day2/y.jpg", "photos/trip/x.jpg" }));
    EXPECT_EQ(result.added, 6);
    EXPECT_FALSE(result.cancelled);
    EXPECT_TRUE(result.skipped.isEmpty());
    for (const FileSystemItem& item : list.items()) {
        EXPECT_EQ(item.itemType(), ItemType::File) << item.fullPath().toStdString();
        EXPECT_EQ(item.newFilename(), QString()) << item.fullPath().toStdString();
    }
}

TEST_F(FileListScan, FilesModeWithoutSubFoldersSkipsEveryFolder)
{
    const ScanResult result = scan(list, { at("photos"), at("photos/b.txt"), at("photos/trip") }, kFiles);
    EXPECT_EQ(relativeRows(list, tree), strs({ "photos/b.txt" }));
    EXPECT_EQ(result.added, 1);
}

TEST_F(FileListScan, ChosenPathsKeepTheirOrderAndAreVisitedEachInTurn)
{
    scan(list, { at("photos/trip"), at("photos/b.txt"), at("photos/Album") }, kFilesDeep);
    EXPECT_EQ(relativeRows(list, tree),
        strs({ "photos/trip/day2/y.jpg", "photos/trip/x.jpg", "photos/b.txt", "photos/Album/z.jpg" }));
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

TEST_F(FileListScan, FolderModeListsFoldersBeforeTheirSubFoldersWithoutTheChosenOnes)
{
    tree.folder(str("photos/trip/day1"));
    const ScanResult result = scan(list, { at("photos") }, kFoldersDeep);
    EXPECT_EQ(relativeRows(list, tree),
        strs({ "photos/Album", "photos/trip", "photos/trip/day1", "photos/trip/day2" }));
    EXPECT_EQ(result.added, 4);
    EXPECT_FALSE(list.containsPath(at("photos")));
    for (const FileSystemItem& item : list.items())
        EXPECT_EQ(item.fileType(), str("FOLDER"));
}

TEST_F(FileListScan, FolderModeWithoutSubFoldersListsTheChosenFoldersAndNoFiles)
{
    const ScanResult result
        = scan(list, { at("photos/trip"), at("photos/b.txt"), at("photos/Album") }, kFolders);
    EXPECT_EQ(relativeRows(list, tree), strs({ "photos/trip", "photos/Album" }));
    EXPECT_EQ(result.added, 2);
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
    RawEntries raw;
    raw.file(tree, "raw", QByteArray("bad\xff.txt"));
    raw.file(tree, "raw", QByteArray(".hidden\xfe"));
    tree.file(str("raw/good.txt"));
    ASSERT_TRUE(raw.folder(at("raw"), QByteArray("dir\xe9")));

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

class CancelOnFirstReport : public ProgressObserver {
public:
    explicit CancelOnFirstReport(std::atomic_bool& cancel)
        : m_cancel(cancel)
    {
    }
    void progress(const Progress& progress) override
    {
        m_cancel = true;
        reports.push_back(progress);
    }
    std::vector<Progress> reports;

private:
    std::atomic_bool& m_cancel;
};

TEST_F(FileListScan, CancelSetBeforeTheScanAddsNothing)
{
    const std::atomic_bool cancel = true;
    const ScanResult result = list.addFiles({ at("photos"), at("photos/b.txt") }, kFilesDeep, cancel);
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.added, 0);
    EXPECT_TRUE(list.isEmpty());
}

TEST_F(FileListScan, CancelDuringTheScanKeepsWhatWasFound)
{
    std::atomic_bool cancel = false;
    CancelOnFirstReport observer(cancel);
    const ScanResult result
        = list.addFiles({ at("photos/b.txt"), at("photos/File9.jpg") }, kFiles, cancel, &observer);
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.added, 1);
    EXPECT_EQ(relativeRows(list, tree), strs({ "photos/b.txt" }));
    ASSERT_FALSE(observer.reports.empty());
    EXPECT_EQ(observer.reports.front().path, at("photos/b.txt"));
    EXPECT_EQ(observer.reports.back().done, 1);
}

class RecordingObserver : public ProgressObserver {
public:
    void progress(const Progress& progress) override { reports.push_back(progress); }
    std::vector<Progress> reports;
};

TEST_F(FileListScan, TheLastProgressReportHoldsTheCountFound)
{
    RecordingObserver observer;
    const std::atomic_bool cancel = false;
    list.addFiles({ at("photos") }, kFilesDeep, cancel, &observer);
    ASSERT_FALSE(observer.reports.empty());
    EXPECT_EQ(observer.reports.back().done, 6);
    EXPECT_EQ(observer.reports.back().path, at("photos/trip/x.jpg"));
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

TEST_F(FileListEditing, ClearEmptiesTheListAndTheKnownPaths)
{
    list.clear();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_FALSE(list.containsPath(tree.path(str("c"))));
    const std::atomic_bool cancel = false;
    EXPECT_EQ(list.addFiles({ tree.path(str("c")) }, kFiles, cancel).added, 1);
}

TEST_F(FileListEditing, AppendRefusesAKnownPath)
{
    EXPECT_FALSE(list.append(*FileSystemItem::initWithPath(tree.path(str("c")))));
    EXPECT_EQ(list.size(), 5);
}

TEST_F(FileListEditing, ResetFilesDicFollowsRecordsChangedInPlace)
{
    list.at(0).setFullPath(tree.path(str("renamed")));
    list.resetFilesDic();
    EXPECT_FALSE(list.containsPath(tree.path(str("a"))));
    EXPECT_TRUE(list.containsPath(tree.path(str("renamed"))));
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
