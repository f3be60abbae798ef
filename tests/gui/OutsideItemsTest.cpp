#include "gui/app/ClipboardPaths.h"
#include "gui/app/SingleInstance.h"
#include "gui/list/PasteboardItemsSheet.h"

#include "GuiFixture.h"
#include "gui/list/PastedItemsModel.h"

#include <QMimeData>
#include <QUrl>

using namespace tavrin;
using namespace tavrin::test;

namespace {

TEST(ClipboardPaths, TakeWhatFileManagersCopyAndAbsolutePathsAsText)
{
    QMimeData gnome;
    gnome.setData(
        u"x-special/gnome-copied-files"_s, "copy\nfile:///home/ann/a%20b.jpg\nfile:///home/ann/dir/\n");
    EXPECT_EQ(pathsFromClipboard(&gnome), QStringList({ u"/home/ann/a b.jpg"_s, u"/home/ann/dir"_s }));

    QMimeData uris;
    uris.setUrls({ QUrl::fromLocalFile(u"/x/é.txt"_s), QUrl(u"https://example.org/f"_s),
        QUrl::fromLocalFile(u"/x/é.txt"_s) });
    EXPECT_EQ(pathsFromClipboard(&uris), QStringList({ u"/x/é.txt"_s })) << "remote and repeated dropped";

    QMimeData text;
    text.setText(u"/srv/photos/../a.png\n  relative/b.png\nfile:///srv/c.png\n"_s);
    EXPECT_EQ(pathsFromClipboard(&text), QStringList({ u"/srv/a.png"_s, u"/srv/c.png"_s }));

    QMimeData prose;
    prose.setText(u"just some words"_s);
    EXPECT_TRUE(pathsFromClipboard(&prose).isEmpty());
    EXPECT_TRUE(pathsFromClipboard(nullptr).isEmpty());
}

// A socket left by a crashed instance is taken over.
TEST(SingleInstance, ALaterLaunchHandsItsPathsToTheRunningOne)
{
    TempTree tree;
    const QString name = tree.file(u"instance"_s);
    SingleInstance later(name);
    EXPECT_FALSE(later.forwardToRunningInstance({ u"/a"_s }, 200)) << "nobody is listening yet";

    SingleInstance running(name);
    ASSERT_TRUE(running.listen());
    QSignalSpy received(&running, &SingleInstance::pathsReceived);
    const QStringList paths { u"/home/ann/é 1.jpg"_s, u"/home/ann/2.jpg"_s };
    ASSERT_TRUE(later.forwardToRunningInstance(paths));
    ASSERT_TRUE(received.wait(5000));
    EXPECT_EQ(received.first().first().toStringList(), paths);
}

// The sheet that asks how pasted or opened items are listed.
class PasteboardItemsSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        // A link to a folder is renamed as the link it is, so it counts as a file.
        paths = { tree.file(u"a.txt"_s), tree.folder(u"Photos"_s),
            tree.symlink(tree.path(u"Photos"_s), u"Photos link"_s), tree.folder(u"Music/Live"_s),
            tree.file(u"Music/b.mp3"_s) };
        sheet = std::make_unique<PasteboardItemsSheet>(paths, ListChoice { ListMode::Files, false });
        sheet->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet.get()));
    }

    QString countLine() const { return part<QLabel>(sheet.get(), "pastedCountLabel")->text(); }

    void selectRows(std::initializer_list<int> rows) const
    {
        QItemSelectionModel* selection = sheet->table()->selectionModel();
        selection->clearSelection();
        for (const int row : rows)
            selection->select(
                sheet->model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    TempTree tree;
    QStringList paths;
    std::unique_ptr<PasteboardItemsSheet> sheet;
};

TEST_F(PasteboardItemsSheetTest, ListsAndCountsTheItemsAndRemovesRowsUntilNoneIsLeftToAdd)
{
    EXPECT_EQ(countLine(), u"Items: 5 (files: 3, folders: 2)"_s);
    EXPECT_EQ(sheet->paths(), paths);
    EXPECT_FALSE(sheet->isFolders() || sheet->isIncludeSubFolders()) << "as the window's choice";
    EXPECT_EQ(sheet->model()->index(3, PastedItemsModel::NameColumn).data().toString(), u"Live"_s);
    EXPECT_EQ(
        sheet->model()->index(3, PastedItemsModel::LocationColumn).data().toString(), tree.path(u"Music"_s));
    auto* add = part<QPushButton>(sheet.get(), "addToListButton");
    auto* remove = part<QPushButton>(sheet.get(), "removeButton");
    EXPECT_FALSE(remove->isEnabled());

    // Rows apart from each other go in one stroke; the row after the first one removed is
    // selected, so a second Delete goes on from there.
    selectRows({ 1, 4, 0 });
    QTest::keyClick(sheet->table(), Qt::Key_Delete);
    EXPECT_EQ(sheet->paths(), QStringList({ paths[2], paths[3] }));
    EXPECT_EQ(countLine(), u"Items: 2 (files: 1, folders: 1)"_s);
    QTest::keyClick(sheet->table(), Qt::Key_Delete);
    EXPECT_EQ(sheet->paths(), QStringList({ paths[3] }));
    EXPECT_TRUE(add->isEnabled());

    selectRows({ 0 });
    remove->click();
    EXPECT_EQ(countLine(), u"Items: 0 (files: 0, folders: 0)"_s);
    EXPECT_FALSE(add->isEnabled());
    EXPECT_FALSE(remove->isEnabled());
}

QString addCountAfterCounting(const QLabel* label)
{
    if (!QTest::qWaitFor([label] { return label->text() != localized("PASTEDCOUNTING"); }, 5000))
        return u"<still counting>"_s;
    return label->text();
}

// Regression: the sheet always started from files without sub-folders, so "Add to List" on a
// folder listed nothing and unticked the window's own choice.
TEST(PasteboardItemsSheetStart, StartsFromTheWindowsChoiceAndCountsWhatEachChoiceAdds)
{
    TempTree tree;
    tree.file(u"Photos/2024/a.jpg"_s);
    tree.file(u"Photos/b.jpg"_s);
    PasteboardItemsSheet sheet({ tree.path(u"Photos"_s) }, ListChoice { ListMode::Files, true });
    EXPECT_FALSE(sheet.isFolders());
    EXPECT_TRUE(sheet.isIncludeSubFolders());
    const auto* count = part<QLabel>(&sheet, "addCountLabel");
    EXPECT_EQ(addCountAfterCounting(count), localized("PASTEDWOULDADDFILES").arg(2));
    // Without sub-folders a folder adds none of its files: the sheet says so before adding.
    part<QCheckBox>(&sheet, "includeSubFoldersBox")->click();
    EXPECT_EQ(addCountAfterCounting(count), localized("PASTEDWOULDADDFILES").arg(0));
    part<QRadioButton>(&sheet, "renameFoldersButton")->click();
    EXPECT_EQ(addCountAfterCounting(count), localized("PASTEDWOULDADDFOLDERS").arg(1));
    sheet.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet));
    QTest::keyClick(sheet.table(), Qt::Key_Return);
    EXPECT_EQ(sheet.result(), QDialog::Accepted);
    EXPECT_TRUE(sheet.isFolders() && !sheet.isIncludeSubFolders())
        << "the sheet answers the choices made in it";
}

} // namespace
